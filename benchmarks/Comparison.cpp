#include <benchmarks/Comparison.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace {

constexpr char kOurs[] = "ours";
constexpr char kSameLook[] = "same look";
constexpr char kPlain[] = "plain";
constexpr char kSeparator = '|';
constexpr int kRepetitions = 9;
constexpr int kTimed = 0;
constexpr int kGrowthIterations = 5;

struct Line
{
    std::string strName;
    double dGoal = 0.0;
};

// Made by constructors of namespace-scope objects, so it has to be built on first use.
std::vector<Line>& Lines()
{
    static std::vector<Line> lines;
    return lines;
}

double Median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Shows the library's usual lines of aggregates and keeps each repetition's time for the table.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter()
        : ConsoleReporter(OO_Tabular)
    {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        std::vector<Run> aggregates;
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate || run.error_occurred) {
                aggregates.push_back(run);
            }
            if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
                m_times[run.run_name.function_name].push_back(run.real_accumulated_time / double(run.iterations));
            }
        }
        // The single repetitions are for the table alone.
        if (!aggregates.empty()) {
            ConsoleReporter::ReportRuns(aggregates);
        }
    }

    void PrintTable() const
    {
        std::printf("\n| case | ours | ratio to the same look | ratio to plain | goal |\n|---|---|---|---|---|\n");
        for (const Line& line : Lines()) {
            const double ours = MedianOf(line.strName, kOurs);
            if (ours <= 0.0) {
                continue;
            }
            std::printf("| %s | %.3g us | %s | %s | %s |\n", line.strName.c_str(), ours * 1e6,
                        Ratio(ours, MedianOf(line.strName, kSameLook)).c_str(),
                        Ratio(ours, MedianOf(line.strName, kPlain)).c_str(),
                        line.dGoal > 0.0 ? Number(line.dGoal).c_str() : "-");
        }
    }

private:
    static std::string Number(double value)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.2f", value);
        return text;
    }

    static std::string Ratio(double ours, double other) { return other > 0.0 ? Number(ours / other) : "-"; }

    double MedianOf(const std::string& name, const char* variant) const
    {
        const auto found = m_times.find(name + kSeparator + variant);
        return found == m_times.end() ? 0.0 : Median(found->second);
    }

    std::map<std::string, std::vector<double>> m_times;
};

} // namespace

Comparison::Comparison(std::string name)
    : m_strName(std::move(name))
{
    Lines().push_back({m_strName, 0.0});
}

Comparison& Comparison::Ours(Run run)
{
    Register(kOurs, std::move(run), kTimed);
    return *this;
}

Comparison& Comparison::SameLook(Run run)
{
    Register(kSameLook, std::move(run), kTimed);
    return *this;
}

Comparison& Comparison::Plain(Run run)
{
    Register(kPlain, std::move(run), kTimed);
    return *this;
}

Comparison& Comparison::Goal(double ratio)
{
    const auto line =
        std::find_if(Lines().begin(), Lines().end(), [this](const Line& l) { return l.strName == m_strName; });
    line->dGoal = ratio;
    return *this;
}

Comparison& Comparison::Growth(const std::function<double(int entries)>& fill, int small, int large)
{
    const auto perEntry = [fill](int entries) {
        return [fill, entries](benchmark::State& state) {
            for ([[maybe_unused]] auto step : state) {
                state.SetIterationTime(fill(entries) / entries);
            }
        };
    };
    Register(kOurs, perEntry(large), kGrowthIterations);
    Register(kSameLook, perEntry(small), kGrowthIterations);
    return *this;
}

Comparison& Comparison::Counted(const std::function<double()>& ours, const std::function<double()>& sameLook)
{
    const auto once = [](const std::function<double()>& work) {
        return [work](benchmark::State& state) {
            for ([[maybe_unused]] auto step : state) {
                state.SetIterationTime(work());
            }
        };
    };
    Register(kOurs, once(ours), 1);
    Register(kSameLook, once(sameLook), 1);
    return *this;
}

void Comparison::Register(const char* variant, Run run, int countedIterations) const
{
    benchmark::internal::Benchmark* entry =
        benchmark::RegisterBenchmark((m_strName + kSeparator + variant).c_str(), std::move(run));
    entry->Unit(benchmark::kMicrosecond);
    if (countedIterations != kTimed) {
        // What is counted is far below the default minimum of time; a fixed number of iterations keeps the run short.
        entry->UseManualTime()->Iterations(countedIterations);
    } else {
        entry->UseRealTime();
    }
}

int Comparison::Main(int argc, char** argv)
{
    const std::string repetitions = "--benchmark_repetitions=" + std::to_string(kRepetitions);
    std::vector<std::string> defaults = {argv[0], repetitions, "--benchmark_enable_random_interleaving=true",
                                         "--benchmark_min_time=0.05"};
    defaults.insert(defaults.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    std::transform(defaults.begin(), defaults.end(), std::back_inserter(arguments),
                   [](std::string& argument) { return argument.data(); });
    int count = int(arguments.size());

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintTable();
    return 0;
}

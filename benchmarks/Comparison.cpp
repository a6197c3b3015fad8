#include <benchmarks/Comparison.h>

#include <benchmarks/Meter.h>

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr const char* kVariantNames[] = {"ours", "same look", "plain"};

constexpr qint64 kMilliseconds = 1500;
constexpr int kFewestRounds = 7;
constexpr int kMostRounds = 60;

bool g_bQuick = false;

// Made by functions that main calls, and gone with the program.
std::vector<Comparison>& Registry()
{
    static std::vector<Comparison> comparisons;
    return comparisons;
}

// What is wanted of a phase wherever it occurs.
const std::map<std::string, double> kGoals = {
    {"make", 1.2},         {"show", 1.2},          {"first paint", 1.0}, {"all up to here", 1.2},      {"repaint", 1.0},
    {"state change", 1.0}, {"first opening", 1.0}, {"open", 1.0},        {"open, answer, close", 1.0},
};

double Goal(const Comparison& comparison, const std::string& phase)
{
    const auto own = comparison.goals.find(phase);
    if (own != comparison.goals.end()) {
        return own->second;
    }
    const auto usual = kGoals.find(phase);
    return usual != kGoals.end() ? usual->second : 0.0;
}

} // namespace

double Ledger::Measure(const std::string& phase, const std::function<void()>& work, int times)
{
    if (Meter::CountsInstructions() || Comparison::IsQuick()) {
        times = 1; // counting is exact
    }
    Meter::Start();
    for (int i = 0; i < times; ++i) {
        work();
    }
    const double cost = Meter::Stop(m_strName + '/' + phase) / times;
    Book(phase, cost);
    return cost;
}

void Ledger::Book(const std::string& phase, double cost)
{
    if (std::find(m_pPhases->begin(), m_pPhases->end(), phase) == m_pPhases->end()) {
        m_pPhases->push_back(phase);
    }
    m_costs[phase].push_back(cost);
}

double Ledger::Median(const std::string& phase) const
{
    const auto found = m_costs.find(phase);
    if (found == m_costs.end()) {
        return 0.0;
    }
    std::vector<double> costs = found->second;
    const auto middle = costs.begin() + std::ptrdiff_t(costs.size() / 2);
    std::nth_element(costs.begin(), middle, costs.end());
    return *middle;
}

void Comparison::Add(const Comparison& comparison)
{
    Registry().push_back(comparison);
}

const std::vector<Comparison>& Comparison::All()
{
    return Registry();
}

void Comparison::SetQuick()
{
    g_bQuick = true;
}

bool Comparison::IsQuick()
{
    return g_bQuick;
}

std::vector<Line> Comparison::Run() const
{
    std::vector<std::string> phases;
    std::vector<std::string> ignored;
    std::vector<Ledger> ledgers;
    for (int variant = 0; variant < VariantCount; ++variant) {
        const std::string name = strControl + '/' + kVariantNames[variant];
        ledgers.emplace_back(name, &phases);
        if (rounds[variant] && !g_bQuick && bWarmsUp) {
            // The first of its kind fills caches and loads pictures.
            Ledger first(name, &ignored);
            rounds[variant](first);
        }
    }
    QElapsedTimer timer;
    timer.start();
    const auto isDone = [&](int round) {
        if (g_bQuick || Meter::CountsInstructions()) {
            return round >= 1;
        }
        if (iRounds > 0) {
            return round >= iRounds;
        }
        return round >= kMostRounds || (round >= kFewestRounds && timer.elapsed() >= kMilliseconds);
    };
    for (int round = 0; !isDone(round); ++round) {
        for (int variant = 0; variant < VariantCount; ++variant) {
            if (rounds[variant]) {
                rounds[variant](ledgers[std::size_t(variant)]);
            }
        }
    }

    std::vector<Line> lines;
    for (const std::string& phase : phases) {
        Line line;
        line.strControl = strControl;
        line.strPhase = phase;
        line.dGoal = Goal(*this, phase);
        for (int variant = 0; variant < VariantCount; ++variant) {
            const double cost = ledgers[std::size_t(variant)].Median(phase);
            (Meter::CountsInstructions() ? line.dInstructions : line.dCosts)[variant] = cost;
        }
        lines.push_back(line);
    }
    return lines;
}

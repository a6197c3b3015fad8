#include <benchmarks/Report.h>

#include <benchmarks/Idle.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstdio>

namespace {

constexpr char kEntry[] = "entry of ";
constexpr char kIdle[] = "ten seconds at rest";
constexpr char kMemory[] = "memory";
constexpr char kNone[] = "-";
constexpr double kGrowthGoal = 1.2;
// A hundredth is as exact as the table shows.
constexpr double kRounding = 0.005;

bool IsGrowth(const Line& line)
{
    return line.strPhase.rfind(kEntry, 0) == 0;
}

double Divide(double value, double by)
{
    return by > 0.0 ? value / by : 0.0;
}

std::string Number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return value > 0.0 ? text : kNone;
}

double Ratio(const double (&costs)[VariantCount], Variant variant)
{
    return Divide(costs[VariantOurs], costs[variant]);
}

// Time and instructions may disagree by a little; which of them meets the goal is said.
std::string Verdict(double goal, double time, double instructions)
{
    if (goal <= 0.0) {
        return kNone;
    }
    const bool byTime = time < goal + kRounding;
    const bool byInstructions = instructions < goal + kRounding;
    if (instructions <= 0.0 || time <= 0.0 || byTime == byInstructions) {
        return byTime && byInstructions ? "met" : "above";
    }
    return byTime ? "met by time" : "met by instructions";
}

QJsonArray Values(const double (&costs)[VariantCount])
{
    return {costs[VariantOurs], costs[VariantSameLook], costs[VariantPlain]};
}

QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

void Report::Add(const std::vector<Line>& lines)
{
    m_lines.insert(m_lines.end(), lines.begin(), lines.end());
}

bool Report::AddInstructions(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QJsonArray lines = QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("lines")).toArray();
    for (const QJsonValue& value : lines) {
        const QJsonObject object = value.toObject();
        for (Line& line : m_lines) {
            if (Text(line.strControl) == object.value(QLatin1String("control")).toString() &&
                Text(line.strPhase) == object.value(QLatin1String("phase")).toString()) {
                const QJsonArray counts = object.value(QLatin1String("instructions")).toArray();
                for (int variant = 0; variant < VariantCount; ++variant) {
                    line.dInstructions[variant] = counts.at(variant).toDouble();
                }
            }
        }
    }
    return !lines.isEmpty();
}

bool Report::Write(const QString& name) const
{
    QJsonArray lines;
    for (const Line& line : m_lines) {
        lines.append(QJsonObject{
            {QStringLiteral("control"), Text(line.strControl)},
            {QStringLiteral("phase"), Text(line.strPhase)},
            {QStringLiteral("unit"), line.strPhase == kMemory ? QStringLiteral("bytes") : QStringLiteral("seconds")},
            {QStringLiteral("costs"), Values(line.dCosts)},
            {QStringLiteral("instructions"), Values(line.dInstructions)},
            {QStringLiteral("ratioToSameLook"), Ratio(line.dCosts, VariantSameLook)},
            {QStringLiteral("ratioToPlain"), Ratio(line.dCosts, VariantPlain)},
            {QStringLiteral("goal"), line.dGoal},
        });
    }
    const QJsonObject root{
        {QStringLiteral("qt"), QLatin1String(qVersion())},
        {QStringLiteral("order"),
         QJsonArray{QStringLiteral("ours"), QStringLiteral("same look"), QStringLiteral("plain")}},
        {QStringLiteral("lines"), lines},
        {QStringLiteral("warnings"), QJsonArray::fromStringList(m_warnings)},
    };
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(root).toJson()) > 0;
}

void Report::PrintTables() const
{
    PrintPhases();
    PrintGrowth();
    PrintIdle();
    PrintMemory();
}

void Report::PrintPhases() const
{
    std::printf("\n| control | phase | ours, us | same look: time | instructions | plain: time | instructions | goal | "
                "result |\n|---|---|---|---|---|---|---|---|---|\n");
    for (const Line& line : m_lines) {
        if (IsGrowth(line) || line.strPhase == kIdle || line.strPhase == kMemory) {
            continue;
        }
        const double time = Ratio(line.dCosts, VariantSameLook);
        const double counted = Ratio(line.dInstructions, VariantSameLook);
        std::printf("| %s | %s | %.3g | %s | %s | %s | %s | %s | %s |\n", line.strControl.c_str(),
                    line.strPhase.c_str(), line.dCosts[VariantOurs] * 1e6, Number(time).c_str(),
                    Number(counted).c_str(), Number(Ratio(line.dCosts, VariantPlain)).c_str(),
                    Number(Ratio(line.dInstructions, VariantPlain)).c_str(), Number(line.dGoal).c_str(),
                    Verdict(line.dGoal, time, counted).c_str());
    }
}

std::vector<const Line*> Report::GrowthOf(const std::string& control) const
{
    std::vector<const Line*> growth;
    for (const Line& line : m_lines) {
        if (IsGrowth(line) && line.strControl == control) {
            growth.push_back(&line);
        }
    }
    return growth;
}

void Report::PrintGrowth() const
{
    std::printf("\n| one entry, in shares of one of 100 | of 10 | of 1,000 | of 10,000 | same look, of 10,000 | ours "
                "over same look, of 10,000 | goal | result |\n|---|---|---|---|---|---|---|---|\n");
    std::string control;
    for (const Line& line : m_lines) {
        if (!IsGrowth(line) || line.strControl == control) {
            continue;
        }
        control = line.strControl;
        const std::vector<const Line*> growth = GrowthOf(control);
        const auto share = [&growth](std::size_t size, Variant variant) {
            return size < growth.size() && growth.size() > 1
                       ? Divide(growth[size]->dCosts[variant], growth[1]->dCosts[variant])
                       : 0.0;
        };
        const double ours = share(3, VariantOurs);
        std::printf("| %s | %s | %s | %s | %s | %s | %s | %s |\n", control.c_str(),
                    Number(share(0, VariantOurs)).c_str(), Number(share(2, VariantOurs)).c_str(), Number(ours).c_str(),
                    Number(share(3, VariantSameLook)).c_str(),
                    Number(growth.size() > 3 ? Ratio(growth[3]->dCosts, VariantSameLook) : 0.0).c_str(),
                    Number(kGrowthGoal).c_str(), ours < kGrowthGoal + kRounding ? "met" : "above");
    }
}

void Report::PrintIdle() const
{
    std::printf(
        "\n| ten seconds at rest, processor time in ms | ours | same look | plain | result |\n|---|---|---|---|---|\n");
    for (const Line& line : m_lines) {
        if (line.strPhase == kIdle) {
            std::printf("| %s | %.2f | %.2f | %.2f | %s |\n", line.strControl.c_str(), line.dCosts[VariantOurs] * 1e3,
                        line.dCosts[VariantSameLook] * 1e3, line.dCosts[VariantPlain] * 1e3,
                        line.dCosts[VariantOurs] < std::fmax(Idle::kUnnoticed, line.dCosts[VariantSameLook]) ? "met"
                                                                                                             : "above");
        }
    }
}

void Report::PrintMemory() const
{
    std::printf("\n| memory of an instance on the screen | ours, KiB | same look | plain |\n|---|---|---|---|\n");
    for (const Line& line : m_lines) {
        if (line.strPhase == kMemory) {
            std::printf("| %s | %.1f | %s | %s |\n", line.strControl.c_str(), line.dCosts[VariantOurs] / 1024.0,
                        Number(Ratio(line.dCosts, VariantSameLook)).c_str(),
                        Number(Ratio(line.dCosts, VariantPlain)).c_str());
        }
    }
}

#include <benchmarks/Comparison.h>

#include <CustomControls/machine/CSelectMachineBox.h>

#include <QApplication>
#include <QStringList>

#include <ctime>
#include <memory>

namespace {

constexpr int Few = 100;
constexpr int Many = 10000;
constexpr double GrowthGoal = 1.3;

QStringList Machines(int count, const QString& interfaceName)
{
    QStringList texts;
    texts.reserve(count);
    for (int i = 0; i < count; ++i) {
        texts << QStringLiteral("a*SN%1*b*10.%2.%3.%4*c*%5")
                     .arg(i, 8, 10, QLatin1Char('0'))
                     .arg(i >> 16 & 255)
                     .arg(i >> 8 & 255)
                     .arg(i & 255)
                     .arg(interfaceName);
    }
    return texts;
}

// The processor's time, not the clock's: what other programs take meanwhile would fall on one size and not on the
// other.
double Seconds(CSelectMachineBox& panel, const QStringList& texts)
{
    const std::clock_t start = std::clock();
    for (const QString& text : texts) {
        panel.SetMachineInfo(text, false);
    }
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

std::unique_ptr<CSelectMachineBox> Panel(bool shown)
{
    auto panel = std::make_unique<CSelectMachineBox>(nullptr);
    panel->setAttribute(Qt::WA_DeleteOnClose, false);
    if (shown) {
        panel->show();
        QCoreApplication::processEvents();
    }
    return panel;
}

// A few machines take microseconds: enough panels together make their time worth reading.
template <class Fill>
double OverPanels(int entries, bool shown, const Fill& fill)
{
    const int panels = qMax(1, Many / entries);
    double seconds = 0;
    for (int i = 0; i < panels; ++i) {
        const std::unique_ptr<CSelectMachineBox> panel = Panel(shown);
        seconds += fill(*panel);
    }
    return seconds / panels;
}

double FillNew(int entries, bool shown)
{
    const QStringList texts = Machines(entries, QStringLiteral("wlan0"));
    return OverPanels(entries, shown, [&](CSelectMachineBox& panel) { return Seconds(panel, texts); });
}

double FillKnown(int entries, const QString& secondInterface)
{
    const QStringList first = Machines(entries, QStringLiteral("wlan0"));
    const QStringList second = Machines(entries, secondInterface);
    return OverPanels(entries, false, [&](CSelectMachineBox& panel) {
        Seconds(panel, first);
        return Seconds(panel, second);
    });
}

const Comparison NewMachines = Comparison("machine panel: a new machine, hidden")
                                   .Growth([](int entries) { return FillNew(entries, false); }, Few, Many)
                                   .Goal(GrowthGoal);
const Comparison NewMachinesShown = Comparison("machine panel: a new machine, shown")
                                        .Growth([](int entries) { return FillNew(entries, true); }, Few, Many)
                                        .Goal(GrowthGoal);
const Comparison KnownMachines =
    Comparison("machine panel: a machine seen again")
        .Growth([](int entries) { return FillKnown(entries, QStringLiteral("wlan0")); }, Few, Many)
        .Goal(GrowthGoal);
const Comparison BetterRoutes =
    Comparison("machine panel: a machine on a better route")
        .Growth([](int entries) { return FillKnown(entries, QStringLiteral("eth0")); }, Few, Many)
        .Goal(GrowthGoal);

} // namespace

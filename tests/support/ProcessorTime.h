#pragma once

#include <QtGlobal>

#include <algorithm>
#include <ctime>

/**
 * What a piece of work costs in processor time: other programs may keep this one waiting, and a wall clock counts that.
 *
 * @code
 * const ProcessorTime cost;
 * Fill(list);
 * qInfo("%f us", cost.Microseconds());
 * @endcode
 */
class ProcessorTime
{
public:
    double Microseconds() const { return double(std::clock() - m_start) * 1e6 / CLOCKS_PER_SEC; }

private:
    std::clock_t m_start = std::clock();
};

/**
 * How much more than one of a few entries one of many may cost: caches and allocators have their share, growth with the
 * number of entries would be a factor of the tens or hundreds by which the entries are more.
 */
#ifdef Q_OS_WIN
// The clock is the wall's there and ticks in milliseconds, which a few entries hardly fill.
constexpr double kGrowthAllowed = 20;
#else
constexpr double kGrowthAllowed = 4;
#endif

/** The least that @p cost tells in five calls; what else the process does only ever adds. */
template <typename Cost>
double LeastOfFive(const Cost& cost)
{
    double least = cost();
    for (int round = 1; round < 5; ++round) {
        least = std::min(least, cost());
    }
    return least;
}

#pragma once

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

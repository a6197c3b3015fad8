#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

/**
 * One line of the table of ratios: a control beside what a host would otherwise use.
 *
 * Each variant is a benchmark of its own; the program runs them in random order, several times, and divides medians.
 * Make one at namespace scope in the source of a family:
 *
 * @code
 * const Comparison hover = Comparison("button: hover in and out")
 *                              .Ours([](benchmark::State& state) { ... })
 *                              .SameLook([](benchmark::State& state) { ... })
 *                              .Plain([](benchmark::State& state) { ... })
 *                              .Goal(2.0);
 * @endcode
 */
class Comparison
{
public:
    using Run = std::function<void(benchmark::State&)>;

    explicit Comparison(std::string name);

    /** The control of this library. */
    Comparison& Ours(Run run);
    /** The counterpart that wears the same look by style sheet; the goal is about this one. */
    Comparison& SameLook(Run run);
    /** The counterpart as it comes, for the record. */
    Comparison& Plain(Run run);
    /** The highest ratio to SameLook (for growth, to the small case) that is wanted. */
    Comparison& Goal(double ratio);

    /**
     * How the cost of one entry grows: @p fill adds entries to a fresh object and returns the seconds that it took; the
     * line compares one entry's share at @p large with that at @p small.
     */
    Comparison& Growth(const std::function<double(int entries)>& fill, int small, int large);

    /**
     * For what a clock doesn't show: each function does its work once and returns the seconds to be counted, such as
     * the processor time that a second of waiting takes.
     */
    Comparison& Counted(const std::function<double()>& ours, const std::function<double()>& sameLook);

    /** Runs all of them and prints the table; arguments are those of the benchmark library. */
    static int Main(int argc, char** argv);

private:
    void Register(const char* variant, Run run, int countedIterations) const;

    std::string m_strName;
};

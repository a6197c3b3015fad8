#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

/** The three that are compared. */
enum Variant
{
    VariantOurs,     ///< the control of this library
    VariantSameLook, ///< the toolkit's counterpart, which wears the same look by style sheet; the goal is about this
                     ///< one
    VariantPlain,    ///< the counterpart as it comes, for the record
    VariantCount
};

/** Costs of one variant's phases, in the order in which they were measured first. */
class Ledger
{
public:
    Ledger(std::string name, std::vector<std::string>* phases)
        : m_strName(std::move(name))
        , m_pPhases(phases)
    {}

    /** Does the work so many times, books what one of them costs and returns it. */
    double Measure(const std::string& phase, const std::function<void()>& work, int times = 1);

    /** Books a cost that was found by other means, or what each of so many entries had of it. */
    void Book(const std::string& phase, double cost);

    double Median(const std::string& phase) const;

private:
    std::string m_strName;
    std::vector<std::string>* m_pPhases;
    std::map<std::string, std::vector<double>> m_costs;
};

/** One phase of a comparison, as the table and the JSON show it. */
struct Line
{
    std::string strControl;
    std::string strPhase;
    double dGoal = 0.0; ///< the highest ratio to the same look that is wanted, 0 for none
    double dCosts[VariantCount] = {};
    double dInstructions[VariantCount] = {};
};

/**
 * A control beside its counterpart. A round does the same with each variant, one right after the other, so that what
 * else the machine does falls on all of them; rounds are repeated, and medians compared.
 *
 * @code
 * Comparison::Add({"button", "QPushButton", LifeOf(ours), LifeOf(sameLook), LifeOf(plain)});
 * @endcode
 */
class Comparison
{
public:
    using Round = std::function<void(Ledger&)>;

    std::string strControl;
    std::string strCounterpart;
    Round rounds[VariantCount] = {};
    /** Goals that differ from those which hold for a phase of this name everywhere. */
    std::map<std::string, double> goals = {};
    /** Instead of the usual number of rounds. */
    int iRounds = 0;
    /** A round before the others, which doesn't count. */
    bool bWarmsUp = true;
    /** Whether an executed instruction says anything about it. */
    bool bCountable = true;

    static void Add(const Comparison& comparison);
    static const std::vector<Comparison>& All();

    /** One round for each, to see that everything runs. */
    static void SetQuick();
    static bool IsQuick();

    /** Runs all rounds and returns the lines. */
    std::vector<Line> Run() const;
};

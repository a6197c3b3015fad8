#pragma once

#include <benchmarks/Comparison.h>

#include <QStringList>

/** All lines of a run, as a table and as JSON. */
class Report
{
public:
    void Add(const std::vector<Line>& lines);

    /** Takes the instructions from a report that the same program wrote under callgrind. */
    bool AddInstructions(const QString& file);

    /** A warning of the toolkit or of a control. */
    void AddWarning(const QString& text) { m_warnings.append(text); }
    const QStringList& Warnings() const { return m_warnings; }

    void PrintTables() const;
    bool Write(const QString& file) const;

private:
    std::vector<const Line*> GrowthOf(const std::string& control) const;
    void PrintPhases() const;
    void PrintGrowth() const;
    void PrintIdle() const;
    void PrintMemory() const;

    std::vector<Line> m_lines;
    QStringList m_warnings;
};

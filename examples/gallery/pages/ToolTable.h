#pragma once

#include <CorvaneBase/CorvaneConstants.h>

#include <QList>
#include <QTableView>

class CDelegateLineEdit;
class QStandardItemModel;

/** A tool of the magazine as a job needs it. */
struct MagazineTool
{
    int iNumber;
    int iType;
    double dDiameter; ///< in millimetres
    double dLength;   ///< in millimetres
};

/**
 * A magazine's tools in a host's own table, with the library's delegates: type with picture, and diameter and length
 * that are edited in place. A green frame lies over the tool that the user chose last; tools of a type that the job
 * cannot use are grey and are not chosen.
 */
class ToolTable : public QTableView
{
    Q_OBJECT

public:
    /** @param eligibleTypes the type codes that can be chosen */
    ToolTable(const QList<MagazineTool>& tools, const QList<int>& eligibleTypes, QWidget* parent = nullptr);

    /** The chosen row; -1 as long as none is. */
    int ChosenRow() const { return m_iChosenRow; }
    /** The row's tool, with its measures as they have been edited. */
    MagazineTool Tool(int row) const;
    QString ToolName(int row) const;

Q_SIGNALS:
    void SignalToolChosen(int row);
    void SignalToolMeasured(int row);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void AddTool(const MagazineTool& tool);
    bool IsEligible(int row) const;

    QList<MagazineTool> m_tools;
    QList<int> m_eligibleTypes;
    QStandardItemModel* m_pModel;
    int m_iChosenRow = -1;
};

#pragma once

#include <QList>
#include <QString>
#include <QTableView>

class CDelegateLineEdit;
class CDelegateTableViewItem;
class QLabel;
class QStandardItemModel;

/** A tool as the table shows it. Can be copied bytewise. */
struct ToolRecord
{
    int iToolType = 0;      ///< type code, see CVelmarTableView::GetToolName
    double dLength = 0.0;   ///< in millimetres
    double dDiameter = 0.0; ///< in millimetres
};

/**
 * A fixed table of six tool positions: number, type with picture, diameter and length, the last two edited in place by
 * a double click. A green frame lies over the chosen row; only tools of the right kind can be chosen, the others are
 * grey.
 *
 * A new table shows a sample of tool types and no frame. No signal tells of a change: a dialog listens to
 * CDelegateLineEdit::SignalDataChanged or reads the model.
 *
 * @code
 * auto* table = new CVelmarTableView(dialog, false);
 * table->SetToolList(tools);
 * table->SelectRow(0);
 * @endcode
 */
class CVelmarTableView : public QTableView
{
public:
    /**
     * @param parent   the owner; may be null
     * @param ballMode true: ball end mills (types 3 and 7) can be chosen; false: end mills (type 1)
     */
    CVelmarTableView(QWidget* parent, bool ballMode);
    ~CVelmarTableView() override;

    /**
     * Writes the six rows and keeps the list. The frame stays where it is.
     *
     * @param list record n + 1 belongs to row n, counted from 0, and record 0 is not shown; so a full table takes seven
     * records. A row without a record is emptied, and can be neither chosen by the user nor edited
     */
    void SetToolList(QList<ToolRecord>& list);

    /** The chosen row's record, as SetToolList was given it; a record of zeros when there is none. */
    ToolRecord GetCurrentTool();

    /** Puts the frame on a row from 0 to 5, whether or not its tool could be chosen by the user; others are ignored. */
    void SelectRow(int row);

    /** The picture of a tool type; that of type 1 for an unknown one. */
    QString GetToolIconPath(int type);
    /** The translated name of a tool type; that of type 1 for an unknown one. */
    QString GetToolName(int type);

protected:
    /** Moves the frame along when the row's tool can be chosen. */
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void InitHeaders();
    void AddSampleRows();
    void ShowTool(int row, const ToolRecord& tool);
    void ShowNoTool(int row);
    bool IsEligible(const ToolRecord& tool) const;

    QStandardItemModel* m_pModel = nullptr;
    CDelegateLineEdit* m_pLineDelegate = nullptr;
    CDelegateTableViewItem* m_pItemDelegate = nullptr;
    QList<ToolRecord> m_listTool;
    QLabel* m_pOverlay = nullptr;
    int m_iCurrentRow = 0;
    bool m_bBallMode;
};

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QString>
#include <QWidget>

namespace Ui {
class CVelmarMessageListItem;
}

/** The strategy of a tool's use; it picks the tag of a row. */
enum MachiningType : int
{
    MachiningRough = 0,
    MachiningSemiFinish = 1,
    MachiningFinish = 2,
    MachiningThread = 3,
    MachiningTexture = 4,
};

/**
 * A row of the list in which a job's tools are confirmed: the strategy's tag, the tool's name and size, and its pocket
 * in the magazine; or the titles of these columns. A row is 436 x 35 pixels and keeps that size. CVelmarMessageBox's
 * ShowGCodeConfirmWindow fills its list with them; a host that shows such a list of its own owns its rows through their
 * parent, or hands them to a view as item widgets.
 *
 * @code
 * auto* row = new CVelmarMessageListItem(list);
 * row->SetIsHeader(false);
 * row->SetContent(tr("立铣刀"), "D6 L50", "1", MachiningRough);
 * @endcode
 *
 * Where the columns stand depends on the language that the product has when the row is made.
 */
class CUSTOMCONTROLS_EXPORT CVelmarMessageListItem : public QWidget
{
    Q_OBJECT

public:
    /** @param parent the owner; may be null. A new row shows titles and values at once, until SetIsHeader decides. */
    explicit CVelmarMessageListItem(QWidget* parent);
    ~CVelmarMessageListItem() override;

    /**
     * Fills the row. To be called once for a row: the label of the tag that is not needed is hidden for good.
     *
     * @param name     of the tool; what is wider than 100 pixels (or what the columns leave) is elided, and the tool
     *                 tip has it in full
     * @param detail   the tool's measures in words
     * @param location the pocket in the magazine, shown with a "T" before it
     * @param type     picks the tag; a value outside MachiningType leaves the tag empty
     * @param flag     has no effect
     */
    void SetContent(QString name, QString detail, QString location, MachiningType type, bool flag = false);

    /** True shows the titles of the columns and hides the values and the tag, false the reverse. */
    void SetIsHeader(bool header);

private:
    void InitWidget();
    void MakeRoomForModeTitle();
    void SetToolName(const QString& name);
    void SetTag(MachiningType type);
    void CenterVertically(QWidget* label);

    Ui::CVelmarMessageListItem* ui;
};

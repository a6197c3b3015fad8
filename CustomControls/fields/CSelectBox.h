#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QString>
#include <QWidget>

namespace Ui {
class CSelectBox;
}

/**
 * A row of a parameter panel that switches something: a caption on the left, a mark behind it that explains it on
 * hover or click, and a sliding switch on the right. Owned by its parent.
 *
 * Four pictures come from the host's resources: ":/icon/gcode/ico_gcode_pop_details_nor.png" and
 * ":/icon/gcode/ico_gcode_pop_details_hvoer.png" for the mark, ":/icon/gcode/img_check_on.png" and
 * ":/icon/gcode/img_check_off.png" for the switch. Without them both stay invisible, but work.
 *
 * Keyboard and accessibility: Tab reaches the help mark and the switch, Space shows the help and throws the switch, and
 * a ring shows that Tab has led here. A screen reader meets a check box named by the caption.
 *
 * @code
 * auto* box = new CSelectBox(tr("真空吸附"), true, tr("加工前检查台面是否平整。"), panel);
 * connect(box, &CSelectBox::signalSelectBoxToggled, this, &Panel::SetVacuum);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CSelectBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ Text WRITE SetText)
    Q_PROPERTY(QString hintText READ HintText WRITE SetHintText)
    Q_PROPERTY(bool leftBorder READ HasLeftBorder WRITE OpenLeftBorder)
    Q_PROPERTY(bool checkable READ IsCheckable WRITE SetCheckable)
    /** Not told when SetCheckable() takes it away. */
    Q_PROPERTY(bool checked READ IsChecked WRITE SetChecked NOTIFY signalSelectBoxToggled USER true)

public:
    /** The row of a form: without caption and mark, switched off; @p parent owns it and may be null. */
    explicit CSelectBox(QWidget* parent = nullptr);

    /**
     * @param text     the caption
     * @param checked  the switch at the start, without a signal
     * @param hintText see SetHintText()
     * @param parent   the owner; may be null
     */
    CSelectBox(QString text, bool checked, QString hintText, QWidget* parent);
    ~CSelectBox() override;

    /** Whether the switch is on. */
    bool IsChecked() const;

    /** Switches; a change emits signalSelectBoxToggled(). Nothing happens while the switch cannot be checked. */
    void SetChecked(bool checked);

    /** Whether the switch can be on at all. Taking that away switches it off without a signal. */
    void SetCheckable(bool checkable);

    /** The caption. */
    void SetText(const QString& text);

    /** What the mark explains; an empty text hides the mark. */
    void SetHintText(const QString& text);

    /**
     * A green bar to the left of the caption, which marks the row as the head of a group. A host that gives the box a
     * style sheet keeps "#labelBox{border:none;}" in it, without which the bar isn't drawn.
     */
    void OpenLeftBorder(bool open);

Q_SIGNALS:
    /** The switch changed, by the user or by SetChecked(). A receiver deletes the box by deleteLater(). */
    void signalSelectBoxToggled(bool checked);

private:
    QString Text() const;
    QString HintText() const;
    bool HasLeftBorder() const;
    bool IsCheckable() const;

    Ui::CSelectBox* ui;
};

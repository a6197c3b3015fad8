#pragma once

#include <CustomControls/machine/CFixedSizePopWidget.h>

namespace Ui {
class CVelmarSelectBox;
}

/**
 * The shell of the product's small pop-ups: a title bar of 32 pixels with icon, title, hint and close button, an empty
 * main area for the caller's own widget, and a strip of 55 pixels with one confirm button.
 *
 * A shell deletes itself when it closes (Qt::WA_DeleteOnClose): keep a QPointer to it, or none. It closes by its close
 * button and by Escape; the confirm button only calls SlotConfirm. As it comes, it reads as a pop-up that adds a blank.
 *
 * Keyboard and accessibility: Tab reaches the buttons and what the main area holds, Space presses a button, Escape
 * closes. A screen reader meets a dialog named by the box's title.
 *
 * @code
 * auto* box = new CVelmarSelectBox(mainWindow);
 * box->SetBoxInfo(":/icon/blank.png", tr("Add blank"), tr("Add"));
 * box->SetChildUI(new CBlankEditor(box));
 * box->show();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CVelmarSelectBox : public CFixedSizePopWidget
{
    Q_OBJECT

public:
    /** A shell of 320 by 400 pixels. @param parent the window that it blocks while it is open; null blocks none */
    explicit CVelmarSelectBox(QWidget* parent);
    ~CVelmarSelectBox() override;

    /**
     * Sets what the shell says of itself.
     *
     * @param icon        path of the title's icon, drawn at 16 by 16; a path without a picture shows none
     * @param title       title in the bar
     * @param confirmText caption of the confirm button
     */
    void SetBoxInfo(const QString& icon, const QString& title, const QString& confirmText);

    /** Puts @p child, which the shell owns from then on, into the main area, below those already there. Null is
     * ignored. */
    void SetChildUI(QWidget* child);

    /** Hides the whole confirm strip when @p hide is true. There is no way back: false does nothing. */
    void SetConfirmBtnHide(bool hide);

    /** Hides or shows the close button. Escape closes the shell either way. */
    void SetCloseBtnHide(bool hide);

    /** Fixes the shell's size, in logical pixels; a negative one counts as 0. */
    void SetBaseSize(int width, int height);

    /** Shows @p text behind the title; an empty text hides the hint, which keeps its old text. */
    void SetHintText(const QString& text);

protected:
    QSize GetTitleSize() override;

private Q_SLOTS:
    void on_m_btnClose_clicked();
    void SlotClose() override;

private:
    friend class CVelmarSelectBoxAccessible;

    void SetFont();

    Ui::CVelmarSelectBox* ui;
};

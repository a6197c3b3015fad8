#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QToolButton>

class QPainter;

/**
 * The large button of the ribbon: an icon on top, a caption of one or more lines below it, a down arrow at the right
 * edge when it has a menu, and a rounded green fill that tells its state. It paints itself; no style sheet reaches it.
 *
 * CToolBarItem makes whole rows of them and gives each the width and the number of caption lines of its row; a button
 * made alone does without. Owned by its parent. For a button in a dialog use CVelmarButton.
 *
 * Enabled, it shows its icon's QIcon::On look and disabled its QIcon::Off look, checked or not. The dynamic property
 * "highlight", a colour as text ("#ffcc00", "red"), is painted behind everything else; a text that is no colour paints
 * nothing. The property "textColor" is reserved and changes nothing.
 *
 * Keyboard and accessibility: Tab reaches the button, Space clicks it, and a ring shows that Tab has led here. A screen
 * reader meets a button, or a check box where it is checkable, named by its caption in one line; one with a menu can
 * open it.
 *
 * @code
 * auto* button = new CToolButton(this);
 * button->setText(tr("铣削"));
 * button->setIcon(StatefulIcon::create(":/icon/mill.png", ":/icon/mill_grey.png", 32));
 * button->setIconSize(QSize(32, 32));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(int sharedWidth MEMBER m_nSharedWidth WRITE SetSharedWidth)
    Q_PROPERTY(int sharedTextLines READ SharedTextLines WRITE SetSharedTextLines)

public:
    /** Makes a button without icon and caption; @p parent owns it and may be null. */
    explicit CToolButton(QWidget* parent);

    /** @param width of the widest caption of the row, in pixels; one that is narrower than the icon changes nothing */
    void SetSharedWidth(int width);

    /** @param lines that the row reserves for captions; anything below 1 counts as 1 */
    void SetSharedTextLines(int lines);
    /** What SetSharedTextLines() was last given, 1 before. */
    int SharedTextLines() const;

    /** Makes the button look hovered, or not, and repaints at once. The pointer's next coming or going overrules it. */
    void SetSelected(bool selected);

    /** Takes the hover away and repaints at once: for a button that opened something over itself. */
    void ClearHover();

    /** Turns the solid green fill on, or off again, and repaints at once. */
    void SetFocuseState();

    bool eventFilter(QObject* watched, QEvent* event) override;
    /** Room for icon, shared caption width and shared caption lines; a fixed size without a caption. */
    QSize sizeHint() const override;

Q_SIGNALS:
    /** A mouse button was pressed on the button while it was disabled. Who hears it may delete the button. */
    void SignalBtnDisabledClick();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

public:
    /** True for the small button that stands in stacks. */
    virtual bool IsVerticalBtn();

protected:
    /** The icon's look for the button's state, null when there is none. */
    QPixmap StatePixmap(bool enabled) const;
    /** Fills the whole button with rounded corners. */
    void PaintFill(QPainter& painter, const QColor& color, qreal radius) const;

    int m_nSharedWidth = 0;     ///< see SetSharedWidth()
    int m_nSharedTextLines = 1; ///< see SetSharedTextLines()
    bool m_bHovered = false;    ///< the pointer is on the button, or SetSelected() says so
    bool m_bPressed = false;    ///< a mouse button is down on it
    bool m_bFocusState = false; ///< the solid fill is on

private:
    friend class CToolBar;

    // Another one for each change of any button's lines, and for each turn of the event loop in which bars were shown.
    static quint64 m_nLinesRevision;
};

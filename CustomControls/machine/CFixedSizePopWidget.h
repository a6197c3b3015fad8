#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPoint>
#include <QWidget>

/**
 * A small frameless, window-modal dialog window that is dragged by its title area and that turns Return, Enter and
 * Escape into two operations of its subclass.
 *
 * The creator shows it; who deletes it is the subclass's decision (CVelmarSelectBox deletes itself when it closes). GUI
 * thread only.
 *
 * Accessibility: a dialog named by its window title.
 *
 * @code
 * class CRenameBox : public CFixedSizePopWidget {
 *     QSize GetTitleSize() override { return {width(), 32}; }
 *     void SlotClose() override { close(); }
 * };
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CFixedSizePopWidget : public QWidget
{
    Q_OBJECT

public:
    /** @param parent the window that the dialog blocks while it is open; null blocks none */
    explicit CFixedSizePopWidget(QWidget* parent);
    ~CFixedSizePopWidget() override;

    /** Turns the window's own key presses into SlotConfirm and SlotClose; a key that a child takes never comes here. */
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /**
     * Size of the area at the window's upper left corner whose left press starts a drag. Its very first row and column
     * of pixels don't count.
     */
    virtual QSize GetTitleSize() = 0;

private Q_SLOTS:
    /** What Escape does, key repeats included. */
    virtual void SlotClose() = 0;

protected Q_SLOTS:
    /** What the first press of Return or Enter does; nothing, unless a subclass says otherwise. */
    virtual void SlotConfirm();

protected:
    /** A place for subclasses to ask for a drop shadow. These windows have none, so it does nothing. */
    void AddShadow(QWidget* widget);

private:
    bool m_bDragging;
    QPoint m_ptDragGlobal;
};

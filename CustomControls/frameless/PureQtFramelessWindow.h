#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QList>
#include <QMainWindow>
#include <QPoint>
#include <QRect>

/**
 * A main window without a system frame that moves and resizes itself with plain mouse events, on every system alike.
 *
 * The host derives from it, adds one or more title bars and owns them; nothing native happens and nothing snaps (for
 * that use FramelessMainWindow). Its zones work only where no child widget takes the mouse, so a host leaves a margin
 * of 8 pixels free. It never changes its window state by itself: windowStateChange(false) asks the host to.
 *
 * @code
 * PureQtFramelessWindow window;
 * window.addTitleBar(bar);
 * QObject::connect(&window, &PureQtFramelessWindow::windowStateChange, &window, &QWidget::showNormal);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT PureQtFramelessWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Makes a window without a title bar; @p parent owns it and may be null. */
    explicit PureQtFramelessWindow(QWidget* parent = nullptr);
    ~PureQtFramelessWindow() override;

    /**
     * Watches @p titleBar in the place of the one given last; null only lets go of that. A bar given this way alone
     * neither moves the window nor reports double clicks: addTitleBar does that.
     */
    void setTitleBar(QWidget* titleBar);
    /** Lets @p titleBar move the window and report double clicks. Null and one already added are ignored. */
    void addTitleBar(QWidget* titleBar);
    /** Takes a bar back, however it was given. Null and an unknown one are ignored. */
    void removeTitleBar(QWidget* titleBar);
    /** Takes all bars back. */
    void clearTitleBars();

Q_SIGNALS:
    /** A double click on an added title bar; the host maximises or restores. */
    void titleDblClick();
    /** With false: the window was dragged while maximised, or Escape was released in full screen. */
    void windowStateChange(bool maximized);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum WindowState
    {
        None,
        TitleBar,
        TopLeft,
        TopRight,
        BottomLeft,
        BottomRight,
        Left,
        Right,
        Top,
        Bottom
    };

    WindowState getWindowState(const QPoint& point) const;
    QRect getResizeGeometry(const QPoint& globalPos);
    void updateCursorShape(const QPoint& point);
    void restoreCursor();
    void releaseTitleBar(QWidget* titleBar);
    void forgetTitleBar(QObject* titleBar);

    QList<QWidget*> m_listTitleBars;
    QWidget* m_pTitleBar = nullptr;
    QPoint m_ptDragStart;
    WindowState m_eDragState = None;
    bool m_bDragging = false;
    int m_iBorderWidth = 8;
    bool m_bOverrideCursor = false;

    // Kept with their first values; nothing reads them.
    QRect m_rectNormal;
    bool m_bFirst = true;
};

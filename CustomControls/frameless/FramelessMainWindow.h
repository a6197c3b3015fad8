#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QList>
#include <QMainWindow>
#include <QPoint>
#include <QPointer>
#include <QRect>

struct NativeFrame;

/**
 * A main window without a system frame that still moves, resizes, snaps and maximises through the system.
 *
 * The host derives from it, gives it a title bar of its own and owns both. On Windows the non-client messages are
 * answered by hand; elsewhere the same zones start the system's own move and resize. For a window that needs nothing
 * of the system use PureQtFramelessWindow.
 *
 * @code
 * FramelessMainWindow window;
 * window.setTitleBar(bar); // at the window's top left corner; its child widgets stay clickable
 * QObject::connect(&window, &FramelessMainWindow::windowStateChange, maximizeButton, &QPushButton::setChecked);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT FramelessMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Makes a window without a caption; @p parent owns it and may be null. */
    explicit FramelessMainWindow(QWidget* parent = nullptr);
    ~FramelessMainWindow() override;

    /**
     * Feeds the window a native message, as the toolkit does.
     *
     * @param eventType "windows_generic_MSG"; any other type is left alone
     * @param message   a Win32 MSG; null is left alone
     * @param result    receives the answer where true is returned; null is left alone
     */
    bool PP(const QByteArray& eventType, void* message, qintptr* result);

public Q_SLOTS:
    /** Stores a padding. The edges stay five pixels deep whatever it is. */
    void setPadding(int padding);
    /** Stores a flag that the next change of the window state overwrites; the title bar moves the window all the same.
     */
    void setMoveEnable(bool moveEnable);
    /** Whether the edges resize the window; the next change of the window state overwrites it. */
    void setResizeEnable(bool resizeEnable);
    /**
     * Makes @p titleBar the caption: where no visible child of it lies under the pointer it moves the window. Null
     * takes the caption away. The bar may be deleted at any time.
     */
    void setTitleBar(QWidget* titleBar);

Q_SIGNALS:
    /** Declared for hosts, never emitted: a double click on the caption is the system's, which maximises or restores.
     */
    void titleDblClick();
    /** The window state changed; @p max is true for every state but the normal one. */
    void windowStateChange(bool max);
    /** A press of the left button on the free part of the title bar. */
    void SignalTitleBarMousePressed();
    /** The system moves the window, at each step of the move (Windows only). */
    void SignalMoving();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;

    /** Follows a change of the window state: the two enable flags, then windowStateChange. */
    void doWindowStateChange(QEvent* event);
    /** Kept for derived classes; does nothing. */
    void doResizeEvent(QEvent* event);

private:
    NativeFrame Frame();

    int padding = 0;
    bool moveEnable = true;
    bool resizeEnable = true;
    QWidget* titleBar = nullptr;

    // Kept with their first values; nothing reads them.
    bool mousePressed = false;
    QPoint mousePoint = QPoint(0, 0);
    QRect mouseRect;
    QList<bool> pressedArea;
    QList<QRect> pressedRect;
    int pressedCount = 0;
    Qt::WindowFlags flags;

    QPointer<QWidget> m_pLiveTitleBar; // the host may delete its title bar while it is set
};

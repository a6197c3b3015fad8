#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QDialog>
#include <QList>
#include <QPoint>
#include <QPointer>
#include <QRect>

struct NativeFrame;

/**
 * A dialog without a system frame that still moves, resizes, snaps and maximises through the system.
 *
 * The host derives from it, gives it a title bar of its own and owns both. On Windows the non-client messages are
 * answered by hand; elsewhere the same zones start the system's own move and resize. Escape
 * never closes it; released in a maximised dialog it restores the normal size.
 *
 * @code
 * FramelessDialog window;
 * window.setTitleBar(bar); // at the window's top left corner; its child widgets stay clickable
 * QObject::connect(&window, &FramelessDialog::windowStateChange, maximizeButton, &QPushButton::setChecked);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT FramelessDialog : public QDialog
{
    Q_OBJECT

public:
    /** Makes a window without a caption; @p parent owns it and may be null. */
    explicit FramelessDialog(QWidget* parent = nullptr);
    ~FramelessDialog() override;

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

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;

    /** Follows a change of the window state: the two enable flags, then windowStateChange. */
    void doWindowStateChange(QEvent* event);
    /** Kept for derived classes; does nothing. */
    void doResizeEvent(QEvent* event);

private:
    void resizeEvent(QResizeEvent* event) override;

    NativeFrame Frame();

    int padding = 8;
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

#include <CustomControls/frameless/FramelessMainWindow.h>

#include <CustomControls/platform/FrameRules.h>
#include <CustomControls/platform/NativeFrame.h>

#include <QEvent>

namespace {

constexpr QColor kFrameFill(26, 26, 26);
constexpr int kZones = 8;

// Whether a main window of this process lies across two screens.
bool g_bStraddling = false;

} // namespace

FramelessMainWindow::FramelessMainWindow(QWidget* parent)
    : QMainWindow(parent)
    , pressedArea(kZones, false)
    , pressedRect(kZones)
    , flags(windowFlags())
{
    setWindowFlags(FramelessFlags(windowFlags() | Qt::FramelessWindowHint));
    installEventFilter(this);
    AdoptNativeFrame(
        this, [this] { return Frame(); }, [this] { Q_EMIT SignalTitleBarMousePressed(); });
}

FramelessMainWindow::~FramelessMainWindow() = default;

bool FramelessMainWindow::PP(const QByteArray& eventType, void* message, qintptr* result)
{
    return nativeEvent(eventType, message, result);
}

void FramelessMainWindow::setPadding(int padding)
{
    this->padding = padding;
}

void FramelessMainWindow::setMoveEnable(bool moveEnable)
{
    this->moveEnable = moveEnable;
}

void FramelessMainWindow::setResizeEnable(bool resizeEnable)
{
    this->resizeEnable = resizeEnable;
}

void FramelessMainWindow::setTitleBar(QWidget* titleBar)
{
    this->titleBar = titleBar;
    m_pLiveTitleBar = titleBar;
    if (titleBar) {
        titleBar->installEventFilter(this);
    }
}

bool FramelessMainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this && event->type() == QEvent::WindowStateChange) {
        doWindowStateChange(event);
    }
    return QObject::eventFilter(watched, event);
}

void FramelessMainWindow::showEvent(QShowEvent* event)
{
    setAttribute(Qt::WA_Mapped); // a window counts as mapped before the base handler runs
    QMainWindow::showEvent(event);
}

bool FramelessMainWindow::nativeEvent(const QByteArray& eventType, void* message, qintptr* result)
{
    if (!message || !result) {
        return false; // nothing is told of a message that will not be answered
    }
    const QPointer<FramelessMainWindow> self(this);
    switch (FrameNoticeOf(Frame(), eventType, message)) {
    case FrameNoticeMoving:
        Q_EMIT SignalMoving();
        break;
    case FrameNoticeTitlePressed:
        Q_EMIT SignalTitleBarMousePressed();
        break;
    case FrameNoticeNone:
        break;
    }
    return self && HandleFrameMessage(Frame(), eventType, message, result);
}

void FramelessMainWindow::doWindowStateChange(QEvent* event)
{
    Q_UNUSED(event)
    const bool normal = windowState() == Qt::WindowNoState;
    moveEnable = normal;
    resizeEnable = normal;
    Q_EMIT windowStateChange(!normal);
}

void FramelessMainWindow::doResizeEvent(QEvent* event)
{
    Q_UNUSED(event)
}

NativeFrame FramelessMainWindow::Frame()
{
    return {this, m_pLiveTitleBar, resizeEnable, kFrameFill, &g_bStraddling};
}

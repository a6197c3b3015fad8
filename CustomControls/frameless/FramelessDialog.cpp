#include <CustomControls/frameless/FramelessDialog.h>

#include <CustomControls/platform/FrameRules.h>
#include <CustomControls/platform/NativeFrame.h>

#include <QKeyEvent>

namespace {

// A red, and meant to differ from the dark grey of the main window.
constexpr QColor kFrameFill(226, 26, 26);
constexpr int kZones = 8;

// Whether a dialog of this process lies across two screens.
bool g_bStraddling = false;

} // namespace

FramelessDialog::FramelessDialog(QWidget* parent)
    : QDialog(parent)
    , pressedArea(kZones, false)
    , pressedRect(kZones)
    , flags(windowFlags())
{
    setWindowFlags(FramelessFlags(windowFlags() | Qt::FramelessWindowHint | Qt::CustomizeWindowHint));
    // Off Windows the toolkit takes the frameless hint from a customised dialog that has a minimise button.
    overrideWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    installEventFilter(this);
    AdoptNativeFrame(
        this, [this] { return Frame(); }, [this] { Q_EMIT SignalTitleBarMousePressed(); });
}

FramelessDialog::~FramelessDialog() = default;

void FramelessDialog::setPadding(int padding)
{
    this->padding = padding;
}

void FramelessDialog::setMoveEnable(bool moveEnable)
{
    this->moveEnable = moveEnable;
}

void FramelessDialog::setResizeEnable(bool resizeEnable)
{
    this->resizeEnable = resizeEnable;
}

void FramelessDialog::setTitleBar(QWidget* titleBar)
{
    this->titleBar = titleBar;
    m_pLiveTitleBar = titleBar;
    if (titleBar) {
        titleBar->installEventFilter(this);
    }
}

bool FramelessDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this && event->type() == QEvent::WindowStateChange) {
        doWindowStateChange(event);
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        return true; // so that the dialog never closes on it
    }
    if (event->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        isMaximized()) {
        showNormal();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void FramelessDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
}

void FramelessDialog::showEvent(QShowEvent* event)
{
    setAttribute(Qt::WA_Mapped); // a window counts as mapped before the base handler runs
    QDialog::showEvent(event);
}

bool FramelessDialog::nativeEvent(const QByteArray& eventType, void* message, qintptr* result)
{
    if (!message || !result) {
        return false; // nothing is told of a message that will not be answered
    }
    const QPointer<FramelessDialog> self(this);
    if (FrameNoticeOf(Frame(), eventType, message) == FrameNoticeTitlePressed) {
        Q_EMIT SignalTitleBarMousePressed();
    }
    return self && HandleFrameMessage(Frame(), eventType, message, result);
}

void FramelessDialog::doWindowStateChange(QEvent* event)
{
    Q_UNUSED(event)
    const bool normal = windowState() == Qt::WindowNoState;
    moveEnable = normal;
    resizeEnable = normal;
    Q_EMIT windowStateChange(!normal);
}

void FramelessDialog::doResizeEvent(QEvent* event)
{
    Q_UNUSED(event)
}

NativeFrame FramelessDialog::Frame()
{
    return {this, m_pLiveTitleBar, resizeEnable, kFrameFill, &g_bStraddling};
}

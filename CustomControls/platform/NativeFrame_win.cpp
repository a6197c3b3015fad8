#include <CustomControls/platform/FrameRules.h>
#include <CustomControls/platform/NativeFrame.h>

#include <QCursor>
#include <QEvent>
#include <QWidget>

#include <windows.h>

namespace {

// What hangs over the screen's edges of a maximised window would be cut off without it.
constexpr int kMaximizedMargin = 5;

// Chooses a device context by the window's own style; the system knows the flag, its headers do not name it.
constexpr DWORD kDcxUseStyle = 0x00010000;

QPoint CursorInside(const QWidget* window)
{
    return window->mapFromGlobal(QCursor::pos());
}

const MSG* MessageOf(const QByteArray& eventType, void* message)
{
    return eventType == "windows_generic_MSG" ? static_cast<const MSG*>(message) : nullptr;
}

// A new layout at the moment when a window crosses from one screen to another, and again when it has arrived.
void ForceLayout(QWidget* window)
{
    const int width = window->width();
    window->resize(width + 1, window->height());
    window->resize(width, window->height());
}

void FollowScreens(const NativeFrame& frame)
{
    if (StraddlesScreens(frame.window->geometry())) {
        *frame.straddling = true;
        ForceLayout(frame.window);
    } else if (*frame.straddling) {
        *frame.straddling = false;
        ForceLayout(frame.window);
    }
}

// Covers the frame that the system paints for the styles that snapping needs.
void FillFrame(const NativeFrame& frame, WPARAM update)
{
    const HWND hwnd = reinterpret_cast<HWND>(frame.window->winId());
    const HDC dc = GetDCEx(hwnd, nullptr, DCX_WINDOW | kDcxUseStyle);
    if (!dc) {
        return;
    }
    RECT client;
    RECT outer;
    GetClientRect(hwnd, &client);
    GetWindowRect(hwnd, &outer);
    const POINT onScreen = {outer.left, outer.top};
    MapWindowPoints(nullptr, hwnd, reinterpret_cast<POINT*>(&outer), 2);
    const POINT shift = {-outer.left, -outer.top};
    OffsetRect(&client, shift.x, shift.y);
    OffsetRect(&outer, shift.x, shift.y);

    HRGN region = nullptr;
    constexpr WPARAM kFirstRegion = 2; // 0 and 1 stand for "the whole frame"
    if (update < kFirstRegion) {
        ExcludeClipRect(dc, client.left, client.top, client.right, client.bottom);
    } else {
        region = CreateRectRgn(client.left + onScreen.x, client.top + onScreen.y, client.right + onScreen.x,
                               client.bottom + onScreen.y);
        CombineRgn(region, reinterpret_cast<HRGN>(update), region, RGN_DIFF);
        OffsetRgn(region, -onScreen.x, -onScreen.y);
        ExtSelectClipRgn(dc, region, RGN_AND);
    }
    const HBRUSH brush = CreateSolidBrush(RGB(frame.fill.red(), frame.fill.green(), frame.fill.blue()));
    FillRect(dc, &outer, brush);
    DeleteObject(brush);
    ReleaseDC(hwnd, dc);
    if (region) {
        DeleteObject(region);
    }
}

void AddFrameStyles(QWidget* window)
{
    const HWND hwnd = reinterpret_cast<HWND>(window->winId());
    const LONG style = GetWindowLongW(hwnd, GWL_STYLE);
    SetWindowLongW(hwnd, GWL_STYLE, style | WS_CAPTION | WS_THICKFRAME | WS_MAXIMIZEBOX);
}

/** Gives each later handle the styles too: a change of the window's flags or parent makes a new one. */
class FrameStyles : public QObject
{
public:
    explicit FrameStyles(QWidget* window)
        : QObject(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* window = static_cast<QWidget*>(watched);
        if (event->type() == QEvent::WinIdChange && window->internalWinId() && window->isWindow()) {
            AddFrameStyles(window);
        }
        return false;
    }
};

} // namespace

void AdoptNativeFrame(QWidget* window, std::function<NativeFrame()>, std::function<void()>)
{
    AddFrameStyles(window);
    new FrameStyles(window);
}

FrameNotice FrameNoticeOf(const NativeFrame& frame, const QByteArray& eventType, void* message)
{
    const MSG* native = MessageOf(eventType, message);
    if (!native) {
        return FrameNoticeNone;
    }
    switch (native->message) {
    case WM_MOVING:
        return FrameNoticeMoving;
    case WM_NCLBUTTONDOWN:
        return OnFreeTitleBar(CursorInside(frame.window), frame.titleBar) ? FrameNoticeTitlePressed : FrameNoticeNone;
    default:
        return FrameNoticeNone;
    }
}

bool HandleFrameMessage(const NativeFrame& frame, const QByteArray& eventType, void* message, qintptr* result)
{
    const MSG* native = MessageOf(eventType, message);
    if (!native || !result) {
        return false;
    }
    switch (native->message) {
    case WM_NCCALCSIZE:
        *result = 0; // the client area covers the whole window
        return true;
    case WM_NCHITTEST:
        // The cursor's place now, and not the one in the message: a queued message may be old.
        *result = FrameZoneAt(CursorInside(frame.window), frame.window->size(), frame.resizeEnable, frame.titleBar);
        return *result != FrameZoneNone;
    case WM_GETMINMAXINFO: {
        const int margin = IsZoomed(native->hwnd) ? kMaximizedMargin : 0;
        frame.window->setContentsMargins(margin, margin, margin, margin);
        return false;
    }
    case WM_MOVING:
        FollowScreens(frame);
        return false;
    case WM_NCACTIVATE:
        RedrawWindow(reinterpret_cast<HWND>(frame.window->winId()), nullptr, nullptr, RDW_UPDATENOW);
        return false;
    case WM_NCPAINT:
        FillFrame(frame, native->wParam);
        return false;
    default:
        return false;
    }
}

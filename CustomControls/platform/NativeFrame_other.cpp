#include <CustomControls/platform/FrameRules.h>
#include <CustomControls/platform/NativeFrame.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>

namespace {

Qt::Edges EdgesOf(FrameZone zone)
{
    switch (zone) {
    case FrameZoneLeft:
        return Qt::LeftEdge;
    case FrameZoneRight:
        return Qt::RightEdge;
    case FrameZoneTop:
        return Qt::TopEdge;
    case FrameZoneBottom:
        return Qt::BottomEdge;
    case FrameZoneTopLeft:
        return Qt::TopEdge | Qt::LeftEdge;
    case FrameZoneTopRight:
        return Qt::TopEdge | Qt::RightEdge;
    case FrameZoneBottomLeft:
        return Qt::BottomEdge | Qt::LeftEdge;
    case FrameZoneBottomRight:
        return Qt::BottomEdge | Qt::RightEdge;
    default:
        return {};
    }
}

Qt::CursorShape CursorOf(Qt::Edges edges)
{
    if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge)) {
        return Qt::SizeBDiagCursor;
    }
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

/**
 * Turns the mouse input of a window into the system's move and resize. It listens to the QWindow, so that the edges
 * answer even where a child widget covers them, as they do on a system that asks for hit tests.
 */
class FrameInput : public QObject
{
public:
    FrameInput(QWidget* window, std::function<NativeFrame()> current, std::function<void()> titlePressed)
        : QObject(window)
        , m_pWindow(window)
        , m_current(std::move(current))
        , m_titlePressed(std::move(titlePressed))
    {
        window->installEventFilter(this);
        FollowHandle();
    }

    ~FrameInput() override { ShowEdgeCursor({}); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_pWindow) {
            if (event->type() == QEvent::WinIdChange) {
                FollowHandle();
            }
            return false;
        }
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseMove:
            return Move(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonDblClick:
            return DoubleClick(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            m_bTitlePressed = false;
            m_pressedEdges = {};
            return false;
        case QEvent::Leave:
        case QEvent::Hide:
            ShowEdgeCursor({});
            return false;
        default:
            return false;
        }
    }

private:
    // A change of the window's flags or parent gives it a new handle.
    void FollowHandle()
    {
        if (m_pHandle == m_pWindow->windowHandle()) {
            return;
        }
        if (m_pHandle) {
            m_pHandle->removeEventFilter(this);
        }
        m_pHandle = m_pWindow->windowHandle();
        if (m_pHandle) {
            m_pHandle->installEventFilter(this);
        }
    }

    FrameZone ZoneOf(const QMouseEvent& event) const
    {
        const NativeFrame frame = m_current();
        return FrameZoneAt(event.position().toPoint(), m_pWindow->size(), frame.resizeEnable, frame.titleBar);
    }

    bool Press(const QMouseEvent& event)
    {
        m_bTitlePressed = false;
        m_pressedEdges = {};
        if (event.button() != Qt::LeftButton) {
            return false;
        }
        const FrameZone zone = ZoneOf(event);
        if (const Qt::Edges edges = EdgesOf(zone)) {
            ShowEdgeCursor({});
            m_pressedEdges = edges;
            return m_pHandle->startSystemResize(edges);
        }
        if (zone == FrameZoneCaption) {
            m_bTitlePressed = true;
            m_ptPress = event.globalPosition().toPoint();
            m_titlePressed();
        }
        return false;
    }

    // The move begins with the first real motion: begun at the press, it would swallow a double click. A motion that
    // still arrives here says that the system has not taken the pointer yet, so it is asked again.
    bool Move(const QMouseEvent& event)
    {
        if (!event.buttons().testFlag(Qt::LeftButton)) {
            m_bTitlePressed = false;
            m_pressedEdges = {};
            if (event.buttons() == Qt::NoButton) {
                ShowEdgeCursor(EdgesOf(ZoneOf(event)));
            }
            return false;
        }
        if (m_pressedEdges) {
            return m_pHandle->startSystemResize(m_pressedEdges);
        }
        const QPoint way = event.globalPosition().toPoint() - m_ptPress;
        if (m_bTitlePressed && way.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance()) {
            return m_pHandle->startSystemMove();
        }
        return false;
    }

    bool DoubleClick(const QMouseEvent& event)
    {
        m_bTitlePressed = false;
        if (event.button() != Qt::LeftButton || ZoneOf(event) != FrameZoneCaption) {
            return false;
        }
        m_pWindow->setWindowState(m_pWindow->windowState() ^ Qt::WindowMaximized);
        return true;
    }

    void ShowEdgeCursor(Qt::Edges edges)
    {
        if (edges == m_edges) {
            return;
        }
        if (m_edges) {
            QGuiApplication::restoreOverrideCursor();
        }
        m_edges = edges;
        if (m_edges) {
            QGuiApplication::setOverrideCursor(CursorOf(m_edges));
        }
    }

    QWidget* m_pWindow;
    QPointer<QWindow> m_pHandle;
    std::function<NativeFrame()> m_current;
    std::function<void()> m_titlePressed;
    Qt::Edges m_edges; // the cursor shows these
    Qt::Edges m_pressedEdges;
    bool m_bTitlePressed = false;
    QPoint m_ptPress;
};

} // namespace

void AdoptNativeFrame(QWidget* window, std::function<NativeFrame()> current, std::function<void()> titlePressed)
{
    window->winId(); // the input below comes through the handle
    new FrameInput(window, std::move(current), std::move(titlePressed));
}

FrameNotice FrameNoticeOf(const NativeFrame&, const QByteArray&, void*)
{
    return FrameNoticeNone;
}

bool HandleFrameMessage(const NativeFrame&, const QByteArray&, void*, qintptr*)
{
    return false;
}

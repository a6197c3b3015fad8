#include <CustomControls/platform/FrameRules.h>
#include <CustomControls/platform/NativeFrame.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <QTimer>
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
        m_ask.setSingleShot(true);
        connect(&m_ask, &QTimer::timeout, this, &FrameInput::Ask);
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
            return Release();
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
        Forget();
        if (event.button() != Qt::LeftButton) {
            return false;
        }
        const FrameZone zone = ZoneOf(event);
        if (const Qt::Edges edges = EdgesOf(zone)) {
            ShowEdgeCursor({});
            m_pressedEdges = edges;
            return true;
        }
        if (zone == FrameZoneCaption) {
            m_bTitlePressed = true;
            m_ptPress = event.globalPosition().toPoint();
            const QPointer<QObject> self(this);
            m_titlePressed();
            return !self; // a window that is gone takes no event any more
        }
        return false;
    }

    bool Release()
    {
        if (m_bReleasing) {
            return false;
        }
        const bool onEdge = m_pressedEdges != Qt::Edges();
        Forget();
        return onEdge;
    }

    // A move or resize begins with the first real motion: begun at the press, it would swallow a double click. A motion
    // that still arrives here says that the system has not taken the pointer yet, so it is asked again. It is asked
    // once the events at hand are through: a release at another place comes as a motion first, and what is begun after
    // the release sticks to the pointer.
    bool Move(const QMouseEvent& event)
    {
        if (!event.buttons().testFlag(Qt::LeftButton)) {
            Forget();
            if (event.buttons() == Qt::NoButton) {
                ShowEdgeCursor(EdgesOf(ZoneOf(event)));
            }
            return false;
        }
        const QPoint way = event.globalPosition().toPoint() - m_ptPress;
        if (!m_pressedEdges &&
            (!m_bTitlePressed || way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())) {
            return false;
        }
        m_ask.start();
        return true;
    }

    void Ask()
    {
        if (!m_pHandle) {
            return;
        }
        if (m_pressedEdges) {
            m_pHandle->startSystemResize(m_pressedEdges);
        } else if (m_bTitlePressed && m_pHandle->startSystemMove()) {
            ReleaseWidget();
        }
    }

    // The system may keep the release to itself. The widget that was pressed would wait for it, and take the next press
    // of the mouse wherever that falls.
    void ReleaseWidget()
    {
        if (m_bReleased) {
            return;
        }
        m_bReleased = true;
        m_bReleasing = true;
        const QPointer<QObject> self(this);
        QMouseEvent release(QEvent::MouseButtonRelease, m_pHandle->mapFromGlobal(m_ptPress), m_ptPress, Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_pHandle, &release);
        if (self) {
            m_bReleasing = false;
        }
    }

    void Forget()
    {
        m_ask.stop();
        m_bTitlePressed = false;
        m_bReleased = false;
        m_pressedEdges = {};
    }

    bool DoubleClick(const QMouseEvent& event)
    {
        Forget();
        const FrameZone zone = event.button() == Qt::LeftButton ? ZoneOf(event) : FrameZoneNone;
        if (zone != FrameZoneCaption) {
            return EdgesOf(zone) != Qt::Edges();
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
    bool m_bReleased = false; // the widget below knows that the press is over
    bool m_bReleasing = false;
    QTimer m_ask;
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

#include <CustomControls/platform/ClickThrough.h>

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

/**
 * Sets the flag anew each time the window appears: a window manager that puts windows into frames of its own hears of
 * the change, and not of what was set before it took the window over.
 */
class ClickThroughKeeper : public QObject
{
public:
    explicit ClickThroughKeeper(QWindow* handle)
        : QObject(handle)
    {
        handle->installEventFilter(this);
    }

    void Set(bool through)
    {
        m_bThrough = through;
        Handle()->setFlag(Qt::WindowTransparentForInput, through);
        m_bTold = Handle()->isExposed();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose) {
            const bool exposed = Handle()->isExposed();
            if (exposed && !m_bTold && m_bThrough) {
                Handle()->setFlag(Qt::WindowTransparentForInput, false);
                Handle()->setFlag(Qt::WindowTransparentForInput, true);
            }
            m_bTold = exposed;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWindow* Handle() const { return static_cast<QWindow*>(parent()); }

    bool m_bThrough = false;
    bool m_bTold = false;
};

} // namespace

void SetClickThrough(QWidget* window, bool through)
{
    if (!window) {
        return;
    }
    window->winId(); // makes the handle that carries the flag
    // On the handle and not on the widget, which would hide itself and be made anew.
    QWindow* handle = window->window()->windowHandle();
    if (!handle) {
        return;
    }
    const QObjectList& children = handle->children();
    const auto found = std::find_if(children.begin(), children.end(), [](const QObject* child) {
        return dynamic_cast<const ClickThroughKeeper*>(child) != nullptr;
    });
    ClickThroughKeeper* keeper =
        found != children.end() ? static_cast<ClickThroughKeeper*>(*found) : new ClickThroughKeeper(handle);
    keeper->Set(through);
}

#include <CorvaneBase/CorvaneSignalHelper.h>

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

CorvaneSignalHelper* CorvaneSignalHelper::instance()
{
    static CorvaneSignalHelper helper;
    return &helper;
}

CorvaneSignalHelper::CorvaneSignalHelper() = default;

bool CorvaneSignalHelper::InCheckingEnvironment() const
{
    return m_bInChecking;
}

void CorvaneSignalHelper::SetInCheckingEnvironment(bool checking)
{
    m_bInChecking = checking;
}

void CorvaneSignalHelper::AdjustWindowPosition(QWidget* widget)
{
    if (!widget || !widget->isWindow()) {
        return;
    }
    const QWidget* parent = widget->parentWidget() ? widget->parentWidget()->window() : nullptr;
    const QWidget* over = nullptr;
    for (const QWidget* candidate : {parent, static_cast<const QWidget*>(QApplication::activeWindow())}) {
        if (candidate && candidate != widget && candidate->isVisible() && !candidate->isMinimized()) {
            over = candidate;
            break;
        }
    }
    const QRect anchor = over ? over->frameGeometry() : QRect();
    QScreen* screen = QGuiApplication::screenAt(over ? anchor.center() : QCursor::pos());
    if (!screen) {
        screen = over ? over->screen() : QGuiApplication::primaryScreen();
    }
    if (!screen) {
        return;
    }
    const QRect available = screen->availableGeometry();
    const QRect room = over ? anchor : available;
    const QMargins frame = widget->windowHandle() ? widget->windowHandle()->frameMargins() : QMargins();
    QRect place(room.topLeft(), widget->size().grownBy(frame));
    place.translate((room.width() - place.width()) / 2, (room.height() - place.height()) / 2);
    // The left and top edges win where a window is larger than the screen: its title stays in reach.
    place.moveLeft(qMax(available.left(), qMin(place.left(), available.right() + 1 - place.width())));
    place.moveTop(qMax(available.top(), qMin(place.top(), available.bottom() + 1 - place.height())));
    widget->move(place.topLeft());
}

#include <CorvaneBase/CorvaneSignalHelper.h>

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

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
    if (!widget) {
        return;
    }
    QRect anchor;
    QWidget* over = widget->parentWidget() ? widget->parentWidget()->window() : QApplication::activeWindow();
    if (over && over != widget && over->isVisible()) {
        anchor = over->frameGeometry();
    }
    QScreen* screen = anchor.isValid() ? over->screen() : QGuiApplication::screenAt(QCursor::pos());
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    if (!screen) {
        return;
    }
    const QRect available = screen->availableGeometry();
    if (!anchor.isValid()) {
        anchor = available;
    }
    QRect place(QPoint(), widget->size());
    place.moveCenter(anchor.center());
    // The left and top edges win where a window is larger than the screen: its title stays in reach.
    place.moveLeft(qMax(available.left(), qMin(place.left(), available.right() + 1 - place.width())));
    place.moveTop(qMax(available.top(), qMin(place.top(), available.bottom() + 1 - place.height())));
    widget->move(place.topLeft());
}

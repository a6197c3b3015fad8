#include <benchmarks/IdleApplication.h>

#include <benchmarks/Meter.h>

#include <QWidget>
#include <QWindow>

void IdleApplication::Watch(QWidget* window, double* seconds)
{
    m_hashAccounts.insert(window, seconds);
    if (window->windowHandle()) {
        m_hashAccounts.insert(window->windowHandle(), seconds);
    }
}

void IdleApplication::SetWatching(bool watching)
{
    m_bWatching = watching;
    if (!watching) {
        m_hashAccounts.clear();
    }
}

bool IdleApplication::notify(QObject* receiver, QEvent* event)
{
    // An event within an event belongs to the outer one.
    double* const account = m_bWatching ? AccountOf(receiver) : nullptr;
    if (!account) {
        return QApplication::notify(receiver, event);
    }
    m_bWatching = false;
    Meter::Start();
    const bool handled = QApplication::notify(receiver, event);
    *account += Meter::Stop("idle");
    m_bWatching = true;
    return handled;
}

double* IdleApplication::AccountOf(QObject* receiver) const
{
    for (const QObject* object = receiver; object; object = object->parent()) {
        if (double* account = m_hashAccounts.value(object)) {
            return account;
        }
    }
    return nullptr;
}

#pragma once

#include <QApplication>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/** The first visible window of the class, or null: what a dialog that runs a loop of its own is found by. */
template <class Widget>
Widget* VisibleTopLevel()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<Widget*>(widget); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

/** Does something once, as soon as a condition holds, from within whatever loop is running. */
class Once : public QObject
{
public:
    Once(std::function<bool()> condition, std::function<void()> deed)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, condition = std::move(condition), deed = std::move(deed)] {
            if (condition()) {
                m_timer.stop();
                done = true;
                deed();
            }
        });
        m_timer.start(5);
    }
    bool done = false;

private:
    QTimer m_timer;
};

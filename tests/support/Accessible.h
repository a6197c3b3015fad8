#pragma once

#include <QAccessible>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/** What assistive technology is told while this object lives, which by itself makes it count as active. */
class AccessibleEvents
{
public:
    struct Event
    {
        QPointer<QObject> pObject;
        QAccessible::Event eType;
        QString strName; ///< of the object, at that moment
    };

    enum Listening
    {
        Active,
        Silent ///< nobody listens: what is told all the same is waste
    };

    explicit AccessibleEvents(Listening listening = Active)
    {
        s_events.clear();
        m_previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            QAccessibleInterface* accessible = event->accessibleInterface();
            s_events.append(
                {event->object(), event->type(), accessible ? accessible->text(QAccessible::Name) : QString()});
        });
        QAccessible::setActive(listening == Active);
    }
    ~AccessibleEvents()
    {
        QAccessible::setActive(false);
        QAccessible::installUpdateHandler(m_previous);
        s_events.clear();
    }
    Q_DISABLE_COPY_MOVE(AccessibleEvents)

    int Count(const QObject* object, QAccessible::Event type) const
    {
        int count = 0;
        for (const Event& event : s_events) {
            count += event.pObject == object && event.eType == type ? 1 : 0;
        }
        return count;
    }
    const QList<Event>& All() const { return s_events; }
    void Clear() { s_events.clear(); }

private:
    static inline QList<Event> s_events;
    QAccessible::UpdateHandler m_previous = nullptr;
};

inline QAccessibleInterface* Accessible(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

inline QString AccessibleName(QObject* object)
{
    return Accessible(object)->text(QAccessible::Name);
}

inline void Act(QObject* object, const QString& action)
{
    Accessible(object)->actionInterface()->doAction(action);
}

inline QStringList Actions(QObject* object)
{
    return Accessible(object)->actionInterface()->actionNames();
}

inline QString PressAction()
{
    return QAccessibleActionInterface::pressAction();
}

#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

#include <QList>
#include <QObject>
#include <QPointer>

/** What the library tells of its controls while this object lives. Needs the library's objects. */
class AccessibleEvents
{
public:
    struct Event
    {
        QPointer<QObject> pObject;
        QAccessible::Event eType;
        QString strName; ///< of the object, at that moment
    };

    AccessibleEvents()
    {
        s_events.clear();
        SetTellListener([](QAccessibleEvent* event) {
            QAccessibleInterface* accessible = event->accessibleInterface();
            s_events.append(
                {event->object(), event->type(), accessible ? accessible->text(QAccessible::Name) : QString()});
        });
    }
    ~AccessibleEvents() { SetTellListener(nullptr); }
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

private:
    static inline QList<Event> s_events;
};

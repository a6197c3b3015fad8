#pragma once

#include <QAccessible>
#include <QObject>

/** What assistive technology asks and does, in short. */

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

#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>

/**
 * The one place where the controls' accessible interfaces are known to the toolkit. The toolkit asks it by the names of
 * an object's classes, from the most derived on, so a host's subclass of a control has the control's interface unless
 * the host brings one of its own. Nobody asks while no assistive technology is active.
 */
namespace AccessibleFactory {

using Creator = QAccessibleInterface* (*)(QObject*);

void Add(const QString& className, Creator creator);
void Remove(const QString& className);

/**
 * Makes the interface of a control known while the library is loaded. It stands in the control's own source, so that a
 * program that links the library statically has it whenever it has the control.
 */
template <class Control, class Interface>
struct Registration
{
    Registration()
    {
        Add(QString::fromLatin1(Control::staticMetaObject.className()), [](QObject* object) -> QAccessibleInterface* {
            auto* control = qobject_cast<Control*>(object);
            return control ? new Interface(control) : nullptr;
        });
    }
    ~Registration() { Remove(QString::fromLatin1(Control::staticMetaObject.className())); }
    Q_DISABLE_COPY_MOVE(Registration)
};

} // namespace AccessibleFactory

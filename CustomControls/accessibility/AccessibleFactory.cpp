#include <CustomControls/accessibility/AccessibleFactory.h>

#include <QHash>

namespace {

QHash<QString, AccessibleFactory::Creator>& Creators()
{
    static QHash<QString, AccessibleFactory::Creator> creators;
    return creators;
}

QAccessibleInterface* CreateInterface(const QString& className, QObject* object)
{
    const AccessibleFactory::Creator creator = Creators().value(className);
    return creator && object ? creator(object) : nullptr;
}

} // namespace

void AccessibleFactory::Add(const QString& className, Creator creator)
{
    if (Creators().isEmpty()) {
        QAccessible::installFactory(CreateInterface);
    }
    Creators().insert(className, creator);
}

void AccessibleFactory::Remove(const QString& className)
{
    // The last one takes the factory away: the library may be unloaded before the toolkit.
    if (Creators().remove(className) && Creators().isEmpty()) {
        QAccessible::removeFactory(CreateInterface);
    }
}

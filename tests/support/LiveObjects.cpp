#include <tests/support/LiveObjects.h>

#include <QMutex>
#include <QObject>
#include <QSet>

// The toolkit's hooks for introspection tools: a table whose layout has been kept since 5.4, without a public header.
QT_BEGIN_NAMESPACE
extern quintptr Q_CORE_EXPORT qtHookData[];
QT_END_NAMESPACE

namespace {

constexpr int kAddObject = 3;
constexpr int kRemoveObject = 4;

// Never deleted: objects go as late as in the destructors of static ones.
struct Registry
{
    QMutex mutex;
    QSet<const QObject*> objects;
};
Registry* const g_registry = new Registry;

void Add(QObject* object)
{
    const QMutexLocker lock(&g_registry->mutex);
    g_registry->objects.insert(object);
}

void Remove(QObject* object)
{
    const QMutexLocker lock(&g_registry->mutex);
    g_registry->objects.remove(object);
}

} // namespace

void LiveObjects::Watch()
{
    qtHookData[kAddObject] = reinterpret_cast<quintptr>(&Add);
    qtHookData[kRemoveObject] = reinterpret_cast<quintptr>(&Remove);
}

QMap<QByteArray, int> LiveObjects::Count()
{
    const QMutexLocker lock(&g_registry->mutex);
    QMap<QByteArray, int> counts;
    for (const QObject* object : std::as_const(g_registry->objects)) {
        ++counts[object->metaObject()->className()];
    }
    return counts;
}

#include "LiveObjects.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QHash>
#include <QMutex>
#include <QThread>
#include <QWidget>

#include <algorithm>

// The hooks that the toolkit keeps for inspectors; their places in the table are part of its interface.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace {
constexpr int AddObjectHook = 3;
constexpr int RemoveObjectHook = 4;

struct Registry
{
    QMutex mutex;
    QHash<QObject*, quint64> numbers;
    quint64 iNext = 1;
};

// Objects outlive everything static.
Registry* TheRegistry()
{
    static auto* registry = new Registry;
    return registry;
}

void Add(QObject* object)
{
    Registry* registry = TheRegistry();
    const QMutexLocker lock(&registry->mutex);
    registry->numbers.insert(object, registry->iNext++);
}

void Remove(QObject* object)
{
    Registry* registry = TheRegistry();
    const QMutexLocker lock(&registry->mutex);
    registry->numbers.remove(object);
}

QList<QPair<quint64, QObject*>> OfThisThread()
{
    Registry* registry = TheRegistry();
    const QMutexLocker lock(&registry->mutex);
    QList<QPair<quint64, QObject*>> objects;
    for (auto it = registry->numbers.cbegin(); it != registry->numbers.cend(); ++it) {
        if (it.key()->thread() == QThread::currentThread()) {
            objects.append({it.value(), it.key()});
        }
    }
    std::sort(objects.begin(), objects.end());
    return objects;
}

int TimerCount(QObject* object)
{
    return int(QAbstractEventDispatcher::instance()->registeredTimers(object).size());
}
} // namespace

void LiveObjects::Install()
{
    TheRegistry();
    qtHookData[AddObjectHook] = reinterpret_cast<quintptr>(&Add);
    qtHookData[RemoveObjectHook] = reinterpret_cast<quintptr>(&Remove);
}

quint64 LiveObjects::Mark()
{
    Registry* registry = TheRegistry();
    const QMutexLocker lock(&registry->mutex);
    return registry->iNext;
}

LiveObjects::Counts LiveObjects::Count()
{
    Counts counts;
    for (const QWidget* widget : QApplication::allWidgets()) {
        // The toolkit makes one widget that stands for the desktop, when it first needs it.
        counts.iWidgets += widget->windowType() != Qt::Desktop;
    }
    counts.iWindows = int(QApplication::topLevelWidgets().size());
    for (const auto& [number, object] : OfThisThread()) {
        counts.iTimers += TimerCount(object);
    }
    return counts;
}

QList<QByteArray> LiveObjects::Younger(quint64 mark)
{
    QList<QByteArray> lines;
    for (const auto& [number, object] : OfThisThread()) {
        const int timers = TimerCount(object);
        if (number < mark || (!object->isWidgetType() && timers == 0)) {
            continue;
        }
        QByteArray line;
        for (const QObject* at = object; at; at = at->parent()) {
            line += (line.isEmpty() ? "" : " < ") + QByteArray(at->metaObject()->className()) + " \"" +
                    at->objectName().toUtf8() + "\"";
        }
        if (timers > 0) {
            line += " with " + QByteArray::number(timers) + " timers";
        }
        lines.append(line);
    }
    return lines;
}

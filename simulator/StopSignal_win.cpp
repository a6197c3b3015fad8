#include <simulator/StopSignal.h>

#include <QMutex>

#include <windows.h>

namespace {

QMutex g_mutex;
StopSignal* g_stopSignal = nullptr;

// Runs on a thread of the system's own.
BOOL WINAPI OnConsoleEvent(DWORD)
{
    const QMutexLocker lock(&g_mutex);
    if (!g_stopSignal) {
        return FALSE;
    }
    QMetaObject::invokeMethod(g_stopSignal, &StopSignal::SignalStop, Qt::QueuedConnection);
    return TRUE;
}

} // namespace

StopSignal::StopSignal(QObject* parent)
    : QObject(parent)
{
    const QMutexLocker lock(&g_mutex);
    g_stopSignal = this;
    SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

StopSignal::~StopSignal()
{
    SetConsoleCtrlHandler(OnConsoleEvent, FALSE);
    const QMutexLocker lock(&g_mutex);
    g_stopSignal = nullptr;
}

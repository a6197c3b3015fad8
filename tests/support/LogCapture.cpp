#include <tests/support/LogCapture.h>

#include <CorvaneBase/CDebugLog.h>

#include <QMutex>

namespace {
QMutex g_mutex;
QStringList g_lines;
} // namespace

LogCapture::LogCapture()
{
    CDebugLog::SetListener([](const QString& line) {
        const QMutexLocker lock(&g_mutex);
        g_lines.append(line);
    });
}

LogCapture::~LogCapture()
{
    CDebugLog::SetListener({});
    Take();
}

QStringList LogCapture::Lines() const
{
    const QMutexLocker lock(&g_mutex);
    return g_lines;
}

QStringList LogCapture::Take()
{
    const QMutexLocker lock(&g_mutex);
    return std::exchange(g_lines, {});
}

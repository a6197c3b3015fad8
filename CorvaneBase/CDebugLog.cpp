#include <CorvaneBase/CDebugLog.h>

#include <CorvaneBase/ThreadSafety_p.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QScopedValueRollback>
#include <QStandardPaths>

#include <memory>

namespace {

constexpr qint64 kRotateBytes = qint64(5) * 1024 * 1024;

using Listener = std::function<void(const QString&)>;

class LogWriter
{
public:
    void SetPath(const QString& path)
    {
        const CheckedLocker lock(m_mutex);
        m_file.close();
        m_path = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
        m_rotateAt = kRotateBytes;
    }

    QString Path()
    {
        const CheckedLocker lock(m_mutex);
        return CurrentPath();
    }

    void Write(const QString& line)
    {
        const CheckedLocker lock(m_mutex);
        // The offset makes lines comparable that were written before and after a change of the clock.
        const QDateTime now = QDateTime::currentDateTime();
        const QString time = now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODateWithMs);
        const QByteArray bytes = (time + QLatin1Char(' ') + line + QLatin1Char('\n')).toUtf8();
        if (!IsOpenInPlace() && !Open()) {
            return;
        }
        const qint64 size = m_file.size();
        if (size > 0 && size + bytes.size() > m_rotateAt && !Rotate(size)) {
            return;
        }
        m_file.write(bytes);
    }

private:
    QString CurrentPath() const CORVANE_REQUIRES(m_mutex)
    {
        if (!m_path.isEmpty()) {
            return m_path;
        }
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
        return folder.filePath(QStringLiteral("log/CorvaneBase.log"));
    }

    // The file may have been removed, or moved away by another process: then the path leads to nothing or to another
    // file.
    bool IsOpenInPlace() const CORVANE_REQUIRES(m_mutex)
    {
        if (!m_file.isOpen()) {
            return false;
        }
        const QFileInfo inPlace(m_file.fileName());
        return inPlace.exists() && inPlace.size() == m_file.size();
    }

    bool Open() CORVANE_REQUIRES(m_mutex)
    {
        m_file.close();
        m_file.setFileName(CurrentPath());
        // Unbuffered: each line is one write, so that it is in the file when the program crashes right after it.
        const QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
        return m_file.open(mode) || (QDir().mkpath(QFileInfo(m_file.fileName()).absolutePath()) && m_file.open(mode));
    }

    bool Rotate(qint64 size) CORVANE_REQUIRES(m_mutex)
    {
        m_file.close();
        const QString path = m_file.fileName();
        const QString older = path + QStringLiteral(".1");
        QFile::remove(older);
        // Where the file cannot be moved (another process holds it), it goes on growing and is tried again much later.
        m_rotateAt = QFile::rename(path, older) ? kRotateBytes : size + kRotateBytes;
        return Open();
    }

    CheckedMutex<QMutex> m_mutex;
    QString m_path CORVANE_GUARDED_BY(m_mutex);
    QFile m_file CORVANE_GUARDED_BY(m_mutex);
    qint64 m_rotateAt CORVANE_GUARDED_BY(m_mutex) = kRotateBytes;
};

class LogListener
{
public:
    void Set(Listener listener)
    {
        const CheckedLocker lock(m_mutex);
        m_listener = listener ? std::make_shared<Listener>(std::move(listener)) : nullptr;
    }

    void Tell(const QString& line)
    {
        thread_local bool telling = false;
        if (telling) {
            return;
        }
        const CheckedLocker lock(m_mutex);
        // Kept alive here: a listener may replace itself.
        const std::shared_ptr<Listener> listener = m_listener;
        if (listener) {
            const QScopedValueRollback<bool> guard(telling, true);
            (*listener)(line);
        }
    }

private:
    CheckedMutex<QRecursiveMutex> m_mutex;
    std::shared_ptr<Listener> m_listener CORVANE_GUARDED_BY(m_mutex);
};

// Both live until the process ends: a destructor that runs at exit may still log.
LogWriter& Writer()
{
    static auto* const writer = new LogWriter;
    return *writer;
}

LogListener& TheListener()
{
    static auto* const listener = new LogListener;
    return *listener;
}

} // namespace

void CDebugLog::AddLog(const QString& line)
{
    Writer().Write(line);
    TheListener().Tell(line);
}

void CDebugLog::SetLogFile(const QString& path)
{
    Writer().SetPath(path);
}

QString CDebugLog::LogFile()
{
    return Writer().Path();
}

void CDebugLog::SetListener(std::function<void(const QString& line)> listener)
{
    TheListener().Set(std::move(listener));
}

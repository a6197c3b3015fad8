#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QString>

#include <functional>

/**
 * The product's log: one unlevelled line per event, each with its time, in one file.
 *
 * Every operation may be called from any thread. A log that cannot be written loses its lines and tells nobody: a control
 * must never fail because of its log.
 *
 * @code
 * CDebugLog::SetLogFile(QDir::home().filePath("host.log"));
 * CDebugLog::AddLog(QStringLiteral("host started"));
 * @endcode
 */
class CORVANEBASE_EXPORT CDebugLog
{
public:
    /** Appends @p line to the log. Line feeds in it are written as they stand. */
    static void AddLog(const QString& line);

    /**
     * Sends the log to another file from the next line on. Its folder is made when it is missing. An empty path restores
     * the default, "log/CorvaneBase.log" in the user's application data folder. At 5 MiB the file becomes "<path>.1" and
     * a new one is begun.
     */
    static void SetLogFile(const QString& path);

    /** The file that lines go to. */
    static QString LogFile();

    /**
     * Lets @p listener see each raw line, without its time, on the thread that logged it; an empty function removes it.
     * The listener may itself log; such a line is written and not handed to it again.
     */
    static void SetListener(std::function<void(const QString& line)> listener);
};

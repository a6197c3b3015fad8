#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QString>

#include <functional>

/**
 * The product's log: one unlevelled line per event, each with its time, in one file.
 *
 * Every operation may be called from any thread. A log that cannot be written loses its lines and tells nobody: a
 * control must never fail because of its log. All operations are static: nobody makes or owns a log. The file is opened
 * with the first line and let go of at the end of the program.
 *
 * @code
 * CDebugLog::SetLogFile(QDir::home().filePath("host.log"));
 * CDebugLog::AddLog(QStringLiteral("host started"));
 * @endcode
 */
class CORVANEBASE_EXPORT CDebugLog
{
public:
    /**
     * Appends @p line to the log, in UTF-8, behind the local time with its offset (2024-05-06T07:08:09.123+08:00) and a
     * blank. Line feeds in it are written as they stand. The line is in the file when the call returns.
     */
    static void AddLog(const QString& line);

    /**
     * Sends the log to another file from the next line on. Its folder is made when it is missing. An empty path
     * restores the default, "log/CorvaneBase.log" in the user's application data folder; a relative one starts from the
     * current folder. Before the file grows beyond 5 MiB it becomes "<path>.1" and a new one is begun. A file or folder
     * that vanishes while the program runs is made anew.
     */
    static void SetLogFile(const QString& path);

    /** The file that lines go to. */
    static QString LogFile();

    /**
     * Lets @p listener see each raw line, without its time, on the thread that logged it; an empty function removes it.
     * It is called for one line at a time, after that line was written, and no longer once this call has returned. It
     * may itself log (such a line is written and not handed to it again) and may replace or remove itself; it must not
     * wait for another thread.
     */
    static void SetListener(std::function<void(const QString& line)> listener);
};

#pragma once

#include <QtGlobal>

#include <atomic>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <string>
#include <thread>

class QByteArray;
class QString;

/**
 * What the monkey did last, for whoever has to find out why the program died of it: the last events are printed when
 * the process ends by a signal, a sanitizer, a warning of the toolkit or a hang. Also the judge of the latter two.
 */
namespace MonkeyRecord {
/** Takes the toolkit's messages and the process's deaths from here on. */
void Install();

/** Names what is going on, e.g. "seed 1, page buttons". */
void SetScene(const QString& scene);

/** Begins the event of this number. */
void BeginEvent(int number);

/** Prints every event as it comes; two runs that differ can be compared. */
void Trace();

/** Says what the event is. */
void Note(const QByteArray& event);

/** A number that differs when the events since the scene began do. */
quint32 Digest();

/** Prints the scene, the reason and the last events. */
void Print(const char* reason);

/** Warnings of the toolkit so far, equal ones of a scene counted once. */
int WarningCount();
} // namespace MonkeyRecord

/**
 * Ends the process, with the GUI thread's stack, when one event takes too long: two seconds of computing, or five of
 * being blocked. Time in which the thread could run and other programs had the processor counts for neither, so both
 * limits hold on a busy machine too.
 */
class MonkeyWatchdog
{
public:
    /** To be made in the GUI thread. */
    MonkeyWatchdog();
    ~MonkeyWatchdog();

    /** The GUI thread has got somewhere. */
    static void Feed();

private:
    void Watch();

    pthread_t m_guiThread;
    clockid_t m_guiClock = 0;
    std::string m_strSchedule; ///< the file in which the system tells how long that thread waited for a processor
    std::mutex m_mutex;
    std::condition_variable m_stopped;
    bool m_bStop = false;
    std::thread m_thread; // last: it starts when everything else is there
};

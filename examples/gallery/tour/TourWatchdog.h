#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

/**
 * Ends the program when the tour hangs: a step that blocks the GUI thread can be noticed only from another one. Lives
 * on a thread of its own; Feed is called while all is well.
 */
class TourWatchdog
{
public:
    /** @param hungMs without Feed, or @param totalMs in all, end the program with exit code 3 */
    TourWatchdog(int hungMs, int totalMs);
    ~TourWatchdog();

    void Feed();

private:
    void Watch(int hungMs, int totalMs);

    std::atomic_bool m_bFed{true};
    bool m_bStop = false;
    std::mutex m_mutex;
    std::condition_variable m_stopped;
    std::thread m_thread;
};

#include "TourWatchdog.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {
constexpr int ExitHung = 3;
}

TourWatchdog::TourWatchdog(int hungMs, int totalMs)
    : m_thread([this, hungMs, totalMs] { Watch(hungMs, totalMs); })
{}

TourWatchdog::~TourWatchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_bStop = true;
    }
    m_stopped.notify_one();
    m_thread.join();
}

void TourWatchdog::Feed()
{
    m_bFed = true;
}

void TourWatchdog::Watch(int hungMs, int totalMs)
{
    using namespace std::chrono;
    const auto end = steady_clock::now() + milliseconds(totalMs);
    std::unique_lock lock(m_mutex);
    while (!m_stopped.wait_for(lock, milliseconds(hungMs), [this] { return m_bStop; })) {
        if (!m_bFed.exchange(false) || steady_clock::now() > end) {
            std::fputs("tour FAILED: the program hangs, or the tour takes too long\n", stderr);
            std::fflush(nullptr);
            std::_Exit(ExitHung);
        }
    }
}

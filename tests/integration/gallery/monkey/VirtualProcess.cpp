#include "VirtualProcess.h"

#include <cerrno>
#include <ctime>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {
constexpr long long NanosecondsPerSecond = 1000LL * 1000 * 1000;
constexpr long long NanosecondsPerMs = 1000LL * 1000;
// The same in every run, and later than anything that came before: the toolkit lets timers fire at round times.
constexpr timespec StartMonotonic = {1000 * 1000 * 1000, 0};
constexpr timespec StartRealtime = {1800 * 1000 * 1000, 0};

thread_local bool t_bVirtual = false;
long long s_iNanoseconds = 0; ///< read and written by the virtual thread alone

int RealClock(clockid_t id, timespec* time)
{
    return int(syscall(SYS_clock_gettime, id, time));
}

timespec Later(const timespec& start)
{
    const long long sum = start.tv_nsec + s_iNanoseconds;
    return {start.tv_sec + time_t(sum / NanosecondsPerSecond), long(sum % NanosecondsPerSecond)};
}
} // namespace

extern "C" {
__attribute__((visibility("default"))) int clock_gettime(clockid_t id, timespec* time) noexcept
{
    if (t_bVirtual && (id == CLOCK_MONOTONIC || id == CLOCK_REALTIME)) {
        *time = Later(id == CLOCK_MONOTONIC ? StartMonotonic : StartRealtime);
        return 0;
    }
    return RealClock(id, time);
}

__attribute__((visibility("default"))) int gettimeofday(timeval* time, void* /*zone*/) noexcept
{
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

__attribute__((visibility("default"))) int connect(int socket, const sockaddr* address, socklen_t length)
{
    if (address->sa_family == AF_UNIX) {
        return int(syscall(SYS_connect, socket, address, length));
    }
    errno = ECONNREFUSED;
    return -1;
}
}

void VirtualProcess::Start()
{
    s_iNanoseconds = 0;
    t_bVirtual = true;
}

void VirtualProcess::Stop()
{
    t_bVirtual = false;
}

void VirtualProcess::Advance(int ms)
{
    s_iNanoseconds += ms * NanosecondsPerMs;
}

void VirtualProcess::CompleteSecond()
{
    s_iNanoseconds += NanosecondsPerSecond - s_iNanoseconds % NanosecondsPerSecond;
}

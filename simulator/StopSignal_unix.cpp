#include <simulator/StopSignal.h>

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
// Written by the handler, read by the notifier: the one thing that both may touch.
int g_sockets[2] = {-1, -1};

void OnSignal(int)
{
    const int savedError = errno;
    const char wake = 1;
    [[maybe_unused]] const ssize_t written = ::write(g_sockets[0], &wake, sizeof wake);
    errno = savedError;
}

void SetHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : kSignals) {
        ::sigaction(number, &action, nullptr);
    }
}

} // namespace

StopSignal::StopSignal(QObject* parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, g_sockets) != 0) {
        return; // the system's own handling stays: the process still ends
    }
    auto* notifier = new QSocketNotifier(g_sockets[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char wake = 0;
        if (::read(g_sockets[1], &wake, sizeof wake) == ssize_t(sizeof wake)) {
            Q_EMIT SignalStop();
        }
    });
    SetHandlers(OnSignal);
}

StopSignal::~StopSignal()
{
    SetHandlers(SIG_DFL);
    for (int& socket : g_sockets) {
        if (socket >= 0) {
            ::close(socket);
            socket = -1;
        }
    }
}

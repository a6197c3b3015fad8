#include "MonkeyRecord.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sys/syscall.h>
#include <unistd.h>

// Of the sanitizers' runtime, where there is one.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());
// An abort shows the stack of the thread that it came to.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options()
{
    return "handle_abort=1";
}

namespace {
constexpr int LinesKept = 30;
constexpr int LineLength = 200;
constexpr double ComputingLimit = 2.0; // seconds
// Blocked for longer than computing may last: what it waits for, a worker or the disk, may have to wait itself.
constexpr double BlockedLimit = 5.0;
constexpr quint32 HashStart = 2166136261u;
constexpr quint32 HashPrime = 16777619u;

// Plain memory: it is read when the process is dying.
std::array<std::array<char, LineLength>, LinesKept> s_lines;
int s_iLineCount = 0;
std::array<char, LineLength> s_scene;
int s_iEvent = 0;
quint32 s_iDigest = HashStart;
int s_iWarnings = 0;
bool s_bTrace = false;
std::atomic<unsigned> s_iFed = 0;

void Put(const char* text)
{
    const ssize_t ignored = write(STDERR_FILENO, text, std::strlen(text));
    Q_UNUSED(ignored)
}

template <std::size_t Size>
void Keep(std::array<char, Size>& line, const QByteArray& text)
{
    const auto length = std::min<qsizetype>(text.size(), Size - 1);
    std::copy_n(text.constData(), length, line.begin());
    line[length] = '\0';
}

void TellDeath()
{
    MonkeyRecord::Print("the process dies");
}

void HandleSignal(int number)
{
    TellDeath();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

/** What says nothing about a fault. */
bool IsExpected(const QString& message)
{
    static constexpr const char* Expected[] = {
        // The platform without a display cannot do these, and no control depends on them.
        "This plugin does not support propagateSizeHints()",
        "This plugin does not support raise()",
        "This plugin does not support setting window opacity",
        "This plugin does not support setting window masks",
        "This plugin does not support grabbing the keyboard",
        "This plugin does not support grabbing the mouse",
        // The gallery shows what a number without a meaning does.
        "ToastWidget: Unhandled ToastType value: 3",
    };
    return std::any_of(std::begin(Expected), std::end(Expected),
                       [&message](const char* expected) { return message.startsWith(QLatin1String(expected)); });
}

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || IsExpected(message)) {
        return;
    }
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    static QSet<QString> seen;
    const QString key = QLatin1String(s_scene.data()) + message;
    if (type != QtFatalMsg && seen.contains(key)) {
        return;
    }
    seen.insert(key);
    ++s_iWarnings;
    MonkeyRecord::Print(
        qPrintable(QStringLiteral("the toolkit says \"%1\" [%2, %3]")
                       .arg(message, QLatin1String(context.category), QLatin1String(context.function))));
}
} // namespace

void MonkeyRecord::Install()
{
    qInstallMessageHandler(&HandleMessage);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(&TellDeath);
        return;
    }
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        std::signal(number, &HandleSignal);
    }
}

void MonkeyRecord::SetScene(const QString& scene)
{
    Keep(s_scene, scene.toUtf8());
    s_iLineCount = 0;
    s_iEvent = 0;
    s_iDigest = HashStart;
}

void MonkeyRecord::BeginEvent(int number)
{
    s_iEvent = number;
    MonkeyWatchdog::Feed();
}

void MonkeyRecord::Trace()
{
    s_bTrace = true;
}

void MonkeyRecord::Note(const QByteArray& event)
{
    for (const char byte : event) {
        s_iDigest = (s_iDigest ^ quint8(byte)) * HashPrime;
    }
    auto& line = s_lines[s_iLineCount++ % LinesKept];
    Keep(line, QByteArray::number(s_iEvent) + "  " + event);
    if (s_bTrace) {
        Put(line.data());
        Put("\n");
    }
}

quint32 MonkeyRecord::Digest()
{
    return s_iDigest;
}

void MonkeyRecord::Print(const char* reason)
{
    Put("\nFAILED: ");
    Put(s_scene.data());
    Put(": ");
    Put(reason);
    Put("\nThe last events, the youngest last:\n");
    for (int line = std::max(0, s_iLineCount - LinesKept); line < s_iLineCount; ++line) {
        Put("  ");
        Put(s_lines[line % LinesKept].data());
        Put("\n");
    }
}

int MonkeyRecord::WarningCount()
{
    return s_iWarnings;
}

MonkeyWatchdog::MonkeyWatchdog()
    : m_guiThread(pthread_self())
{
    pthread_getcpuclockid(m_guiThread, &m_guiClock);
    m_strSchedule = "/proc/self/task/" + std::to_string(syscall(SYS_gettid)) + "/schedstat";
    m_thread = std::thread([this] { Watch(); });
}

MonkeyWatchdog::~MonkeyWatchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_bStop = true;
    }
    m_stopped.notify_one();
    m_thread.join();
}

void MonkeyWatchdog::Feed()
{
    ++s_iFed;
}

void MonkeyWatchdog::Watch()
{
    using Clock = std::chrono::steady_clock;
    const auto computed = [this] {
        timespec time;
        clock_gettime(m_guiClock, &time);
        return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
    };
    const auto queued = [this] {
        double running = 0.0;
        double waiting = 0.0;
        std::ifstream(m_strSchedule) >> running >> waiting;
        return waiting / 1e9;
    };
    unsigned fed = s_iFed;
    double computedThen = computed();
    double queuedThen = queued();
    Clock::time_point then = Clock::now();
    std::unique_lock lock(m_mutex);
    while (!m_stopped.wait_for(lock, std::chrono::milliseconds(100), [this] { return m_bStop; })) {
        if (const unsigned now = s_iFed; now != fed) {
            fed = now;
            computedThen = computed();
            queuedThen = queued();
            then = Clock::now();
            continue;
        }
        const std::chrono::duration<double> passed = Clock::now() - then;
        const double computing = computed() - computedThen;
        const bool blocked = passed.count() - computing - (queued() - queuedThen) > BlockedLimit;
        if (computing > ComputingLimit || blocked) {
            MonkeyRecord::Print(blocked ? "the program hangs, blocked" : "the program hangs, computing");
            pthread_kill(m_guiThread, SIGABRT);
            std::this_thread::sleep_for(std::chrono::seconds(30)); // until that thread has ended the process
            _exit(1);
        }
    }
}

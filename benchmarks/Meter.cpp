#include <benchmarks/Meter.h>

#include <QByteArray>
#include <QFile>

#include <ctime>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define HAS_CALLGRIND
#endif

namespace {

// Names the file of callgrind's profiles; set by whoever starts the program under callgrind.
constexpr char kProfileVariable[] = "BENCHMARKS_CALLGRIND_OUT";
constexpr char kKeepVariable[] = "BENCHMARKS_KEEP_PROFILES";
constexpr char kTotals[] = "totals:";

double ProcessorSeconds()
{
#ifdef CLOCK_PROCESS_CPUTIME_ID
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}

double g_dStart = 0.0;

#ifdef HAS_CALLGRIND
// Callgrind writes one file for each dump and numbers them; the sum stands in its last lines.
double SumOfNextProfile()
{
    static int number = 0;
    const QString name = qEnvironmentVariable(kProfileVariable) + QLatin1Char('.') + QString::number(++number);
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("callgrind wrote no profile %s", qPrintable(name));
    }
    const QByteArray text = file.readAll();
    const qsizetype sum = text.lastIndexOf(kTotals);
    if (!qEnvironmentVariableIsSet(kKeepVariable)) {
        file.remove();
    }
    return sum < 0 ? 0.0 : text.mid(sum + qsizetype(sizeof kTotals) - 1).simplified().toDouble();
}
#endif

} // namespace

bool Meter::CountsInstructions()
{
#ifdef HAS_CALLGRIND
    static const bool counts = RUNNING_ON_VALGRIND && qEnvironmentVariableIsSet(kProfileVariable);
    return counts;
#else
    return false;
#endif
}

void Meter::Start()
{
#ifdef HAS_CALLGRIND
    if (CountsInstructions()) {
        CALLGRIND_TOGGLE_COLLECT;
        return;
    }
#endif
    g_dStart = ProcessorSeconds();
}

double Meter::Stop([[maybe_unused]] const std::string& label)
{
#ifdef HAS_CALLGRIND
    if (CountsInstructions()) {
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(label.c_str());
        return SumOfNextProfile();
    }
#endif
    return ProcessorSeconds() - g_dStart;
}

double Meter::AllocatedBytes()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
#else
    return 0.0;
#endif
}

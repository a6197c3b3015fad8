// What loading the library adds to a process that already is a Qt Widgets program: time and memory. The program itself
// does not link it. Each figure is the median over fresh processes, since a library loads only once in each.

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr int kRuns = 15;
constexpr double kGoalMs = 10.0;
constexpr double kGoalMiB = 6.0;

double ResidentMiB()
{
#ifdef Q_OS_LINUX
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (statm.open(QIODevice::ReadOnly)) {
        return statm.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
    }
#endif
    return 0.0;
}

int MeasureOnce(const QString& library)
{
    QWidget window;
    window.show();
    QCoreApplication::processEvents();

    const double before = ResidentMiB();
    QElapsedTimer clock;
    clock.start();
    QLibrary handle(library);
    if (!handle.load()) {
        std::fprintf(stderr, "%s\n", qPrintable(handle.errorString()));
        return 1;
    }
    const double milliseconds = double(clock.nsecsElapsed()) / 1e6;
    std::printf("%f %f\n", milliseconds, ResidentMiB() - before);
    return 0;
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == QLatin1String("--once")) {
        return MeasureOnce(arguments.value(2));
    }

    std::vector<double> times;
    std::vector<double> sizes;
    for (int run = 0; run < kRuns; ++run) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(arguments.value(0), {QStringLiteral("--once"), QStringLiteral(CUSTOMCONTROLS_LIBRARY_FILE)});
        if (!child.waitForFinished() || child.exitCode() != 0) {
            return 1;
        }
        const QList<QByteArray> figures = child.readAllStandardOutput().trimmed().split(' ');
        times.push_back(figures.value(0).toDouble());
        sizes.push_back(figures.value(1).toDouble());
    }
    const double milliseconds = Median(times);
    const double mebibytes = Median(sizes);
    std::printf("| loading the library | measured | goal |\n|---|---|---|\n| time | %.2f ms | %.0f ms |\n"
                "| memory | %.2f MiB | %.0f MiB |\n",
                milliseconds, kGoalMs, mebibytes, kGoalMiB);
    return milliseconds < kGoalMs && mebibytes < kGoalMiB ? 0 : 1;
}

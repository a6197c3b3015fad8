#include "monkey/LiveObjects.h"
#include "monkey/Monkey.h"
#include "monkey/MonkeyRecord.h"
#include "monkey/VirtualProcess.h"

#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>
#include <CustomControls/feedback/ToolTipEventFilter.h>
#include <examples/gallery/GalleryLanguage.h>
#include <examples/gallery/PageRegistry.h>
#include <tests/support/TestEnvironment.h>

#include <QApplication>
#include <QClipboard>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QThreadPool>
#include <QUrl>

#include <atomic>
#include <cstdio>

// The monkey opens each page of the gallery and sends it random events; see Monkey. It runs without a display: there
// the program itself decides what has the focus and where the pointer is, so that equal seeds give equal runs, which no
// window manager grants.
//
// A failure names its seed, its page and its event; the same "--seed N --events N --page NAME" replays it, and
// "--trace" prints every event. "--replay" plays each page once more with the same seed and once with another, and
// fails when the first differs or the second does not.

namespace {
constexpr int SettleRounds = 300;
constexpr int SettleMs = 100;

/** Takes what would leave the process: folders and settings that are opened outside. */
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const char* scheme : Schemes) {
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "Open");
        }
    }

    ~Desktop() override
    {
        for (const char* scheme : Schemes) {
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
        }
    }

public Q_SLOTS:
    void Open(const QUrl& url) { Q_UNUSED(url) }

private:
    static constexpr const char* Schemes[] = {"file", "http", "https", "mailto", "ms-settings"};
};

/** The roads to a machine, each outcome in its turn; the monkey's process lets no connection out in any case. */
void SetRoads()
{
    static std::atomic<int> s_iAttempts = 0;
    s_iAttempts = 0;
    NetworkConfigurator::SetProvider([](int) {
        NetworkConfigurator::Result result;
        const bool ready = ++s_iAttempts % 3 != 0;
        result.iStatus = ready ? NetworkConfigurator::StatusReady : NetworkConfigurator::StatusNoAdapter;
        result.strDetail = ready ? QString() : QStringLiteral("没有网卡");
        return result;
    });
    SetFtpConnectionProvider([](const QString&) { return s_iAttempts % 2 == 0; });
}

/** What one page leaves behind must not decide what happens on the next one. */
void Reset()
{
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString());
    QGuiApplication::clipboard()->clear();
    GalleryLanguage::Use(true);
    SetRoads();
}

/** Lets what was put off happen, and each timer that only has to run out. */
void Settle()
{
    for (int round = 0; round < SettleRounds; ++round) {
        VirtualProcess::Advance(SettleMs);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        MonkeyWatchdog::Feed();
    }
}

void Play(const QString& page, quint32 seed, int events)
{
    Reset();
    VirtualProcess::CompleteSecond();
    {
        Monkey monkey(page, seed, events);
        monkey.Play();
    }
    Settle();
}

bool HasGrown(const QString& page, const LiveObjects::Counts& before, quint64 mark)
{
    const LiveObjects::Counts after = LiveObjects::Count();
    std::printf("%-20s digest %08x  widgets %d -> %d  windows %d -> %d  timers %d -> %d\n", qPrintable(page),
                MonkeyRecord::Digest(), before.iWidgets, after.iWidgets, before.iWindows, after.iWindows,
                before.iTimers, after.iTimers);
    std::fflush(stdout);
    if (after.iWidgets <= before.iWidgets && after.iWindows <= before.iWindows && after.iTimers <= before.iTimers) {
        return false;
    }
    // Of what is older only a timer can run that did not run before, such as that of the program's one tip.
    const QList<QByteArray> left = LiveObjects::Younger(mark);
    for (const QByteArray& line : left) {
        std::printf("  left behind: %s\n", line.constData());
    }
    return !left.isEmpty();
}
} // namespace

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0"); // no order may differ from run to run
    qputenv("QT_NO_GLIB", "1");   // the toolkit's own loop, whose timers follow the virtual clock
    LiveObjects::Install();
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const TestEnvironment environment;
    const Desktop desktop;
    app.installEventFilter(new ToolTipEventFilter(&app)); // as the gallery's own main does

    QCommandLineParser parser;
    parser.addHelpOption();
    const auto option = [&parser](const char* name, const char* variable, const char* otherwise) {
        const QString text = QLatin1String(name);
        const QCommandLineOption option(text, {}, text, qEnvironmentVariable(variable, QLatin1String(otherwise)));
        parser.addOption(option);
        return option;
    };
    const QCommandLineOption seedOption = option("seed", "GALLERY_MONKEY_SEED", "1");
    const QCommandLineOption eventsOption = option("events", "GALLERY_MONKEY_EVENTS", "5000");
    const QCommandLineOption pageOption = option("page", "GALLERY_MONKEY_PAGE", "");
    const QCommandLineOption traceOption(QStringLiteral("trace"));
    parser.addOption(traceOption);
    const QCommandLineOption replayOption(QStringLiteral("replay"));
    parser.addOption(replayOption);
    parser.process(app);
    const quint32 seed = parser.value(seedOption).toUInt();
    const int pages = int(GalleryPages().size());
    const int events = (parser.value(eventsOption).toInt() + pages - 1) / pages;

    MonkeyRecord::Install();
    if (parser.isSet(traceOption)) {
        MonkeyRecord::Trace();
    }
    const MonkeyWatchdog watchdog;
    VirtualProcess::Start();
    int grown = 0;
    int strayed = 0;
    for (qsizetype index = 0; index < GalleryPages().size(); ++index) {
        const QString page = GalleryPages().at(index).strName;
        if (!parser.value(pageOption).isEmpty() && page != parser.value(pageOption)) {
            continue;
        }
        MonkeyRecord::SetScene(QStringLiteral("opening page %1").arg(page));
        Play(page, 0, 1); // what is made once, for the whole program, is there from here on
        const LiveObjects::Counts before = LiveObjects::Count();
        const quint64 mark = LiveObjects::Mark();
        MonkeyRecord::SetScene(
            QStringLiteral("--seed %1 --events %2 --page %3").arg(seed).arg(events * GalleryPages().size()).arg(page));
        Play(page, seed * 1000 + quint32(index), events);
        grown += HasGrown(page, before, mark);
        if (parser.isSet(replayOption)) {
            const quint32 first = MonkeyRecord::Digest();
            const auto again = [&](quint32 otherSeed) {
                MonkeyRecord::SetScene(QStringLiteral("replaying page %1 with seed %2").arg(page).arg(otherSeed));
                Play(page, otherSeed * 1000 + quint32(index), events);
                return MonkeyRecord::Digest();
            };
            const bool same = again(seed) == first;
            const bool other = again(seed + 1) != first;
            if (!same || !other) {
                std::printf("%-20s the same seed %s, another seed %s\n", qPrintable(page),
                            same ? "replays" : "DOES NOT REPLAY", other ? "differs" : "GIVES THE SAME");
                ++strayed;
            }
        }
    }
    VirtualProcess::Stop();
    std::printf("%d events for each page, seed %u: %d pages left something behind, %d warnings\n", events, seed, grown,
                MonkeyRecord::WarningCount());
    return grown == 0 && strayed == 0 && MonkeyRecord::WarningCount() == 0 ? 0 : 1;
}

#include "GalleryMonkeyTest.moc"

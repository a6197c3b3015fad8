#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>
#include <CustomControls/machine/CSelectMachineBox.h>

#include <tests/integration/machine/RoadWitness.h>
#include <tests/support/LiveObjects.h>
#include <tests/support/SimulatorProcess.h>
#include <tests/support/TestMain.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QPushButton>
#include <QSemaphore>
#include <QTableView>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// Of the sanitizer's own interface, whose header not every compiler brings along.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

// One user, one panel, one machine with one fault, and attempt after attempt. MACHINE_FAULT_ATTEMPTS says how many;
// left out, a few of each, and one of each fault that ends by the panel's own limit of five seconds.

namespace {

constexpr int kFewAttempts = 5;
constexpr qint64 kKiB = 1024;
const QString kMachineAddress = QStringLiteral("192.168.7.2");
const QString kSerial = QStringLiteral("USB0000042");

// For the spread of the allocator's pages: the loss of one socket's buffer in every 14th attempt would exceed it.
constexpr qint64 kMemoryTolerance = 1024 * kKiB;
constexpr int kAttemptsForMemory = 100; // with fewer, the caches that fill at first are all that is seen

int Attempts(bool endsByLimit)
{
    bool isNumber = false;
    const int attempts = qEnvironmentVariableIntValue("MACHINE_FAULT_ATTEMPTS", &isNumber);
    return isNumber && attempts > 0 ? attempts : endsByLimit ? 1 : kFewAttempts;
}

// What the process holds of the system and of the toolkit.
struct Holdings
{
    int iSockets = 0;
    int iDescriptors = 0;
    int iThreads = 0;
    int iWindows = 0;
    int iActiveTimers = 0; ///< of the panel, its children and the windows
    QMap<QByteArray, int> mapObjects;

    static Holdings Now()
    {
        Holdings now;
        const QDir descriptors(QStringLiteral("/proc/self/fd"));
        const QStringList names = descriptors.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
        for (const QString& name : names) {
            char target[64] = {};
            if (::readlink(qPrintable(descriptors.filePath(name)), target, sizeof target - 1) < 0) {
                continue; // the one by which the folder was read
            }
            ++now.iDescriptors;
            now.iSockets += qstrncmp(target, "socket:", 7) == 0 ? 1 : 0;
        }
        now.iThreads = int(QDir(QStringLiteral("/proc/self/task")).entryList(QDir::NoDotAndDotDot | QDir::Dirs).size());
        const QWidgetList windows = QApplication::topLevelWidgets();
        now.iWindows = int(windows.size());
        for (const QWidget* window : windows) {
            const QList<QTimer*> timers = window->findChildren<QTimer*>();
            now.iActiveTimers +=
                int(std::count_if(timers.begin(), timers.end(), [](const QTimer* timer) { return timer->isActive(); }));
        }
        now.mapObjects = LiveObjects::Count();
        // A message box leaves its event loop behind, which is meant; the caller counts the boxes.
        now.iLoops = now.mapObjects.take("QEventLoop");
        return now;
    }

    // What there is more of than before; empty when all has been given back.
    QStringList MoreThan(const Holdings& before) const
    {
        QStringList more;
        const auto compare = [&more](const char* what, int then, int now) {
            if (now > then) {
                more.append(QStringLiteral("%1: %2 instead of %3").arg(QLatin1String(what)).arg(now).arg(then));
            }
        };
        compare("sockets", before.iSockets, iSockets);
        compare("descriptors", before.iDescriptors, iDescriptors);
        compare("threads", before.iThreads, iThreads);
        compare("windows", before.iWindows, iWindows);
        compare("active timers", before.iActiveTimers, iActiveTimers);
        for (auto it = mapObjects.begin(); it != mapObjects.end(); ++it) {
            compare(it.key(), before.mapObjects.value(it.key()), it.value());
        }
        return more;
    }

    int iLoops = 0;
};

qint64 ResidentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE)
                                          : 0;
}

qint64 HeapInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = ::mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

// What must not grow. The sanitizer keeps pages of what has been freed for long, so there it is the heap.
qint64 HeldMemory()
{
#ifdef __SANITIZE_ADDRESS__
    return HeapInUse();
#else
    return ResidentMemory();
#endif
}

// The pool makes a thread whenever all that it has are busy, and each brings a descriptor along: all are made
// beforehand.
void StartAllThreadsOfThePool()
{
    QThreadPool* pool = QThreadPool::globalInstance();
    pool->setExpiryTimeout(-1);
    QSemaphore arrived;
    QSemaphore leave;
    for (int thread = 0; thread < pool->maxThreadCount(); ++thread) {
        pool->start([&arrived, &leave] {
            arrived.release();
            leave.acquire();
        });
    }
    arrived.acquire(pool->maxThreadCount());
    leave.release(pool->maxThreadCount());
    pool->waitForDone();
}

} // namespace

/** Attempt after attempt to connect to a machine at fault: each ends once, and none of them leaves anything behind. */
class MachineFaultEnduranceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyAttemptEndsOnceAndLeavesNothing_data();
    void everyAttemptEndsOnceAndLeavesNothing();
    void aHostThatRefusesEveryTimeIsAskedOnceEachTime();
};

void MachineFaultEnduranceTest::initTestCase()
{
    // Outside a namespace made for it this test would change the adapters of the computer it runs on.
    if (qEnvironmentVariableIsEmpty("MACHINE_NAMESPACE")) {
        QSKIP("runs in the namespaces of tests/support/machine-namespaces.sh only");
    }
    QVERIFY(!SimulatorProcess::Program().isEmpty());
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    NetworkConfigurator::SetProvider({});
    SetFtpConnectionProvider({});
    QApplication::setQuitOnLastWindowClosed(false);
    StartAllThreadsOfThePool();
}

void MachineFaultEnduranceTest::everyAttemptEndsOnceAndLeavesNothing_data()
{
    QTest::addColumn<QString>("fault");  // as the simulator's command line has it
    QTest::addColumn<QString>("reason"); // why it fails; empty: it connects
    QTest::addColumn<bool>("isQueryAsked");
    QTest::addColumn<bool>("endsByLimit");
    const QString noAnswer = QStringLiteral("连接超时，请检查机床连接状态");
    const QString noSerial = QStringLiteral("获取机床序列号失败");
    const auto add = [](const char* fault, const QString& reason, bool isQueryAsked, bool endsByLimit) {
        const QString text = QLatin1String(fault);
        QTest::newRow(text.section(u':', 0, 0).toLatin1().constData()) << text << reason << isQueryAsked << endsByLimit;
    };
    QTest::newRow("healthy") << QString() << QString() << true << false;
    add("silent", noAnswer, true, true);
    add("close", QStringLiteral("The remote host closed the connection"), true, false);
    add("split", noSerial, true, false);
    add("slow", noSerial, true, false);
    add("garbage", noSerial, true, false);
    add("array", noSerial, true, false);
    add("empty-serial", QStringLiteral("获取机床序列号失败：序列号为空"), true, false);
    add("error:7:too hot", QStringLiteral("获取机床序列号失败：too hot"), true, false);
    add("huge", noSerial, true, false);
    add("late", noAnswer, true, true);
    add("ftp-down", QStringLiteral("机床连接失败!"), false, false);
}

void MachineFaultEnduranceTest::everyAttemptEndsOnceAndLeavesNothing()
{
    QFETCH(const QString, fault);
    QFETCH(const QString, reason);
    QFETCH(const bool, isQueryAsked);
    QFETCH(const bool, endsByLimit);
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^Q[A-Z][A-Za-z]+[:(]")));
    const auto start = [](SimulatorProcess& machine, const QString& faultOfMachine) {
        QStringList arguments{"--address", kMachineAddress, "--serial", kSerial};
        if (!faultOfMachine.isEmpty()) {
            arguments += {"--fault", faultOfMachine};
        }
        return machine.Start(arguments, qEnvironmentVariable("MACHINE_NAMESPACE"));
    };
    RoadWitness witness;
    witness.OpenPanel();
    {
        // The first road of all sets up what stays: the adapter's address, the worker's thread, the pictures.
        SimulatorProcess machine;
        QVERIFY2(start(machine, QStringLiteral("garbage")), machine.Errors());
        witness.Connect();
        QCOMPARE(witness.m_listEvents, RoadWitness::Failed(QStringLiteral("获取机床序列号失败"), true));
    }
    SimulatorProcess machine;
    QVERIFY2(start(machine, fault), machine.Errors());
    if (reason.isEmpty()) {
        delete witness.m_pPanel; // by which each success ends
    }
    const QStringList expected =
        reason.isEmpty() ? RoadWitness::Connected(kSerial) : RoadWitness::Failed(reason, isQueryAsked);
    const auto exchanges = [&machine] {
        const QStringList lines = machine.Log();
        return std::count_if(lines.begin(), lines.end(), [](const QString& line) {
            return line.startsWith(QLatin1String("machine ")) && line.contains(QLatin1String(" | request "));
        });
    };

    const int attempts = Attempts(endsByLimit);
    const int warm = qMax(1, attempts / 10);
    qint64 residentWarm = 0;
    qint64 heldWarm = 0;
    qint64 heapWarm = 0;
    qint64 shortest = RoadWitness::LimitMs;
    qint64 longest = 0;
    qint64 longestPause = 0;
    QElapsedTimer whole;
    whole.start();
    QTRY_COMPARE(LiveObjects::Count().value("CVelmarMessageBox"), 0);
    QTRY_COMPARE(LiveObjects::Count().value("CProgressWidget"), 0);
    const Holdings before = Holdings::Now();
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        if (!witness.m_pPanel) {
            witness.OpenPanel();
        }
        machine.ForgetLog();
        witness.Connect();
        if (witness.m_listEvents != expected) {
            qInfo("attempt %d of %d", attempt, attempts);
        }
        QCOMPARE(witness.m_listEvents, expected);
        if (reason.isEmpty()) {
            QTRY_VERIFY(!witness.m_pPanel);
        } else {
            QVERIFY(witness.IsPanelUsable());
        }
        // The machine's own view: one connection for the query, and it has ended.
        QTRY_VERIFY(exchanges() >= (isQueryAsked ? 1 : 0));
        QCOMPARE(exchanges(), isQueryAsked ? 1 : 0);
        shortest = qMin(shortest, witness.m_iTookMs);
        longest = qMax(longest, witness.m_iTookMs);
        longestPause = qMax(longestPause, witness.m_iLongestPauseMs);

        // Scaled pictures of a message box stay in the toolkit's cache, which bounds itself to 10 MiB.
        QPixmapCache::clear();
        Holdings now = Holdings::Now();
        const auto isGivenBack = [&] {
            now = Holdings::Now();
            return now.MoreThan(before).isEmpty() && now.iLoops == before.iLoops + attempt;
        };
        if (!QTest::qWaitFor(isGivenBack, 5000)) {
            qInfo("attempt %d of %d: %d loops of %d boxes more", attempt, attempts, now.iLoops - before.iLoops,
                  attempt);
            QCOMPARE(now.MoreThan(before).join(QStringLiteral("; ")), QString());
            QCOMPARE(now.iLoops - before.iLoops, attempt);
        }
        if (attempt == warm) {
            residentWarm = ResidentMemory();
            heldWarm = HeldMemory();
            heapWarm = HeapInUse();
        }
        if (attempt % warm == 0) {
            qInfo("%s: attempt %d, %lld s, resident %lld KiB, heap %lld KiB", QTest::currentDataTag(), attempt,
                  whole.elapsed() / 1000, ResidentMemory() / kKiB, HeapInUse() / kKiB);
        }
    }
    const qint64 resident = ResidentMemory();
    const qint64 held = HeldMemory();
    const qint64 heap = HeapInUse();
    qInfo("%s: %d attempts in %.1f s, %lld to %lld ms each, longest pause of the event loop %lld ms; resident %lld KiB "
          "at %d and %lld KiB at %d, heap %+.1f bytes an attempt",
          QTest::currentDataTag(), attempts, double(whole.elapsed()) / 1000, shortest, longest, longestPause,
          residentWarm / kKiB, warm, resident / kKiB, attempts,
          attempts > warm ? double(heap - heapWarm) / (attempts - warm) : 0.0);
    if (attempts < kAttemptsForMemory) {
        return;
    }
    QVERIFY2(held - heldWarm <= kMemoryTolerance,
             qPrintable(QStringLiteral("%1 KiB more").arg((held - heldWarm) / kKiB)));
}

void MachineFaultEnduranceTest::aHostThatRefusesEveryTimeIsAskedOnceEachTime()
{
    CSelectMachineBox panel(nullptr);
    panel.setAttribute(Qt::WA_DeleteOnClose, false);
    panel.SetMachineInfo(QStringLiteral("VELMAR*SN1*B2*10.0.0.5*5002*eth0"), false);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    int asked = 0;
    connect(&panel, &CSelectMachineBox::SignalMachineSelected, &panel, [&](const QString& ip, const QString& serial) {
        ++asked;
        QCOMPARE(ip, QStringLiteral("10.0.0.5"));
        QCOMPARE(serial, QStringLiteral("SN1"));
        QMetaObject::invokeMethod(
            &panel, [&panel] { panel.OnConnectResult(false); }, Qt::QueuedConnection);
    });
    auto* table = panel.findChild<QTableView*>(QStringLiteral("tableView"));
    auto* button = panel.findChild<QPushButton*>(QStringLiteral("m_btnConnect"));
    const auto tryOnce = [&] {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->model()->index(0, 0)).center());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!button->isEnabled());
        QTRY_VERIFY(button->isEnabled());
    };
    tryOnce();
    const Holdings before = Holdings::Now();
    const int attempts = Attempts(false);
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        tryOnce();
        QCOMPARE(asked, attempt + 1);
    }
    QTRY_COMPARE(Holdings::Now().MoreThan(before).join(QStringLiteral("; ")), QString());
}

int main(int argc, char* argv[])
{
    LiveObjects::Watch();
    TestEnvironment::PrepareProcess();
    QApplication app(argc, argv);
    const TestEnvironment environment;
    MachineFaultEnduranceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "MachineFaultEnduranceTest.moc"

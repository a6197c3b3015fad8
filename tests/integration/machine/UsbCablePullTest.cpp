#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <tests/integration/machine/RoadWitness.h>
#include <tests/support/LiveObjects.h>
#include <tests/support/NestedLoop.h>
#include <tests/support/SimulatorProcess.h>
#include <tests/support/TestMain.h>

#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <functional>
#include <memory>

// The cable comes out at every stage of the road to a machine, in two namespaces that are joined by it. It comes out in
// two ways: at the machine, so that the computer's adapter loses its link, and at the computer, so that the adapter
// itself is gone. The second way is left to the long form, since it takes as long again.

namespace {

const QString kSerial = QStringLiteral("USB0000042");
const QString kNoAdapter = QStringLiteral("未找到已连接的有线网卡，请确认机床已开机，并已用数据线连接到电脑");
const QString kNoFiles = QStringLiteral("机床连接失败!");
const QString kNoAnswer = QStringLiteral("连接超时，请检查机床连接状态");

// Four rounds a second apart, the probe of one of them, and room for a busy computer.
constexpr qint64 kDiscoveryMs = 3000 + 2250 + 3000;
constexpr qint64 kFilesMs = 5000 + 3000;
constexpr qint64 kQueryMs = 5000 + 3000;
constexpr qint64 kPauseMs = 2000; // that a user would take for a hang

// A connection to the machine's port, as the kernel tells it: established, and all that was written acknowledged.
bool IsEstablished(quint16 port)
{
    QFile table(QStringLiteral("/proc/net/tcp"));
    if (!table.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray peer = "0207A8C0:" + QByteArray::number(port, 16).rightJustified(4, '0').toUpper();
    const QList<QByteArray> lines = table.readAll().split('\n');
    return std::any_of(lines.begin(), lines.end(), [&peer](const QByteArray& line) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        return fields.value(2) == peer && fields.value(3) == "01" && fields.value(4).startsWith("00000000:");
    });
}

} // namespace

class UsbCablePullTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theRoadEndsOnceAndTheNextOneConnects_data();
    void theRoadEndsOnceAndTheNextOneConnects();

private:
    enum class Way
    {
        Link,   ///< the adapter stays, without a carrier
        Adapter ///< the adapter goes with the plug
    };
    enum class Stage
    {
        BeforeDiscovery,
        AddressGiven,
        BeforeFileService,
        DuringFileService,
        DuringConnect,
        QuerySent,
        Connected
    };

    static bool Ip(const QStringList& arguments);
    static bool IpOfMachine(const QStringList& arguments);
    static QString AddressOfHost();
    static void Pull(Way way);
    static void PlugIn(Way way);
    void PullAt(Stage stage, Way way, int backMs);

    std::unique_ptr<RoadWitness> m_witness;
    std::unique_ptr<SimulatorProcess> m_machine;
    std::unique_ptr<Once> m_once;
    std::atomic_bool m_bArmed = false; ///< the search for the adapter, which connects to the same ports, is over
    QTemporaryDir m_tools;
    QByteArray m_path;
};

void UsbCablePullTest::initTestCase()
{
    // Outside a namespace made for it this test would change the adapters of the computer it runs on.
    if (qEnvironmentVariableIsEmpty("MACHINE_NAMESPACE")) {
        QSKIP("runs in the namespaces of tests/support/machine-namespaces.sh only");
    }
    QVERIFY(!SimulatorProcess::Program().isEmpty());
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QApplication::setQuitOnLastWindowClosed(false);
    m_path = qgetenv("PATH");
}

void UsbCablePullTest::init()
{
    NetworkConfigurator::SetProvider({});
    SetFtpConnectionProvider({});
    m_bArmed = false;
    QVERIFY(Ip({"address", "flush", "dev", "usb0"}));
    m_machine = std::make_unique<SimulatorProcess>();
    QVERIFY2(
        m_machine->Start({"--address", "192.168.7.2", "--serial", kSerial}, qEnvironmentVariable("MACHINE_NAMESPACE")),
        m_machine->Errors());
    m_witness = std::make_unique<RoadWitness>();
}

void UsbCablePullTest::cleanup()
{
    m_once.reset();
    m_witness.reset();
    m_machine.reset();
    qputenv("PATH", m_path);
}

bool UsbCablePullTest::Ip(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("ip"), arguments) == 0;
}

bool UsbCablePullTest::IpOfMachine(const QStringList& arguments)
{
    return Ip(QStringList{QStringLiteral("-n"), qEnvironmentVariable("MACHINE_NAMESPACE")} + arguments);
}

QString UsbCablePullTest::AddressOfHost()
{
    QProcess process;
    process.start(QStringLiteral("ip"), {"-4", "-brief", "address", "show", "dev", "usb0"});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput()).simplified().section(u' ', 2, 2);
}

// On any thread: some stages are met on the one of the worker.
void UsbCablePullTest::Pull(Way way)
{
    const bool done = way == Way::Link ? IpOfMachine({"link", "set", "usb0", "down"}) : Ip({"link", "delete", "usb0"});
    if (!done) {
        qFatal("the cable is stuck");
    }
}

void UsbCablePullTest::PlugIn(Way way)
{
    bool done = true;
    if (way == Way::Adapter) {
        // The machine's own end comes up anew too, at its fixed address.
        done = Ip({"link", "add", "usb0", "type", "veth", "peer", "name", "usb0", "netns",
                   qEnvironmentVariable("MACHINE_NAMESPACE")}) &&
               IpOfMachine({"address", "add", "192.168.7.2/24", "dev", "usb0"}) && Ip({"link", "set", "usb0", "up"});
    }
    if (!done || !IpOfMachine({"link", "set", "usb0", "up"})) {
        qFatal("the cable does not fit");
    }
}

// Pulls the cable once, when the road has come to a stage; with a time, plugs it in again as much later.
void UsbCablePullTest::PullAt(Stage stage, Way way, int backMs)
{
    const auto pull = [this, way, backMs] {
        Pull(way);
        if (backMs > 0) {
            QMetaObject::invokeMethod(
                this, [this, way, backMs] { QTimer::singleShot(backMs, this, [way] { PlugIn(way); }); },
                Qt::QueuedConnection);
        }
    };
    switch (stage) {
    case Stage::BeforeDiscovery:
        pull();
        break;
    case Stage::AddressGiven: {
        // The system's own tool, after which the cable comes out: no look at the adapter could be as quick as the
        // probe.
        const QString real = QStandardPaths::findExecutable(QStringLiteral("ip"));
        QFile tool(m_tools.filePath(QStringLiteral("ip")));
        QVERIFY(tool.open(QIODevice::WriteOnly));
        const QString out = way == Way::Link ? real + QStringLiteral(" -n \"$MACHINE_NAMESPACE\" link set usb0 down")
                                             : real + QStringLiteral(" link delete usb0");
        tool.write(
            QStringLiteral("#!/bin/sh\n%1 \"$@\"\ncode=$?\ncase \"$1 $2\" in \"address add\") %2;; esac\nexit $code\n")
                .arg(real, out)
                .toUtf8());
        tool.close();
        QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        qputenv("PATH", m_tools.path().toLocal8Bit() + ':' + m_path);
        break;
    }
    case Stage::BeforeFileService:
        NetworkConfigurator::SetProvider([pull](int rounds) {
            NetworkConfigurator::SetProvider({});
            NetworkConfigurator::Result result = NetworkConfigurator::autoDiscoverAndConfigureCnc(rounds);
            pull();
            return result;
        });
        break;
    case Stage::DuringFileService:
        // A machine that stands still: its system accepts the connection, and no greeting comes.
        SetFtpConnectionProvider([this, pid = pid_t(m_machine->ProcessId())](const QString& ip) {
            SetFtpConnectionProvider({});
            ::kill(pid, SIGSTOP);
            m_bArmed = true;
            return FtpConnection(ip);
        });
        m_once = std::make_unique<Once>([this] { return m_bArmed && IsEstablished(21); }, pull);
        break;
    case Stage::DuringConnect:
        SetFtpConnectionProvider([pull](const QString& ip) {
            SetFtpConnectionProvider({});
            const bool ok = FtpConnection(ip);
            pull();
            return ok;
        });
        break;
    case Stage::QuerySent:
        SetFtpConnectionProvider([this, pid = pid_t(m_machine->ProcessId())](const QString& ip) {
            SetFtpConnectionProvider({});
            const bool ok = FtpConnection(ip);
            ::kill(pid, SIGSTOP);
            m_bArmed = true;
            return ok;
        });
        // The question has arrived; the machine answers it when the cable is out.
        m_once = std::make_unique<Once>([this] { return m_bArmed && IsEstablished(5002); },
                                        [this, pull] {
                                            pull();
                                            ::kill(pid_t(m_machine->ProcessId()), SIGCONT);
                                        });
        break;
    case Stage::Connected:
        connect(
            CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalConnectSuccessToFile, this, [pull] { pull(); },
            Qt::SingleShotConnection);
        break;
    }
}

void UsbCablePullTest::theRoadEndsOnceAndTheNextOneConnects_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<int>("backMs"); // 0: when the road has ended
    QTest::addColumn<QStringList>("outcomes");
    QTest::addColumn<bool>("isAddressLeft");
    QTest::addColumn<qint64>("limitMs");

    const QStringList connected{QString()};
    // What a connection attempt without a link ends by is the system's own timing.
    const QStringList notReached{kNoAnswer, QStringLiteral("Host unreachable"), QStringLiteral("Network unreachable")};
    const auto add = [](const char* name, Way way, Stage stage, int backMs, const QStringList& outcomes,
                        bool isAddressLeft, qint64 limitMs) {
        const QString where = way == Way::Link ? QStringLiteral("%1") : QStringLiteral("%1, adapter gone");
        QTest::newRow(qPrintable(where.arg(QLatin1String(name))))
            << way << stage << backMs << outcomes << isAddressLeft << limitMs;
    };
    QList<Way> ways{Way::Link};
    if (qEnvironmentVariableIsSet("CUSTOMCONTROLS_LONG")) {
        ways.append(Way::Adapter);
    }
    for (const Way way : std::as_const(ways)) {
        const bool isKept = way == Way::Link; // an adapter that is gone takes its address along
        add("before discovery", way, Stage::BeforeDiscovery, 0, {kNoAdapter}, false, kDiscoveryMs);
        add("before discovery, back in time", way, Stage::BeforeDiscovery, 500, connected, true, kDiscoveryMs);
        add("after an address was given", way, Stage::AddressGiven, 0, {kNoAdapter}, false, kDiscoveryMs);
        add("before the file service", way, Stage::BeforeFileService, 0, {kNoFiles}, isKept, kFilesMs);
        add("during the file service", way, Stage::DuringFileService, 0, {kNoFiles}, isKept, kFilesMs);
        add("during connect", way, Stage::DuringConnect, 0, notReached, isKept, kQueryMs);
        add("after the query was sent", way, Stage::QuerySent, 0, {kNoAnswer}, isKept, kQueryMs);
        add("while connected", way, Stage::Connected, 0, connected, isKept, kQueryMs);
        if (way == Way::Link) {
            add("during connect, back in time", way, Stage::DuringConnect, 500, connected, true, kQueryMs);
            add("after the query was sent, back in time", way, Stage::QuerySent, 500, connected, true, kQueryMs);
        }
    }
}

void UsbCablePullTest::theRoadEndsOnceAndTheNextOneConnects()
{
    QFETCH(const Way, way);
    QFETCH(const Stage, stage);
    QFETCH(const int, backMs);
    QFETCH(const QStringList, outcomes);
    QFETCH(const bool, isAddressLeft);
    QFETCH(const qint64, limitMs);

    m_witness->OpenPanel();
    const QMap<QByteArray, int> before = LiveObjects::Count();
    PullAt(stage, way, backMs);
    m_witness->Connect();
    m_once.reset();
    ::kill(pid_t(m_machine->ProcessId()), SIGCONT);
    qputenv("PATH", m_path);

    const QString last = m_witness->m_listEvents.value(m_witness->m_listEvents.size() - 1);
    qInfo("%lld ms, longest pause %lld ms, %s", m_witness->m_iTookMs, m_witness->m_iLongestPauseMs, qPrintable(last));
    bool isOneOfThem = false;
    for (const QString& reason : outcomes) {
        const bool isAsked = stage != Stage::BeforeDiscovery && reason != kNoAdapter && reason != kNoFiles;
        isOneOfThem |= m_witness->m_listEvents ==
                       (reason.isEmpty() ? RoadWitness::Connected(kSerial) : RoadWitness::Failed(reason, isAsked));
    }
    QVERIFY2(isOneOfThem, qPrintable(m_witness->m_listEvents.join(u'\n')));
    QVERIFY(m_witness->m_iTookMs <= limitMs);
    QVERIFY(m_witness->m_iLongestPauseMs <= kPauseMs);
    QCOMPARE(AddressOfHost().startsWith(QStringLiteral("192.168.7.")), isAddressLeft);
    if (outcomes.first().isEmpty()) {
        QTRY_VERIFY(!m_witness->m_pPanel);
    } else {
        QVERIFY(m_witness->IsPanelUsable());
    }
    // Nothing of the road goes on in the background: no socket that still tries, no timer that waits for it.
    QTRY_COMPARE(LiveObjects::Count().value("QTcpSocket"), before.value("QTcpSocket"));
    QTRY_VERIFY(LiveObjects::Count().value("QTimer") <= before.value("QTimer"));

    if (stage == Stage::Connected) {
        // The next panel meets the missing cable first.
        m_witness->OpenPanel();
        m_witness->Connect();
        QCOMPARE(m_witness->m_listEvents, RoadWitness::Failed(kNoAdapter, false));
    }
    if (backMs == 0) {
        PlugIn(way);
    }
    if (!m_witness->m_pPanel) {
        m_witness->OpenPanel();
    }
    m_witness->Connect();
    QCOMPARE(m_witness->m_listEvents, RoadWitness::Connected(kSerial));
    QTRY_VERIFY(!m_witness->m_pPanel);
    QVERIFY(AddressOfHost().startsWith(QStringLiteral("192.168.7.")));
}

int main(int argc, char* argv[])
{
    LiveObjects::Watch();
    TestEnvironment::PrepareProcess();
    QApplication app(argc, argv);
    const TestEnvironment environment;
    UsbCablePullTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "UsbCablePullTest.moc"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <unistd.h>

/**
 * The built-in search for a machine, and the probe of its file service, against real adapters: two network namespaces
 * that this test makes, joined by a pair of virtual plugs as a computer and a machine are by a cable. The computer's
 * own adapters are never touched. The program runs itself again inside the namespaces, in the parts at the end of this
 * file.
 */
class NetworkConfiguratorNamespaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void bareAdapterIsFoundAndConfigured();
    void openQueryPortAloneIsAnAnswer();
    void refusedConnectionIsAnAnswer();
    void adapterWithAnAddressIsLeftAlone();
    void addressInUseOnTheCableIsPassedOver();
    void searchRunsOnAWorkerThread();
    void pulledCableIsNoAdapter();
    void virtualAdaptersAreNoWiredOnes();
    void silentCableTakesTheAddressBack();
    void machineThatComesLateIsFound();
    void missingProgramIsTold();
    void missingRightIsTold();
    void ownMachineAddressIsTold();
    void fileServiceDecides_data();
    void fileServiceDecides();
    void fileServiceBehindADeadCableEndsInTime();

private:
    static bool Run(const QStringList& command)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(command.first(), command.mid(1));
        const bool ok = process.waitForFinished(30000) && process.exitCode() == 0;
        if (!ok) {
            qInfo() << command << process.readAll();
        }
        return ok;
    }
    static bool Ip(const QString& arguments) { return Run(QStringList("ip") + arguments.split(QLatin1Char(' '))); }
    bool HostIp(const QString& arguments) const { return Ip(QStringLiteral("-n %1 %2").arg(m_strHost, arguments)); }
    bool MachineIp(const QString& arguments) const
    {
        return Ip(QStringLiteral("-n %1 %2").arg(m_strMachine, arguments));
    }

    /** The whole addresses of the computer's plug, as `ip` tells them. */
    QString HostAddresses() const
    {
        QProcess process;
        process.start("ip", {"-n", m_strHost, "-4", "-o", "address", "show", "dev", "cable"});
        process.waitForFinished(30000);
        return QString::fromLocal8Bit(process.readAll());
    }

    /** Runs a part of this program on the computer's side, behind @p wrapper, and gives what it tells. */
    QJsonObject OnHost(const QStringList& part, const QStringList& wrapper = {}) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(m_strIp, QStringList{"netns", "exec", m_strHost} + wrapper +
                                   QStringList{QCoreApplication::applicationFilePath()} + part);
        process.waitForFinished(60000);
        return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

    /** Starts the machine, and returns when it listens. */
    bool StartMachine(const QString& ports, const QString& greeting = QStringLiteral("220 ready"))
    {
        m_service = std::make_unique<QProcess>();
        m_service->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_service->start(m_strIp, {"netns", "exec", m_strMachine, QCoreApplication::applicationFilePath(), "--machine",
                                   ports, greeting});
        return m_service->waitForReadyRead(20000) && m_service->readAllStandardOutput().contains("ready");
    }

    QString m_strIp;
    QString m_strHost;
    QString m_strMachine;
    std::unique_ptr<QProcess> m_service;
};

void NetworkConfiguratorNamespaceTest::initTestCase()
{
    m_strIp = QStandardPaths::findExecutable("ip");
    if (geteuid() != 0 || m_strIp.isEmpty()) {
        QSKIP("network namespaces take root and the program ip");
    }
    const QString id = QString::number(QCoreApplication::applicationPid());
    m_strHost = "cch" + id;
    m_strMachine = "ccm" + id;
    if (!Ip("netns add " + m_strHost)) {
        QSKIP("this system does not let the test make a network namespace");
    }
    QVERIFY(Ip("netns delete " + m_strHost));
}

void NetworkConfiguratorNamespaceTest::init()
{
    QVERIFY(Ip("netns add " + m_strHost));
    QVERIFY(Ip("netns add " + m_strMachine));
    QVERIFY(HostIp("link add cable type veth peer name gadget netns " + m_strMachine));
    QVERIFY(HostIp("link set lo up"));
    QVERIFY(HostIp("link set cable up"));
    QVERIFY(MachineIp("link set lo up"));
    QVERIFY(MachineIp("link set gadget up"));
    QVERIFY(MachineIp("address add 192.168.7.2/24 dev gadget"));
}

void NetworkConfiguratorNamespaceTest::cleanup()
{
    if (m_service) {
        m_service->closeWriteChannel(); // it ends with its input
        if (!m_service->waitForFinished(10000)) {
            m_service->kill();
            m_service->waitForFinished();
        }
        m_service.reset();
    }
    Ip("netns delete " + m_strHost);
    Ip("netns delete " + m_strMachine);
}

void NetworkConfiguratorNamespaceTest::bareAdapterIsFoundAndConfigured()
{
    QVERIFY(StartMachine("21,5002"));
    const QJsonObject result = OnHost({"--configure", "1"});
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusReady));
    QCOMPARE(result.value("adapter").toString(), QString("cable"));
    QCOMPARE(result.value("address").toString(), QString("192.168.7.100"));
    QCOMPARE(result.value("adapters").toArray().size(), 1);
    QCOMPARE(result.value("adapters").toArray().at(0).toArray().at(0).toString(), QString("cable"));
    QVERIFY(HostAddresses().contains("192.168.7.100/24"));
    QVERIFY(OnHost({"--ftp", "192.168.7.2"}).value("answered").toBool());
}

void NetworkConfiguratorNamespaceTest::openQueryPortAloneIsAnAnswer()
{
    QVERIFY(StartMachine("5002"));
    QCOMPARE(OnHost({"--configure", "1"}).value("status").toInt(-1), 0);
    QVERIFY(!OnHost({"--ftp", "192.168.7.2"}).value("answered").toBool(true));
}

void NetworkConfiguratorNamespaceTest::refusedConnectionIsAnAnswer()
{
    QCOMPARE(OnHost({"--configure", "1"}).value("status").toInt(-1), 0); // a host without any service
    QVERIFY(HostAddresses().contains("192.168.7.100/24"));
}

void NetworkConfiguratorNamespaceTest::adapterWithAnAddressIsLeftAlone()
{
    QVERIFY(HostIp("address add 192.168.7.33/24 dev cable"));
    const QString before = HostAddresses();
    const QJsonObject result = OnHost({"--configure", "4"});
    QCOMPARE(result.value("status").toInt(-1), 0);
    QCOMPARE(result.value("address").toString(), QString("192.168.7.33"));
    QCOMPARE(HostAddresses(), before);
    const QJsonObject again = OnHost({"--configure", "4"});
    QCOMPARE(again, result);
}

void NetworkConfiguratorNamespaceTest::addressInUseOnTheCableIsPassedOver()
{
    QVERIFY(MachineIp("address add 192.168.7.100/24 dev gadget"));
    const QJsonObject result = OnHost({"--configure", "1"});
    QCOMPARE(result.value("status").toInt(-1), 0);
    QCOMPARE(result.value("address").toString(), QString("192.168.7.101"));
}

void NetworkConfiguratorNamespaceTest::searchRunsOnAWorkerThread()
{
    const QJsonObject result = OnHost({"--configure-on-worker", "1"});
    QCOMPARE(result.value("status").toInt(-1), 0);
    QVERIFY(HostAddresses().contains("192.168.7.100/24"));
}

void NetworkConfiguratorNamespaceTest::pulledCableIsNoAdapter()
{
    QVERIFY(MachineIp("link set gadget down"));
    QElapsedTimer clock;
    clock.start();
    const QJsonObject result = OnHost({"--configure", "2"});
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusNoAdapter));
    QVERIFY(!result.value("detail").toString().isEmpty());
    QCOMPARE(result.value("adapters").toArray().size(), 0);
    QVERIFY(clock.elapsed() >= 1000); // the second round came a second later
    QCOMPARE(HostAddresses(), QString());
}

void NetworkConfiguratorNamespaceTest::virtualAdaptersAreNoWiredOnes()
{
    QVERIFY(HostIp("link delete cable"));
    bool any = false;
    for (const char* kind : {"dummy", "bridge"}) {
        if (HostIp(QStringLiteral("link add %1x type %1").arg(QLatin1String(kind)))) {
            any = true;
            QVERIFY(HostIp(QStringLiteral("link set %1x up").arg(QLatin1String(kind))));
        }
    }
    if (HostIp("tuntap add dev tapx mode tap")) {
        any = true;
        QVERIFY(HostIp("link set tapx up"));
    }
    if (!any) {
        QSKIP("this system has no virtual adapters to offer");
    }
    QCOMPARE(OnHost({"--configure", "1"}).value("status").toInt(-1), int(NetworkConfigurator::StatusNoAdapter));
}

void NetworkConfiguratorNamespaceTest::silentCableTakesTheAddressBack()
{
    QVERIFY(MachineIp("address flush dev gadget"));
    const QJsonObject result = OnHost({"--configure", "2"});
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusNoAnswer));
    QCOMPARE(HostAddresses(), QString());
}

void NetworkConfiguratorNamespaceTest::machineThatComesLateIsFound()
{
    QVERIFY(MachineIp("address flush dev gadget"));
    QProcess search;
    search.start(m_strIp, {"netns", "exec", m_strHost, QCoreApplication::applicationFilePath(), "--configure", "20"});
    QVERIFY(search.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(HostAddresses().contains("192.168.7.100/24"), 20000);
    QVERIFY(MachineIp("address add 192.168.7.2/24 dev gadget"));
    QVERIFY(search.waitForFinished(60000));
    QCOMPARE(QJsonDocument::fromJson(search.readAllStandardOutput()).object().value("status").toInt(-1), 0);
    QVERIFY(HostAddresses().contains("192.168.7.100/24"));
}

void NetworkConfiguratorNamespaceTest::missingProgramIsTold()
{
    const QJsonObject result = OnHost({"--configure", "4"}, {"/usr/bin/env", "PATH=/nowhere"});
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusNoTool));
    QVERIFY(result.value("detail").toString().contains("ip"));
}

void NetworkConfiguratorNamespaceTest::missingRightIsTold()
{
    const QStringList nobody = {"setpriv",        "--reuid=65534",       "--regid=65534",
                                "--clear-groups", "--bounding-set=-all", "--inh-caps=-all"};
    if (!Run(nobody + QStringList{QCoreApplication::applicationFilePath(), "--hello"})) {
        QSKIP("this program cannot be run by another user here");
    }
    const QJsonObject result = OnHost({"--configure", "4"}, nobody);
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusNoRight));
    QVERIFY(result.value("detail").toString().contains("权限"));
    QCOMPARE(HostAddresses(), QString());
}

void NetworkConfiguratorNamespaceTest::ownMachineAddressIsTold()
{
    QVERIFY(HostIp("address add 192.168.7.2/24 dev cable"));
    const QJsonObject result = OnHost({"--configure", "1"});
    QCOMPARE(result.value("status").toInt(-1), int(NetworkConfigurator::StatusConfigurationFailed));
}

void NetworkConfiguratorNamespaceTest::fileServiceDecides_data()
{
    QTest::addColumn<QString>("ports");
    QTest::addColumn<QString>("greeting");
    QTest::addColumn<bool>("expected");
    QTest::addColumn<int>("most"); // milliseconds
    QTest::newRow("greeting") << "21"
                              << "220 ready" << true << 2900;
    QTest::newRow("greeting split in two") << "21"
                                           << "22|0 ready" << true << 2900;
    QTest::newRow("garbage") << "21"
                             << "hello" << false << 2900;
    QTest::newRow("close at once") << "21"
                                   << "!" << false << 2900;
    QTest::newRow("no service") << "5002"
                                << "" << false << 2900;
    QTest::newRow("silence") << "21"
                             << "" << false << 5000;
}

void NetworkConfiguratorNamespaceTest::fileServiceDecides()
{
    QFETCH(QString, ports);
    QFETCH(QString, greeting);
    QFETCH(int, most);
    QVERIFY(HostIp("address add 192.168.7.33/24 dev cable"));
    QVERIFY(StartMachine(ports, greeting));
    const QJsonObject result = OnHost({"--ftp", "192.168.7.2"});
    QVERIFY(result.contains("answered"));
    QTEST(result.value("answered").toBool(), "expected");
    QVERIFY(result.value("elapsed").toInt() < most);
}

void NetworkConfiguratorNamespaceTest::fileServiceBehindADeadCableEndsInTime()
{
    QVERIFY(HostIp("address add 192.168.7.33/24 dev cable"));
    QVERIFY(MachineIp("address flush dev gadget"));
    const QJsonObject result = OnHost({"--ftp", "192.168.7.2"});
    QVERIFY(!result.value("answered").toBool(true));
    QVERIFY(result.value("elapsed").toInt() < 5000);
}

namespace {

/** The computer's part: runs the search and tells its result. */
int Configure(int rounds)
{
    const NetworkConfigurator::Result result = NetworkConfigurator::autoDiscoverAndConfigureCnc(rounds);
    QJsonArray adapters;
    for (const std::array<QString, 3>& adapter : result.listAdapters) {
        adapters.append(QJsonArray{adapter[0], adapter[1], adapter[2]});
    }
    const QJsonObject told{{"status", result.iStatus},
                           {"detail", result.strDetail},
                           {"adapter", result.strAdapter},
                           {"address", result.strAddress},
                           {"adapters", adapters}};
    puts(QJsonDocument(told).toJson(QJsonDocument::Compact).constData());
    return 0;
}

/** The computer's part: asks the file service and tells how long that took. */
int AskFileService(const QString& ip)
{
    QElapsedTimer clock;
    clock.start();
    const bool answered = FtpConnection(ip);
    const QJsonObject told{{"answered", answered}, {"elapsed", int(clock.elapsed())}};
    puts(QJsonDocument(told).toJson(QJsonDocument::Compact).constData());
    return 0;
}

/** The machine's part: listens until its input ends, and greets in packets parted by "|"; "!" closes at once. */
int Serve(const QStringList& ports, const QStringList& packets)
{
    QTcpServer servers[2];
    for (int i = 0; i < ports.size(); ++i) {
        QTcpServer* server = &servers[i];
        if (!server->listen(QHostAddress(QString("192.168.7.2")), ports.at(i).toUShort())) {
            return 1;
        }
        QObject::connect(server, &QTcpServer::newConnection, server, [server, packets] {
            QTcpSocket* socket = server->nextPendingConnection();
            for (int packet = 0; packet < packets.size(); ++packet) {
                QTimer::singleShot(100 * packet, socket, [socket, text = packets.at(packet).toUtf8()] {
                    if (text == "!") {
                        socket->close();
                    } else {
                        socket->write(text);
                        socket->flush();
                    }
                });
            }
        });
    }
    puts("ready");
    fflush(stdout);
    const std::unique_ptr<QThread> input(QThread::create([] {
        while (getchar() != EOF) {
        }
        QCoreApplication::quit();
    }));
    input->start();
    const int code = QCoreApplication::exec();
    input->wait();
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("LC_ALL", "C.UTF-8");
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString part = arguments.value(1);
    if (part == "--machine") {
        return Serve(arguments.value(2).split(QLatin1Char(',')), arguments.value(3).split(QLatin1Char('|')));
    }
    const QTemporaryDir folder;
    CDebugLog::SetLogFile(folder.filePath("test.log"));
    if (part == "--hello") {
        return 0;
    }
    if (part == "--configure") {
        return Configure(arguments.value(2).toInt());
    }
    if (part == "--configure-on-worker") {
        const std::unique_ptr<QThread> worker(QThread::create([&] { Configure(arguments.value(2).toInt()); }));
        worker->start();
        return worker->wait() ? 0 : 1;
    }
    if (part == "--ftp") {
        return AskFileService(arguments.value(2));
    }
    NetworkConfiguratorNamespaceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "NetworkConfiguratorNamespaceTest.moc"

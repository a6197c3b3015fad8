#include <tests/support/SimulatorProcess.h>
#include <tests/support/TestMain.h>

#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

#include <csignal>
#include <memory>
#include <vector>

namespace {

const QByteArray kRequest("{\n    \"action\": \"GET_SN_FROM_3255\"\n}\n");
const QByteArray kAnswer("{\"errorCode\":0,\"data\":\"ABC123\"}");
constexpr qint64 kHugeBytes = 100 * 1024 * 1024;

// A host's side of one connection: what arrived, in the pieces in which it arrived.
class Host : public QTcpSocket
{
public:
    Host()
    {
        setProxy(QNetworkProxy::NoProxy);
        connect(this, &QTcpSocket::readyRead, this, [this] {
            const QByteArray piece = readAll();
            m_iBytes += piece.size();
            if (++m_iPieces == 1) {
                m_firstPiece = piece;
            }
            // The end is enough of an answer that is 100 MiB long.
            m_received = (m_received + piece).right(64 * 1024);
        });
    }

    void Ask(const QString& address, quint16 port, const QByteArray& request)
    {
        connect(this, &QTcpSocket::connected, this, [this, request] { write(request); });
        connectToHost(address, port);
    }

    bool IsClosed() const { return state() == UnconnectedState; }

    QByteArray m_received;
    QByteArray m_firstPiece;
    qint64 m_iBytes = 0;
    int m_iPieces = 0;
};

quint16 FreePort(const QString& address)
{
    QTcpServer server;
    server.listen(QHostAddress(address), 0);
    return server.serverPort();
}

} // namespace

class MachineSimulatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsItsSerialNumberToTheByte();
    void takesARequestThatArrivesByteByByte();
    void answersOnlyOnceOnAConnection();
    void refusesAWrongRequestAndGoesOn_data();
    void refusesAWrongRequestAndGoesOn();
    void outlivesARequestOfManyMegabytes();
    void closesAHostThatIdles_data();
    void closesAHostThatIdles();
    void outlivesAHostThatLeavesAtOnce();
    void answersTwoHundredHostsAtOnce();
    void turnsAwayAFloodAndRecovers();

    void contentFaultsArriveInOnePiece_data();
    void contentFaultsArriveInOnePiece();
    void splitAnswersInTwoPieces();
    void slowAnswersByteByByte();
    void closeClosesWithoutAWord();
    void silentStaysConnectedWithoutAWord();
    void lateAnswersAfterAHostHasGivenUp();
    void hugeAnswersWithAHundredMebibytes();
    void hugeOutlivesAHostThatLeavesMidway();

    void fileServiceGreetsAndSaysGoodbye();
    void fileServiceEndsACommandWithoutAnEnd();
    void faultFtpDownRefusesTheFileServiceOnly();
    void announcesItselfAtOnceAndEverySecond();

    void endsCleanlyOnASignal_data();
    void endsCleanlyOnASignal();
    void badOptionsEndWithTwo_data();
    void badOptionsEndWithTwo();
    void aTakenPortEndsWithOne_data();
    void aTakenPortEndsWithOne();
    void helpAndVersionAreAnswered();
    void logsEachExchange();

private:
    // Every test function has a loopback address of its own, so that none meets another's leftovers.
    bool StartMachine(SimulatorProcess& machine, const QStringList& more = {});
    QByteArray AskOnce(const SimulatorProcess& machine, const QByteArray& request = kRequest);

    QString m_strAddress;
    int m_iAddress = 1;
};

void MachineSimulatorTest::initTestCase()
{
    if (SimulatorProcess::Program().isEmpty()) {
        QSKIP("this build has no machine-simulator");
    }
}

bool MachineSimulatorTest::StartMachine(SimulatorProcess& machine, const QStringList& more)
{
    m_strAddress = QStringLiteral("127.0.41.%1").arg(m_iAddress++);
    return machine.Start(
        QStringList{"--address", m_strAddress, "--port", "0", "--ftp-port", "0", "--serial", "ABC123"} + more);
}

// What a machine answered; empty when nothing came in time.
QByteArray MachineSimulatorTest::AskOnce(const SimulatorProcess& machine, const QByteArray& request)
{
    Host host;
    host.Ask(m_strAddress, machine.Port(), request);
    [[maybe_unused]] const bool answered = QTest::qWaitFor(
        [&host] { return host.m_iBytes > 0 || host.error() == QAbstractSocket::RemoteHostClosedError; });
    return host.m_received;
}

void MachineSimulatorTest::tellsItsSerialNumberToTheByte()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.m_received, kAnswer);
    QCOMPARE(host.m_iPieces, 1);
    QCOMPARE(host.state(), QAbstractSocket::ConnectedState);
}

void MachineSimulatorTest::takesARequestThatArrivesByteByByte()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    Host host;
    host.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    host.Ask(m_strAddress, machine.Port(), kRequest.left(1));
    QTRY_COMPARE(host.state(), QAbstractSocket::ConnectedState);
    for (const char byte : kRequest.mid(1)) {
        QCOMPARE(host.m_iBytes, 0);
        host.write(&byte, 1);
        QVERIFY(host.flush());
        QTRY_COMPARE(host.bytesToWrite(), 0);
        if (byte == '}') {
            break; // the line feed behind it comes too late to matter
        }
    }
    QTRY_COMPARE(host.m_received, kAnswer);
}

void MachineSimulatorTest::answersOnlyOnceOnAConnection()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest + kRequest);
    QTRY_COMPARE(host.m_received, kAnswer);
    host.write(kRequest);
    host.disconnectFromHost();
    QVERIFY(machine.WaitForLog(QStringLiteral("(of 111)")));
    QTRY_VERIFY(host.IsClosed());
    QCOMPARE(host.m_received, kAnswer);
}

void MachineSimulatorTest::refusesAWrongRequestAndGoesOn_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("answerStart");
    QTest::newRow("unknown action") << QByteArray("{\"action\":\"X\"}") << QByteArray("{\"errorCode\":1,\"msg\":\"");
    QTest::newRow("web request") << QByteArray("GET / HTTP/1.1\r\n\r\n") << QByteArray("{\"errorCode\":2,\"msg\":\"");
    QTest::newRow("bytes") << QByteArray("\0\xff\xfe\x80", 4) << QByteArray("{\"errorCode\":2,\"msg\":\"");
    QTest::newRow("array") << QByteArray("[]") << QByteArray("{\"errorCode\":2,\"msg\":\"");
    QTest::newRow("deep nesting") << QByteArray(4000, '{') + QByteArray(4000, '}')
                                  << QByteArray("{\"errorCode\":3,\"msg\":\"");
}

void MachineSimulatorTest::refusesAWrongRequestAndGoesOn()
{
    QFETCH(const QByteArray, request);
    QFETCH(const QByteArray, answerStart);
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    QCOMPARE(AskOnce(machine, request).left(answerStart.size()), answerStart);
    QCOMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::outlivesARequestOfManyMegabytes()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), '{' + QByteArray(16 * 1024 * 1024, 'x'));
    QTRY_COMPARE(host.m_received, QByteArray("{\"errorCode\":3,\"msg\":\"request too large\"}"));
    QTRY_COMPARE(host.bytesToWrite(), 0); // the rest is taken and dropped, not left to choke the host
    QCOMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::closesAHostThatIdles_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("says nothing") << QByteArray();
    QTest::newRow("says half") << QByteArray("{\"action\":");
    QTest::newRow("stays after the answer") << kRequest;
}

void MachineSimulatorTest::closesAHostThatIdles()
{
    QFETCH(const QByteArray, request);
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--idle-limit", "1"}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), request);
    QTRY_COMPARE(host.error(), QAbstractSocket::RemoteHostClosedError);
    QVERIFY(machine.WaitForLog(QStringLiteral("ended: idle for too long")));
}

void MachineSimulatorTest::outlivesAHostThatLeavesAtOnce()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    for (int i = 0; i < 20; ++i) {
        Host host;
        host.Ask(m_strAddress, machine.Port(), i % 2 ? kRequest : QByteArray());
        QTRY_COMPARE(host.state(), QAbstractSocket::ConnectedState);
        host.abort();
    }
    QCOMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::answersTwoHundredHostsAtOnce()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    std::vector<std::unique_ptr<Host>> hosts;
    for (int i = 0; i < 200; ++i) {
        hosts.push_back(std::make_unique<Host>());
        hosts.back()->Ask(m_strAddress, machine.Port(), kRequest);
    }
    for (const auto& host : hosts) {
        QTRY_COMPARE_WITH_TIMEOUT(host->m_received, kAnswer, 20000);
    }
    // All of them were there together: none has been closed.
    for (const auto& host : hosts) {
        QCOMPARE(host->state(), QAbstractSocket::ConnectedState);
    }
}

void MachineSimulatorTest::turnsAwayAFloodAndRecovers()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--idle-limit", "600"}), machine.Errors());
    {
        std::vector<std::unique_ptr<Host>> hosts;
        for (int i = 0; i < 520; ++i) {
            hosts.push_back(std::make_unique<Host>());
            hosts.back()->Ask(m_strAddress, machine.Port(), QByteArray());
        }
        QVERIFY(machine.WaitForLog(QStringLiteral("turned away: too many connections"), 20000));
    }
    QTRY_COMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::contentFaultsArriveInOnePiece_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("array") << '[' + kAnswer + ']';
    QTest::newRow("empty-serial") << QByteArray("{\"errorCode\":0,\"data\":\"\"}");
    QTest::newRow("error:7:too hot: wait") << QByteArray("{\"errorCode\":7,\"msg\":\"too hot: wait\"}");
    QTest::newRow("error:7") << QByteArray("{\"errorCode\":7}");
    QTest::newRow("garbage") << QByteArray("\xff\xfe{\"errorCode\":\x00 \xc3\x28 \x80garbage\r\n", 30);
}

void MachineSimulatorTest::contentFaultsArriveInOnePiece()
{
    QFETCH(const QByteArray, answer);
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", QString::fromLatin1(QTest::currentDataTag())}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.m_received, answer);
    QCOMPARE(host.m_iPieces, 1);
}

void MachineSimulatorTest::splitAnswersInTwoPieces()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "split"}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.m_received, kAnswer);
    QCOMPARE(host.m_firstPiece, kAnswer.left(kAnswer.size() / 2));
    QCOMPARE(host.m_iPieces, 2);
}

void MachineSimulatorTest::slowAnswersByteByByte()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "slow"}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.m_received, kAnswer);
    // A busy computer may gather a few of them.
    QVERIFY(host.m_firstPiece.size() < kAnswer.size());
    QVERIFY2(host.m_iPieces > 5, qPrintable(QString::number(host.m_iPieces)));
}

void MachineSimulatorTest::closeClosesWithoutAWord()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "close"}), machine.Errors());
    for (int i = 0; i < 20; ++i) {
        Host host;
        host.Ask(m_strAddress, machine.Port(), kRequest);
        QTRY_VERIFY(host.IsClosed());
        QCOMPARE(host.error(), QAbstractSocket::RemoteHostClosedError);
        QCOMPARE(host.m_iBytes, 0);
    }
    QVERIFY(machine.WaitForLog(QStringLiteral("answered nothing | ended: the machine closed")));
}

void MachineSimulatorTest::silentStaysConnectedWithoutAWord()
{
    // The idle limit of a healthy machine would have ended it within the wait.
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "silent", "--idle-limit", "1"}), machine.Errors());
    Host host;
    QSignalSpy readyRead(&host, &QTcpSocket::readyRead);
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QVERIFY(!readyRead.wait(1500));
    QCOMPARE(host.state(), QAbstractSocket::ConnectedState);
    host.abort();
    QVERIFY(machine.WaitForLog(QStringLiteral("answered nothing | ended: the host closed")));
}

void MachineSimulatorTest::lateAnswersAfterAHostHasGivenUp()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "late", "--idle-limit", "1"}), machine.Errors());
    QElapsedTimer clock;
    clock.start();
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE_WITH_TIMEOUT(host.m_received, kAnswer, 20000);
    QVERIFY2(clock.elapsed() > 5500, qPrintable(QString::number(clock.elapsed())));
}

void MachineSimulatorTest::hugeAnswersWithAHundredMebibytes()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "huge"}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE_WITH_TIMEOUT(host.m_iBytes, kHugeBytes, 60000);
    QVERIFY(host.m_received.endsWith("AAA\"}"));
    host.disconnectFromHost();
    QVERIFY(machine.WaitForLog(QStringLiteral("answered 104857600 bytes, in pieces")));
#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__)
    QFile status(QStringLiteral("/proc/%1/status").arg(machine.ProcessId()));
    QVERIFY(status.open(QIODevice::ReadOnly));
    const QRegularExpression peak(QStringLiteral("VmHWM:\\s+(\\d+) kB"));
    const int kilobytes = peak.match(QString::fromLatin1(status.readAll())).captured(1).toInt();
    QVERIFY2(kilobytes > 0 && kilobytes < 64 * 1024, qPrintable(QString::number(kilobytes)));
#endif
}

void MachineSimulatorTest::hugeOutlivesAHostThatLeavesMidway()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "huge"}), machine.Errors());
    for (int i = 0; i < 3; ++i) {
        Host host;
        host.Ask(m_strAddress, machine.Port(), kRequest);
        QTRY_VERIFY(host.m_iBytes > 0);
        host.abort();
    }
    QCOMPARE(AskOnce(machine, "{}"), QByteArray("{\"errorCode\":1,\"msg\":\"unknown action\"}"));
}

void MachineSimulatorTest::fileServiceGreetsAndSaysGoodbye()
{
    SimulatorProcess machine;
    const quint16 port = FreePort(QStringLiteral("127.0.41.%1").arg(m_iAddress));
    QVERIFY2(StartMachine(machine, {"--ftp-port", QString::number(port)}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, port, QByteArray());
    QTRY_VERIFY(host.m_received.endsWith("\r\n"));
    QVERIFY(host.m_received.startsWith("220 "));
    host.m_received.clear();
    host.write("NOOP\r\nQU");
    QTRY_COMPARE(host.m_received, QByteArray("200 OK\r\n"));
    host.write("IT\r\n");
    QTRY_COMPARE(host.m_received, QByteArray("200 OK\r\n221 Goodbye\r\n"));
    QTRY_VERIFY(host.IsClosed());
    QVERIFY(machine.WaitForLog(QStringLiteral("2 commands | ended: QUIT")));
}

void MachineSimulatorTest::fileServiceEndsACommandWithoutAnEnd()
{
    SimulatorProcess machine;
    const quint16 port = FreePort(QStringLiteral("127.0.41.%1").arg(m_iAddress));
    QVERIFY2(StartMachine(machine, {"--ftp-port", QString::number(port)}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, port, QByteArray(100000, 'x'));
    QTRY_COMPARE(host.error(), QAbstractSocket::RemoteHostClosedError);
    QVERIFY(machine.WaitForLog(QStringLiteral("0 commands | ended: a command without an end")));
    QCOMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::faultFtpDownRefusesTheFileServiceOnly()
{
    SimulatorProcess machine;
    const quint16 port = FreePort(QStringLiteral("127.0.41.%1").arg(m_iAddress));
    QVERIFY2(StartMachine(machine, {"--ftp-port", QString::number(port), "--fault", "ftp-down"}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, port, QByteArray());
    QTRY_COMPARE(host.error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(AskOnce(machine), kAnswer);
}

void MachineSimulatorTest::announcesItselfAtOnceAndEverySecond()
{
    QUdpSocket listener;
    QVERIFY(listener.bind(QHostAddress::LocalHost, 0));
    QElapsedTimer clock;
    clock.start();
    qint64 first = 0;
    QList<QByteArray> heard;
    connect(&listener, &QUdpSocket::readyRead, this, [&] {
        while (listener.hasPendingDatagrams()) {
            heard += listener.receiveDatagram().data();
            if (heard.size() == 1) {
                first = clock.elapsed();
            }
        }
    });
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--announce", "--announce-port", QString::number(listener.localPort()), "--model",
                                    "V2", "--interface", "eth0", "--announced-address", "10.1.2.3"}),
             machine.Errors());
    const QByteArray announcement = QStringLiteral("VELMAR*ABC123*V2*10.1.2.3*%1*eth0").arg(machine.Port()).toUtf8();
    // Sent before "ready" was printed, so it needs no second.
    QTRY_COMPARE_WITH_TIMEOUT(heard, QList<QByteArray>{announcement}, 900);
    QTRY_COMPARE_WITH_TIMEOUT(heard.size(), 3, 10000);
    QCOMPARE(heard, QList<QByteArray>(3, announcement));
    QVERIFY2(clock.elapsed() - first > 1500, qPrintable(QString::number(clock.elapsed() - first)));
}

void MachineSimulatorTest::endsCleanlyOnASignal_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("fault");
    QTest::newRow("SIGTERM") << SIGTERM << QString();
    QTest::newRow("SIGINT") << SIGINT << QString();
    QTest::newRow("SIGTERM in a silence") << SIGTERM << QStringLiteral("silent");
    QTest::newRow("SIGTERM in a flood") << SIGTERM << QStringLiteral("huge");
    QTest::newRow("SIGTERM before a late answer") << SIGTERM << QStringLiteral("late");
}

void MachineSimulatorTest::endsCleanlyOnASignal()
{
#ifdef Q_OS_WIN
    QSKIP("a console program is not sent signals here");
#endif
    QFETCH(const int, number);
    QFETCH(const QString, fault);
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, fault.isEmpty() ? QStringList() : QStringList{"--fault", fault}), machine.Errors());
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.state(), QAbstractSocket::ConnectedState);
    if (fault.isEmpty() || fault == QLatin1String("huge")) {
        QTRY_VERIFY(host.m_iBytes > 0);
    }
    QCOMPARE(machine.Stop(number), 0);
    QCOMPARE(machine.Log().constLast(), QStringLiteral("stopped"));
    QVERIFY(machine.Errors().isEmpty());
    QTRY_VERIFY(host.IsClosed());
}

void MachineSimulatorTest::badOptionsEndWithTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{"--colour"};
    QTest::newRow("port") << QStringList{"--port", "70000"};
    QTest::newRow("fault") << QStringList{"--fault", "fire"};
    QTest::newRow("address") << QStringList{"--address", "nowhere"};
    QTest::newRow("stray argument") << QStringList{"now"};
}

void MachineSimulatorTest::badOptionsEndWithTwo()
{
    QFETCH(const QStringList, arguments);
    SimulatorProcess machine;
    QCOMPARE(machine.Run(arguments), 2);
    QVERIFY(machine.Errors().startsWith("machine-simulator: "));
    QVERIFY(machine.Log().isEmpty());
}

void MachineSimulatorTest::aTakenPortEndsWithOne_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("machine") << QStringList{"--ftp-port", "0", "--port"};
    QTest::newRow("file service") << QStringList{"--port", "0", "--ftp-port"};
}

void MachineSimulatorTest::aTakenPortEndsWithOne()
{
    QFETCH(const QStringList, arguments);
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress::LocalHost, 0));
    SimulatorProcess machine;
    QVERIFY(!machine.Start(arguments + QStringList{QString::number(taken.serverPort())}));
    QCOMPARE(machine.ExitCode(), 1);
    QVERIFY(machine.Errors().contains(QByteArray::number(taken.serverPort())));
    QVERIFY(machine.Log().isEmpty());
}

void MachineSimulatorTest::helpAndVersionAreAnswered()
{
    SimulatorProcess machine;
    QCOMPARE(machine.Run({"--help"}), 0);
    QVERIFY(machine.Log().join(u'\n').contains(QStringLiteral("empty-serial")));
    QCOMPARE(machine.Run({"--version"}), 0);
    QVERIFY(machine.Log().constFirst().startsWith(QStringLiteral("machine-simulator ")));
}

void MachineSimulatorTest::logsEachExchange()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    QCOMPARE(machine.Log().constFirst(),
             QStringLiteral("ready machine=%1:%2 serial=ABC123").arg(m_strAddress).arg(machine.Port()));
    Host host;
    host.Ask(m_strAddress, machine.Port(), kRequest);
    QTRY_COMPARE(host.m_received, kAnswer);
    const QString peer = QStringLiteral("%1:%2").arg(host.localAddress().toString()).arg(host.localPort());
    host.disconnectFromHost();
    QVERIFY(machine.WaitForLog(QStringLiteral("ended: ")));
    QCOMPARE(machine.Log().constLast(),
             QStringLiteral(
                 "machine %1 | request 36 bytes {\\n    \"action\": \"GET_SN_FROM_3255\"\\n} (of 37) | answered 31 "
                 "bytes {\"errorCode\":0,\"data\":\"ABC123\"} | ended: the host closed")
                 .arg(peer));
}

CUSTOMCONTROLS_TEST_MAIN(MachineSimulatorTest)
#include "MachineSimulatorTest.moc"

#include <CustomControls/machine/CSelectMachineBox.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>

#include <QNetworkProxy>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

#include <array>
#include <memory>

namespace {

const QString Failed = QStringLiteral("获取机床序列号失败");
const QString NoSerial = QStringLiteral("获取机床序列号失败：序列号为空");
const QString TimedOut = QStringLiteral("连接超时，请检查机床连接状态");

constexpr char Request[] = "{\n    \"action\": \"GET_SN_FROM_3255\"\n}\n";

// A machine on loopback: does what a test says when it is connected to and when the whole request has come.
class Machine : public QTcpServer
{
public:
    using Deed = std::function<void(QTcpSocket* socket)>;

    explicit Machine(Deed onRequest = {}, Deed onConnection = {})
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, onRequest, onConnection] {
            QTcpSocket* socket = nextPendingConnection();
            ++connections;
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket, onRequest] {
                request += socket->readAll();
                if (request.size() >= int(sizeof Request) - 1 && onRequest) {
                    onRequest(socket);
                }
            });
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++disconnections; });
            if (onConnection) {
                onConnection(socket);
            }
        });
    }

    QByteArray request;
    int connections = 0;
    int disconnections = 0;
};

Machine::Deed Answer(const QByteArray& bytes)
{
    return [bytes](QTcpSocket* socket) { socket->write(bytes); };
}

QByteArray Nested(const char* open, int depth)
{
    QByteArray bytes;
    for (int i = 0; i < depth; ++i) {
        bytes += open;
    }
    return bytes;
}

} // namespace

class MachineSerialQueryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void requestIsTheseBytes();
    void returnsAtOnce();
    void answers_data();
    void answers();
    void splitAnswerFailsAndIsNotReadOn();
    void machineThatResetsAmidItsAnswerFailsOnce();
    void answerInTheMachinesOwnTimeIsTaken();
    void refusedConnectionTellsTheSocketsText();
    void emptyAddressFails();
    void machineThatGoesAwayFails_data();
    void machineThatGoesAwayFails();
    void silentMachineTimesOutOnce();
    void machineOutOfReachLeavesNoSocketThatTries();
    void answerAndThenAResetIsOneAnswer();
    void applicationProxyIsNotUsed();
    void endlessAnswerIsCutOff();
    void endlessAnswerPilesUpNothingWhileAReceiverWaits();
    void machineGoesAwayWhileAReceiverWaits();
    void objectsAreReleasedAfterTheAnswer();
    void twoQueriesRunSideBySide();
    void errorIsNotClearedAtTheStart();
    void panelDeletedInTheResultsSlot_data();
    void panelDeletedInTheResultsSlot();
    void panelDeletedMeanwhile_data();
    void panelDeletedMeanwhile();

private:
    std::unique_ptr<CSelectMachineBox> m_panel;
    std::unique_ptr<QSignalSpy> m_spy;
    std::unique_ptr<LogCapture> m_log;
    QString m_strError;

    void Ask(const Machine& machine)
    {
        m_panel->GetMachineSNViaTcp(m_strError, QStringLiteral("127.0.0.1"), machine.serverPort());
    }
    QList<QVariant> Result() const { return m_spy->value(0); }
    static QList<QVariant> Failure(const QString& text) { return {false, QString(), text}; }
};

void MachineSerialQueryTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    m_panel = std::make_unique<CSelectMachineBox>(nullptr);
    m_panel->setAttribute(Qt::WA_DeleteOnClose, false);
    m_spy = std::make_unique<QSignalSpy>(m_panel.get(), &CSelectMachineBox::SignalGetMachineSNFinished);
    m_log = std::make_unique<LogCapture>();
    m_strError = QStringLiteral("untouched");
}

void MachineSerialQueryTest::cleanup()
{
    m_log.reset();
    m_spy.reset();
    m_panel.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MachineSerialQueryTest::requestIsTheseBytes()
{
    Machine machine(Answer("{\"data\":\"S\"}"));
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(machine.request, QByteArray(Request));
    QCOMPARE(machine.request.size(), 37);
    QTRY_COMPARE(machine.disconnections, 1);
    QCOMPARE(machine.connections, 1);
}

void MachineSerialQueryTest::returnsAtOnce()
{
    Machine machine(Answer("{\"data\":\"S\"}"));
    Ask(machine);
    QCOMPARE(m_spy->count(), 0);
    QCOMPARE(m_panel->findChildren<QTcpSocket*>().size(), 1);
    const auto* socket = m_panel->findChild<QTcpSocket*>();
    QCOMPARE(socket->proxy().type(), QNetworkProxy::NoProxy);
    const QList<QTimer*> timers = m_panel->findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
    QVERIFY(std::any_of(timers.begin(), timers.end(),
                        [](const QTimer* timer) { return timer->isSingleShot() && timer->interval() == 5000; }));
}

void MachineSerialQueryTest::answers_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("serial"); // empty: a failure
    QTest::addColumn<QString>("message");
    const auto good = [](const char* name, const QByteArray& answer, const QString& serial) {
        QTest::newRow(name) << answer << serial << QString();
    };
    const auto bad = [](const char* name, const QByteArray& answer, const QString& message) {
        QTest::newRow(name) << answer << QString() << message;
    };
    const QString abc = QStringLiteral("ABC123");
    good("success", R"({"errorCode":0,"data":"ABC123"})", abc);
    good("errorCode missing", R"({"data":"ABC123"})", abc);
    good("errorCode null", R"({"errorCode":null,"data":"ABC123"})", abc);
    good("errorCode as text", R"({"errorCode":"7","data":"ABC123"})", abc);
    good("errorCode as bool", R"({"errorCode":true,"data":"ABC123"})", abc);
    good("errorCode with a fraction", R"({"errorCode":7.5,"data":"ABC123"})", abc);
    good("errorCode beyond an int", R"({"errorCode":1e20,"data":"ABC123"})", abc);
    good("errorCode minus zero", R"({"errorCode":-0.0,"data":"ABC123"})", abc);
    good("other members", R"({"x":[{}],"data":"ABC123","msg":"ignored"})", abc);
    good("blanks around", " \r\n{\"data\" : \"ABC123\"}\n\n", abc);
    good("two characters", R"({"data":"S1"})", QStringLiteral("S1"));
    good("beyond ASCII", "{\"data\":\"机床1\"}", QStringLiteral("机床1"));
    good("percent signs", R"({"data":"%1%2"})", QStringLiteral("%1%2"));
    bad("errorCode alone", R"({"errorCode":7})", Failed + QStringLiteral("："));
    bad("errorCode and msg", R"({"errorCode":7,"msg":"busy","data":"ABC123"})", Failed + QStringLiteral("：busy"));
    bad("errorCode as whole double", R"({"errorCode":7.0,"msg":"busy"})", Failed + QStringLiteral("：busy"));
    bad("errorCode negative", R"({"errorCode":-1,"msg":"%1 busy"})", Failed + QStringLiteral("：%1 busy"));
    bad("msg as number", R"({"errorCode":7,"msg":7})", Failed + QStringLiteral("："));
    bad("data empty", R"({"errorCode":0,"data":""})", NoSerial);
    bad("data missing", R"({"errorCode":0})", NoSerial);
    bad("data as number", R"({"errorCode":0,"data":123})", NoSerial);
    bad("data as array", R"({"data":["ABC123"]})", NoSerial);
    bad("empty object", "{}", NoSerial);
    bad("array", "[1,2]", Failed);
    bad("half an object", R"({"errorCode":0,"da)", Failed);
    bad("two objects", R"({"data":"A"}{"data":"B"})", Failed);
    bad("text", "hello", Failed);
    bad("NUL bytes", QByteArray(64, '\0'), Failed);
    bad("broken UTF-8", "{\"data\":\"\xff\xfe\xc3\"}", Failed);
    bad("deep arrays", Nested("[", 100000), Failed);
    bad("deep objects", Nested("{\"a\":", 20000), Failed);
}

void MachineSerialQueryTest::answers()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, serial);
    QFETCH(QString, message);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("GetMachineSNViaTcp - 收到响应：")));
    Machine machine(Answer(answer));
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QTRY_COMPARE(machine.disconnections, 1);
    QCOMPARE(m_spy->count(), 1);
    QStringList lines = {QStringLiteral("GetMachineSNViaTcp - TCP连接已建立"),
                         QStringLiteral("GetMachineSNViaTcp - 收到响应")};
    if (message.isEmpty()) {
        QCOMPARE(Result(), QList<QVariant>({true, serial, QString()}));
        QCOMPARE(m_strError, QStringLiteral("untouched"));
        lines << QStringLiteral("GetMachineSNViaTcp成功,sn(right3):") + serial.right(3);
    } else {
        QCOMPARE(Result(), Failure(message));
        QCOMPARE(m_strError, message);
    }
    QCOMPARE(m_log->Lines(), lines);
}

void MachineSerialQueryTest::splitAnswerFailsAndIsNotReadOn()
{
    QTcpSocket* peer = nullptr;
    Machine machine([&](QTcpSocket* socket) {
        peer = socket;
        socket->write(R"({"errorCode":0,)");
    });
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(Result(), Failure(Failed));
    QVERIFY(peer != nullptr);
    peer->write(R"("data":"ABC123"})");
    QTRY_COMPARE(machine.disconnections, 1);
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(m_strError, Failed);
}

// What has arrived by then counts: the half answer, or the end of the connection where the system drops it.
void MachineSerialQueryTest::machineThatResetsAmidItsAnswerFailsOnce()
{
    Machine machine([](QTcpSocket* socket) {
        socket->write(R"({"errorCode":0,"da)");
        socket->flush();
        socket->abort();
    });
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QVERIFY(!Result().at(0).toBool());
    QVERIFY(!Result().at(2).toString().isEmpty());
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::answerInTheMachinesOwnTimeIsTaken()
{
    Machine machine([](QTcpSocket* socket) {
        QTimer::singleShot(700, socket, [socket] { socket->write(R"({"data":"SLOW1"})"); });
    });
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(Result(), QList<QVariant>({true, QStringLiteral("SLOW1"), QString()}));
}

void MachineSerialQueryTest::refusedConnectionTellsTheSocketsText()
{
    quint16 port = 0;
    {
        const Machine gone;
        port = gone.serverPort();
    }
    m_panel->GetMachineSNViaTcp(m_strError, QStringLiteral("127.0.0.1"), port);
    QTRY_COMPARE(m_spy->count(), 1);
    QTcpSocket same;
    same.connectToHost(QStringLiteral("127.0.0.1"), port);
    QTRY_VERIFY(same.error() != QAbstractSocket::UnknownSocketError);
    QCOMPARE(Result(), Failure(same.errorString()));
    QCOMPARE(m_strError, QStringLiteral("untouched"));
    QCOMPARE(m_log->Lines(), QStringList(QStringLiteral("GetMachineSNViaTcp - TCP连接错误：") + same.errorString()));
}

void MachineSerialQueryTest::emptyAddressFails()
{
    m_panel->GetMachineSNViaTcp(m_strError, QString(), 5002);
    QTRY_COMPARE(m_spy->count(), 1);
    QVERIFY(!Result().at(0).toBool());
    QVERIFY(!Result().at(2).toString().isEmpty());
    QCOMPARE(m_strError, QStringLiteral("untouched"));
}

void MachineSerialQueryTest::machineThatGoesAwayFails_data()
{
    QTest::addColumn<bool>("atOnce");
    QTest::addColumn<bool>("reset");
    QTest::newRow("closes at once") << true << false;
    QTest::newRow("resets at once") << true << true;
    QTest::newRow("closes after the request") << false << false;
    QTest::newRow("resets after the request") << false << true;
}

void MachineSerialQueryTest::machineThatGoesAwayFails()
{
    QFETCH(bool, atOnce);
    QFETCH(bool, reset);
    const Machine::Deed leave = [reset](QTcpSocket* socket) {
        if (reset) {
            socket->abort();
        } else {
            socket->disconnectFromHost();
        }
    };
    Machine machine(atOnce ? Machine::Deed() : leave, atOnce ? leave : Machine::Deed());
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QVERIFY(!Result().at(0).toBool());
    QVERIFY(Result().at(1).toString().isEmpty());
    const QString text = Result().at(2).toString();
    QVERIFY(!text.isEmpty());
    QVERIFY(m_log->Lines().contains(QStringLiteral("GetMachineSNViaTcp - TCP连接错误：") + text));
    QCOMPARE(m_strError, QStringLiteral("untouched"));
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::silentMachineTimesOutOnce()
{
    QTcpSocket* peer = nullptr;
    Machine machine([&](QTcpSocket* socket) { peer = socket; });
    QElapsedTimer clock;
    clock.start();
    Ask(machine);
    QTRY_COMPARE_WITH_TIMEOUT(m_spy->count(), 1, 8000);
    QVERIFY(clock.elapsed() >= 4700); // a coarse timer may come five in a hundred early
    QCOMPARE(Result(), Failure(TimedOut));
    QCOMPARE(m_strError, QStringLiteral("untouched"));
    QCOMPARE(m_log->Lines(), QStringList({QStringLiteral("GetMachineSNViaTcp - TCP连接已建立"),
                                          QStringLiteral("GetMachineSNViaTcp - TCP连接超时")}));
    peer->write(R"({"errorCode":7})"); // too late: neither reported nor written
    QTRY_COMPARE(machine.disconnections, 1);
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
    QCOMPARE(m_strError, QStringLiteral("untouched"));
}

void MachineSerialQueryTest::machineOutOfReachLeavesNoSocketThatTries()
{
#ifndef Q_OS_LINUX
    QSKIP("elsewhere a machine with too many callers refuses at once");
#endif
    // Where the queue of callers is full, the system drops a further one without a word, as a cable does that is out.
    QTcpServer machine;
    machine.setListenBacklogSize(1);
    QVERIFY(machine.listen(QHostAddress::LocalHost));
    machine.pauseAccepting();
    std::array<QTcpSocket, 4> callers;
    for (QTcpSocket& caller : callers) {
        caller.setProxy(QNetworkProxy::NoProxy);
        caller.connectToHost(QHostAddress(QHostAddress::LocalHost), machine.serverPort());
    }
    const auto timers = m_panel->findChildren<QTimer*>().size();
    m_panel->GetMachineSNViaTcp(m_strError, QStringLiteral("127.0.0.1"), machine.serverPort());
    QCOMPARE(m_panel->findChild<QTcpSocket*>()->state(), QAbstractSocket::ConnectingState);
    QTRY_COMPARE_WITH_TIMEOUT(m_spy->count(), 1, 8000);
    QCOMPARE(Result(), Failure(TimedOut));
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QTRY_COMPARE(m_panel->findChildren<QTimer*>().size(), timers);
    QCOMPARE(m_log->Lines(), QStringList(QStringLiteral("GetMachineSNViaTcp - TCP连接超时")));
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::answerAndThenAResetIsOneAnswer()
{
    Machine machine([](QTcpSocket* socket) {
        socket->write(R"({"data":"ABC123"})");
        socket->flush();
        socket->abort();
    });
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(Result(), QList<QVariant>({true, QStringLiteral("ABC123"), QString()}));
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::applicationProxyIsNotUsed()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), 1));
    Machine machine(Answer(R"({"data":"ABC123"})"));
    Ask(machine);
    const bool answered = QTest::qWaitFor([this] { return m_spy->count() == 1; });
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy));
    QVERIFY(answered);
    QVERIFY(Result().at(0).toBool());
}

namespace {
// Writes a hundred mebibytes as fast as they are taken.
void Flood(QTcpSocket* socket)
{
    const auto left = std::make_shared<qint64>(100LL << 20);
    const auto writeOn = [socket, left] {
        while (*left > 0 && socket->bytesToWrite() < (1 << 20)) {
            *left -= socket->write(QByteArray(1 << 16, 'x'));
        }
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, writeOn);
    writeOn();
}
} // namespace

void MachineSerialQueryTest::endlessAnswerIsCutOff()
{
    Machine machine(Flood);
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QCOMPARE(Result(), Failure(Failed));
    QTRY_COMPARE(machine.disconnections, 1);
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::endlessAnswerPilesUpNothingWhileAReceiverWaits()
{
    qint64 piledUp = -1;
    QPointer<QTcpSocket> socketOfTheQuery;
    connect(m_panel.get(), &CSelectMachineBox::SignalGetMachineSNFinished, this, [&] {
        // As long as a message box would wait: until the machine finds that nobody takes its bytes.
        for (int pass = 0; pass < 2000; ++pass) {
            QCoreApplication::processEvents();
        }
        // On a slow machine the query may have let go of its socket by now, and of all that it held.
        piledUp = socketOfTheQuery ? socketOfTheQuery->bytesAvailable() : 0;
    });
    Machine machine(Flood);
    Ask(machine);
    socketOfTheQuery = m_panel->findChild<QTcpSocket*>();
    QTRY_VERIFY(piledUp >= 0);
    QVERIFY2(piledUp <= 1, qPrintable(QString::number(piledUp)));
    QTRY_COMPARE(machine.disconnections, 1);
    QCOMPARE(m_spy->count(), 1);
}

void MachineSerialQueryTest::machineGoesAwayWhileAReceiverWaits()
{
    QTcpSocket* peer = nullptr;
    Machine machine([&](QTcpSocket* socket) {
        peer = socket;
        socket->write(R"({"data":"ABC123"})");
    });
    bool waited = false;
    connect(m_panel.get(), &CSelectMachineBox::SignalGetMachineSNFinished, this, [&] {
        peer->abort();
        waited = QTest::qWaitFor([&] {
            return std::any_of(m_log->Lines().cbegin(), m_log->Lines().cend(),
                               [](const QString& line) { return line.contains(QStringLiteral("TCP连接错误")); });
        });
    });
    Ask(machine);
    QTRY_VERIFY(waited);
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QCOMPARE(m_spy->count(), 1);
    QVERIFY(Result().at(0).toBool());
}

void MachineSerialQueryTest::objectsAreReleasedAfterTheAnswer()
{
    const auto timers = m_panel->findChildren<QTimer*>(Qt::FindDirectChildrenOnly).size();
    Machine machine(Answer(R"({"data":"ABC123"})"));
    Ask(machine);
    QTRY_COMPARE(m_spy->count(), 1);
    QTRY_VERIFY(m_panel->findChildren<QTcpSocket*>().isEmpty());
    QTRY_COMPARE(m_panel->findChildren<QTimer*>(Qt::FindDirectChildrenOnly).size(), timers);
}

void MachineSerialQueryTest::twoQueriesRunSideBySide()
{
    Machine first(Answer(R"({"data":"ONE"})"));
    Machine second(Answer(R"({"errorCode":1,"msg":"two"})"));
    QString otherError;
    Ask(first);
    m_panel->GetMachineSNViaTcp(otherError, QStringLiteral("127.0.0.1"), second.serverPort());
    QTRY_COMPARE(m_spy->count(), 2);
    QCOMPARE(m_strError, QStringLiteral("untouched"));
    QCOMPARE(otherError, Failed + QStringLiteral("：two"));
}

void MachineSerialQueryTest::errorIsNotClearedAtTheStart()
{
    const Machine machine;
    Ask(machine);
    QCOMPARE(m_strError, QStringLiteral("untouched"));
}

void MachineSerialQueryTest::panelDeletedInTheResultsSlot_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("reset");
    QTest::newRow("success") << QByteArray(R"({"data":"ABC123"})") << false;
    QTest::newRow("failure") << QByteArray("[]") << false;
    QTest::newRow("broken connection") << QByteArray() << true;
    QTest::newRow("time-out") << QByteArray() << false;
}

void MachineSerialQueryTest::panelDeletedInTheResultsSlot()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, reset);
    Machine machine([&](QTcpSocket* socket) {
        if (reset) {
            socket->abort();
        } else if (!answer.isEmpty()) {
            socket->write(answer);
        }
    });
    bool deleted = false;
    connect(m_panel.get(), &CSelectMachineBox::SignalGetMachineSNFinished, this, [&] {
        m_panel.reset();
        deleted = true;
    });
    Ask(machine);
    QTRY_VERIFY_WITH_TIMEOUT(deleted, 8000);
    QTRY_COMPARE(machine.disconnections, 1);
}

void MachineSerialQueryTest::panelDeletedMeanwhile_data()
{
    QTest::addColumn<bool>("connected");
    QTest::newRow("connecting") << false;
    QTest::newRow("waiting for the answer") << true;
}

void MachineSerialQueryTest::panelDeletedMeanwhile()
{
    QFETCH(bool, connected);
    Machine machine;
    Ask(machine);
    if (connected) {
        QTRY_COMPARE(machine.request.size(), 37);
    }
    m_panel.reset();
    QCoreApplication::processEvents();
    QTRY_COMPARE(machine.disconnections, machine.connections);
    QCOMPARE(m_spy->count(), 0);
}

CUSTOMCONTROLS_TEST_MAIN(MachineSerialQueryTest)
#include "MachineSerialQueryTest.moc"

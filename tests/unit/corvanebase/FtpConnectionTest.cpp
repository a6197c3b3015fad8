#include <CorvaneBase/FtpConnection.h>

#include <tests/support/TestMain.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>

/** The built-in probe against a service on a loopback address; port 21 takes the right to open low ports. */
class FtpConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void providerTakesThePlaceOfTheProbe();
    void whatIsNoAddressGivesFalseAtOnce_data();
    void whatIsNoAddressGivesFalseAtOnce();
    void refusedConnectionGivesFalse();
    void answerDecides_data();
    void answerDecides();
    void silenceEndsAfterThreeSeconds();
    void tricklingServiceEndsInTime();
    void floodingServiceEndsInTime();
    void probeSaysGoodbye();

private:
    using Talk = std::function<void(QTcpSocket*)>;

    bool Listen(Talk talk)
    {
        m_talk = std::move(talk);
        return m_server->listen(QHostAddress(m_ip), 21);
    }

    /** Probes on a worker thread while the service runs here. */
    bool Probe()
    {
        bool result = false;
        QElapsedTimer clock;
        clock.start();
        const std::unique_ptr<QThread> thread(QThread::create([&] { result = FtpConnection(m_ip); }));
        QEventLoop loop;
        connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
        thread->start();
        loop.exec();
        thread->wait();
        m_iElapsed = clock.elapsed();
        return result;
    }

    const QString m_ip = QStringLiteral("127.0.0.21");
    std::unique_ptr<QTcpServer> m_server;
    Talk m_talk;
    QByteArray m_received;
    qint64 m_iElapsed = 0;
};

void FtpConnectionTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("QAbstractSocket.*")));
    SetFtpConnectionProvider({});
    m_received.clear();
    m_server = std::make_unique<QTcpServer>();
    connect(m_server.get(), &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = m_server->nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { m_received += socket->readAll(); });
        m_talk(socket);
    });
}

void FtpConnectionTest::cleanup()
{
    m_server.reset();
    SetFtpConnectionProvider([](const QString&) { return false; });
}

void FtpConnectionTest::providerTakesThePlaceOfTheProbe()
{
    QString asked;
    SetFtpConnectionProvider([&asked](const QString& ip) {
        asked = ip;
        return true;
    });
    QVERIFY(FtpConnection(QStringLiteral("any text")));
    QCOMPARE(asked, QStringLiteral("any text"));
    SetFtpConnectionProvider({});
    QVERIFY(!FtpConnection(QStringLiteral("any text")));
}

void FtpConnectionTest::whatIsNoAddressGivesFalseAtOnce_data()
{
    QTest::addColumn<QString>("ip");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QString("");
    QTest::newRow("name") << QStringLiteral("machine.invalid");
    QTest::newRow("too long") << QStringLiteral("127.0.0.1.1");
    QTest::newRow("with port") << QStringLiteral("127.0.0.1:21");
    QTest::newRow("Chinese") << QStringLiteral("机床");
}

void FtpConnectionTest::whatIsNoAddressGivesFalseAtOnce()
{
    QFETCH(QString, ip);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!FtpConnection(ip));
    QVERIFY(clock.elapsed() < 1000);
}

void FtpConnectionTest::refusedConnectionGivesFalse()
{
    if (!Listen([](QTcpSocket*) {})) {
        QSKIP("this user may not open port 21");
    }
    m_server->close();
    QVERIFY(!Probe());
}

void FtpConnectionTest::answerDecides_data()
{
    QTest::addColumn<QByteArrayList>("packets");
    QTest::addColumn<bool>("expected");
    QTest::newRow("greeting") << QByteArrayList{"220 ready\r\n"} << true;
    QTest::newRow("greeting in several lines") << QByteArrayList{"220-hello\r\n220 ready\r\n"} << true;
    QTest::newRow("split in two") << QByteArrayList{"22", "0 ready\r\n"} << true;
    QTest::newRow("split in three") << QByteArrayList{"2", "2", "0"} << true;
    QTest::newRow("refusal") << QByteArrayList{"421 busy\r\n"} << false;
    QTest::newRow("garbage") << QByteArrayList{QByteArray("\x00\xff\x16", 3)} << false;
    QTest::newRow("close at once") << QByteArrayList{"CLOSE"} << false;
    QTest::newRow("close in the greeting") << QByteArrayList{"22", "CLOSE"} << false;
}

void FtpConnectionTest::answerDecides()
{
    QFETCH(QByteArrayList, packets);
    const bool listening = Listen([packets](QTcpSocket* socket) {
        for (int i = 0; i < packets.size(); ++i) {
            QTimer::singleShot(50 * i, socket, [socket, packet = packets.at(i)] {
                if (packet == "CLOSE") {
                    socket->close();
                } else {
                    socket->write(packet);
                    socket->flush();
                }
            });
        }
    });
    if (!listening) {
        QSKIP("this user may not open port 21");
    }
    QTEST(Probe(), "expected");
    QVERIFY(m_iElapsed < 2900); // no answer had to run into the limit
}

void FtpConnectionTest::silenceEndsAfterThreeSeconds()
{
    if (!Listen([](QTcpSocket*) {})) {
        QSKIP("this user may not open port 21");
    }
    QVERIFY(!Probe());
    QVERIFY(m_iElapsed >= 2900);
    QVERIFY(m_iElapsed < 5000);
}

void FtpConnectionTest::tricklingServiceEndsInTime()
{
    const bool listening = Listen([](QTcpSocket* socket) {
        socket->write("2");
        auto* timer = new QTimer(socket);
        connect(timer, &QTimer::timeout, socket, [socket] { socket->write(""); });
        timer->start(100);
    });
    if (!listening) {
        QSKIP("this user may not open port 21");
    }
    QVERIFY(!Probe());
    QVERIFY(m_iElapsed < 5000);
}

void FtpConnectionTest::floodingServiceEndsInTime()
{
    const bool listening = Listen([](QTcpSocket* socket) {
        const auto pour = [socket] { socket->write(QByteArray(65536, 'x')); };
        connect(socket, &QTcpSocket::bytesWritten, socket, pour);
        pour();
    });
    if (!listening) {
        QSKIP("this user may not open port 21");
    }
    QVERIFY(!Probe());
    QVERIFY(m_iElapsed < 5000);
}

void FtpConnectionTest::probeSaysGoodbye()
{
    if (!Listen([](QTcpSocket* socket) { socket->write("220 ready\r\n"); })) {
        QSKIP("this user may not open port 21");
    }
    QVERIFY(Probe());
    QTRY_COMPARE(m_received, QByteArray("QUIT\r\n"));
}

CUSTOMCONTROLS_TEST_MAIN(FtpConnectionTest)
#include "FtpConnectionTest.moc"

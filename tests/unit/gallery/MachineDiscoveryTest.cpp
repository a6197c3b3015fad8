#include <examples/gallery/machine/MachineDiscovery.h>

#include <tests/support/TestMain.h>

#include <QUdpSocket>

class MachineDiscoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAnAnnouncement_data();
    void readsAnAnnouncement();
    void tellsEachMachineAndRemembersItsPort();
    void dropsWhatIsNoAnnouncement();
    void clearForgetsThePorts();
    void aTakenPortIsToldWithItsReason();
    void stopListensNoLonger();
};

namespace {
quint16 FreePort()
{
    QUdpSocket socket;
    return socket.bind(QHostAddress::LocalHost, 0) ? socket.localPort() : quint16(0);
}

void Send(quint16 port, const QByteArray& datagram)
{
    QUdpSocket socket;
    QCOMPARE(socket.writeDatagram(datagram, QHostAddress::LocalHost, port), qint64(datagram.size()));
}
} // namespace

void MachineDiscoveryTest::readsAnAnnouncement_data()
{
    QTest::addColumn<QByteArray>("datagram");
    QTest::addColumn<bool>("valid");
    const QByteArray good = "VELMAR*SN1*V1*127.0.0.5*5002*eth0";
    QTest::newRow("as a machine sends it") << good << true;
    QTest::newRow("further fields are left to the panel") << good + "*more" << true;
    QTest::newRow("no interface") << QByteArray("VELMAR*SN1*V1*127.0.0.5*5002") << false;
    QTest::newRow("another sender") << QByteArray("OTHER*SN1*V1*127.0.0.5*5002*eth0") << false;
    QTest::newRow("no serial number") << QByteArray("VELMAR**V1*127.0.0.5*5002*eth0") << false;
    QTest::newRow("a name for an address") << QByteArray("VELMAR*SN1*V1*machine*5002*eth0") << false;
    QTest::newRow("an address of another kind") << QByteArray("VELMAR*SN1*V1*::1*5002*eth0") << false;
    QTest::newRow("port 0") << QByteArray("VELMAR*SN1*V1*127.0.0.5*0*eth0") << false;
    QTest::newRow("port 65536") << QByteArray("VELMAR*SN1*V1*127.0.0.5*65536*eth0") << false;
    QTest::newRow("port in words") << QByteArray("VELMAR*SN1*V1*127.0.0.5*many*eth0") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("not UTF-8") << good + "*\xff\xfe" << false;
    QTest::newRow("just not too long") << good + '*' + QByteArray(1024 - good.size() - 1, 'x') << true;
    QTest::newRow("too long") << good + '*' + QByteArray(1024 - good.size(), 'x') << false;
}

void MachineDiscoveryTest::readsAnAnnouncement()
{
    QFETCH(QByteArray, datagram);
    QFETCH(bool, valid);
    const std::optional<QString> text = MachineDiscovery::ParseAnnouncement(datagram);
    QCOMPARE(text.has_value(), valid);
    if (valid) {
        QCOMPARE(text->toUtf8(), datagram);
    }
}

void MachineDiscoveryTest::tellsEachMachineAndRemembersItsPort()
{
    const quint16 port = FreePort();
    MachineDiscovery discovery(port);
    QSignalSpy found(&discovery, &MachineDiscovery::SignalMachineFound);
    QVERIFY(discovery.Start(nullptr));
    QCOMPARE(discovery.MachinePort(QStringLiteral("127.0.0.5")), MachineDiscovery::DefaultMachinePort);
    Send(port, "VELMAR*SN1*V1*127.0.0.5*5010*eth0");
    QTRY_COMPARE(found.size(), 1);
    QCOMPARE(found.first().first().toString(), QStringLiteral("VELMAR*SN1*V1*127.0.0.5*5010*eth0"));
    QCOMPARE(discovery.MachinePort(QStringLiteral("127.0.0.5")), quint16(5010));
}

void MachineDiscoveryTest::dropsWhatIsNoAnnouncement()
{
    const quint16 port = FreePort();
    MachineDiscovery discovery(port);
    QSignalSpy found(&discovery, &MachineDiscovery::SignalMachineFound);
    QVERIFY(discovery.Start(nullptr));
    Send(port, "hello");
    Send(port, QByteArray());
    Send(port, "VELMAR*SN1*V1*127.0.0.5*5002*eth0*" + QByteArray(4000, 'x'));
    Send(port, "VELMAR*SN2*V1*127.0.0.6*5002*wlan0");
    QTRY_COMPARE(found.size(), 1);
    QVERIFY(found.first().first().toString().contains(QLatin1String("SN2")));
}

void MachineDiscoveryTest::clearForgetsThePorts()
{
    const quint16 port = FreePort();
    MachineDiscovery discovery(port);
    QSignalSpy found(&discovery, &MachineDiscovery::SignalMachineFound);
    QVERIFY(discovery.Start(nullptr));
    Send(port, "VELMAR*SN1*V1*127.0.0.5*5010*eth0");
    QTRY_COMPARE(found.size(), 1);
    discovery.Clear();
    QCOMPARE(discovery.MachinePort(QStringLiteral("127.0.0.5")), MachineDiscovery::DefaultMachinePort);
    Send(port, "VELMAR*SN1*V1*127.0.0.5*5011*eth0");
    QTRY_COMPARE(found.size(), 2);
}

void MachineDiscoveryTest::aTakenPortIsToldWithItsReason()
{
    const quint16 port = FreePort();
    MachineDiscovery first(port);
    MachineDiscovery second(port);
    QString reason;
    QVERIFY(first.Start(&reason));
    QVERIFY(first.Start(&reason));
    QVERIFY(reason.isEmpty());
    QVERIFY(!second.Start(&reason));
    QVERIFY(reason.contains(QString::number(port)));
}

void MachineDiscoveryTest::stopListensNoLonger()
{
    const quint16 port = FreePort();
    MachineDiscovery first(port);
    QVERIFY(first.Start(nullptr));
    first.Stop();
    MachineDiscovery second(port);
    QVERIFY(second.Start(nullptr));
}

CUSTOMCONTROLS_TEST_MAIN(MachineDiscoveryTest)
#include "MachineDiscoveryTest.moc"

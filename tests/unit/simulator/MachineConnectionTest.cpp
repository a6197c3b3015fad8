#include <simulator/MachineConnection.h>

#include <tests/support/TestMain.h>

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

class MachineConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMachineThatClosesAnswersNoRequestThatWasQuicker();
};

void MachineConnectionTest::aMachineThatClosesAnswersNoRequestThatWasQuicker()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QTcpSocket host;
    host.connectToHost(QHostAddress::LocalHost, server.serverPort());
    QVERIFY(host.waitForConnected());
    host.write("{\"action\":\"GET_SN_FROM_3255\"}");
    QVERIFY(host.waitForBytesWritten());
    QVERIFY(server.waitForNewConnection(5000));
    QTcpSocket* accepted = server.nextPendingConnection();

    Fault fault;
    fault.eKind = Fault::Close;
    const QPointer<MachineConnection> machine(
        new MachineConnection(accepted, QStringLiteral("VM-CLOSE-32"), fault, 10000, nullptr));
    QVERIFY(accepted->waitForReadyRead(5000)); // the request is there before the closing
    QTRY_COMPARE(host.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(host.readAll(), QByteArray());
    QCOMPARE(host.error(), QAbstractSocket::RemoteHostClosedError);
    QTRY_VERIFY(!machine);
}

CUSTOMCONTROLS_TEST_MAIN(MachineConnectionTest)
#include "MachineConnectionTest.moc"

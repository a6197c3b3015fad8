#include <CorvaneBase/CorvaneRegisterHelper.h>

#include <tests/support/TestMain.h>

#include <QSignalSpy>

class CorvaneRegisterHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changeIsRecordedAndTold_data();
    void changeIsRecordedAndTold();
    void sameMachineIsToldOnce();

private:
    static CorvaneRegisterHelper* Helper() { return CorvaneRegisterHelper::instance(); }
};

void CorvaneRegisterHelperTest::init()
{
    Helper()->SetCurrentMachineConnectStatus(true, "192.168.7.2", "SN1");
}

void CorvaneRegisterHelperTest::changeIsRecordedAndTold_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<QString>("ip");
    QTest::addColumn<QString>("serial");
    QTest::newRow("state") << false << "192.168.7.2"
                           << "SN1";
    QTest::newRow("address") << true << "10.0.0.1"
                             << "SN1";
    QTest::newRow("serial") << true << "192.168.7.2"
                            << "SN2";
    QTest::newRow("nothing") << false << QString() << QString();
}

void CorvaneRegisterHelperTest::changeIsRecordedAndTold()
{
    QFETCH(bool, connected);
    QFETCH(QString, ip);
    QFETCH(QString, serial);
    QSignalSpy spy(Helper(), &CorvaneRegisterHelper::signalCurrentMachineChanged);
    Helper()->SetCurrentMachineConnectStatus(connected, ip, serial);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.value(0), QVariantList({connected, ip, serial}));
    QCOMPARE(Helper()->m_bConnected, connected);
    QCOMPARE(Helper()->m_strIp, ip);
    QCOMPARE(Helper()->m_strSerial, serial);
}

void CorvaneRegisterHelperTest::sameMachineIsToldOnce()
{
    QSignalSpy spy(Helper(), &CorvaneRegisterHelper::signalCurrentMachineChanged);
    Helper()->SetCurrentMachineConnectStatus(true, "192.168.7.2", "SN1");
    QCOMPARE(spy.size(), 0);
}

CUSTOMCONTROLS_TEST_MAIN(CorvaneRegisterHelperTest)
#include "CorvaneRegisterHelperTest.moc"

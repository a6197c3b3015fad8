#include <CustomControls/machine/CSelectMachineBox.h>

#include <tests/support/SimulatorProcess.h>
#include <tests/support/TestMain.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTcpSocket>
#include <QTimer>
#include <QUdpSocket>

namespace {

constexpr int kSerialColumn = 1;
constexpr int kHostLimitMs = 5000;

// A host as small as can be: listens for machines and feeds the panel, connects where the panel says, answers it.
class Host : public QObject
{
public:
    explicit Host(bool usbOnly = false)
        : m_pPanel(new CSelectMachineBox(nullptr))
    {
        m_listener.bind(QHostAddress::LocalHost, 0);
        connect(&m_listener, &QUdpSocket::readyRead, this, [this, usbOnly] {
            while (m_listener.hasPendingDatagrams()) {
                const QString text = QString::fromUtf8(m_listener.receiveDatagram().data());
                m_hashPort[text.section(u'*', 3, 3)] = text.section(u'*', 4, 4).toUShort();
                if (m_pPanel) {
                    m_pPanel->SetMachineInfo(text, usbOnly);
                }
            }
        });
        connect(m_pPanel, &CSelectMachineBox::SignalMachineSelected, this, &Host::Connect);
        m_pPanel->show();
    }

    ~Host() override { delete m_pPanel; }

    QStringList AnnounceHere() const
    {
        return {QStringLiteral("--announce"), QStringLiteral("--announce-port"),
                QString::number(m_listener.localPort())};
    }

    template <typename Widget>
    Widget* Child(const char* name) const
    {
        return m_pPanel->findChild<Widget*>(QLatin1String(name));
    }

    QAbstractItemModel* List() const { return Child<QTableView>("tableView")->model(); }

    QVariant Machine(int row, int role) const { return List()->data(List()->index(row, kSerialColumn), role); }

    void ClickRow(int row)
    {
        auto* table = Child<QTableView>("tableView");
        const QRect cell = table->visualRect(table->model()->index(row, 0));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    }

    void ClickConnect() { QTest::mouseClick(Child<QPushButton>("m_btnConnect"), Qt::LeftButton); }

    QPointer<CSelectMachineBox> m_pPanel;
    QList<QStringList> m_listSelected; ///< IP and serial number of each SignalMachineSelected
    bool m_bAnswered = false;
    bool m_bOk = false;
    QString m_strError; ///< what the user would be told

private:
    // Asks the machine who it is, as its protocol has it: one request, and an answer that comes whole in one read.
    void Connect(const QString& ip, const QString& serial)
    {
        m_listSelected.append({ip, serial});
        auto* socket = new QTcpSocket(this);
        socket->setProxy(QNetworkProxy::NoProxy);
        auto* limit = new QTimer(socket);
        const auto answer = [this, socket](bool ok, const QString& error) {
            socket->disconnect(this);
            socket->abort();
            socket->deleteLater();
            m_bAnswered = true;
            m_bOk = ok;
            m_strError = error;
            if (m_pPanel) {
                m_pPanel->OnConnectResult(ok);
            }
        };
        connect(socket, &QTcpSocket::connected, this,
                [socket] { socket->write("{\n    \"action\": \"GET_SN_FROM_3255\"\n}\n"); });
        connect(socket, &QTcpSocket::readyRead, this, [socket, serial, answer] {
            const QJsonDocument document = QJsonDocument::fromJson(socket->readAll());
            const QJsonObject object = document.object();
            const int code = object.value(QStringLiteral("errorCode")).toInt();
            const QString told = object.value(QStringLiteral("data")).toString();
            if (!document.isObject()) {
                answer(false, QStringLiteral("no object"));
            } else if (code != 0) {
                answer(false,
                       QStringLiteral("error %1: %2").arg(code).arg(object.value(QStringLiteral("msg")).toString()));
            } else if (told.isEmpty() || (!serial.isEmpty() && told != serial)) {
                answer(false, QStringLiteral("serial number \"%1\"").arg(told));
            } else {
                answer(true, QString());
            }
        });
        connect(socket, &QTcpSocket::errorOccurred, this, [socket, answer] { answer(false, socket->errorString()); });
        connect(limit, &QTimer::timeout, this, [answer] { answer(false, QStringLiteral("no answer in time")); });
        limit->start(kHostLimitMs);
        socket->connectToHost(ip, m_hashPort.value(ip));
    }

    QUdpSocket m_listener;
    QHash<QString, quint16> m_hashPort;
};

} // namespace

class MachineRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMachineThatAnnouncesItselfIsListed();
    void aMachineOnTwoInterfacesIsListedOnceOnTheBetterOne();
    void scanningAgainFindsTheMachineAgain();
    void connectingAChosenMachineClosesThePanel();
    void connectingATypedAddressFindsItsSerialNumber();
    void aFaultLeavesThePanelReadyForAnotherTry_data();
    void aFaultLeavesThePanelReadyForAnotherTry();
    void aMachineThatHasGoneIsTold();
    void anotherMachineConnectsAfterAFault();
    void escapeWhileConnectingOutlivesTheAnswer();

private:
    QStringList Arguments(const QString& serial, const Host& host);

    int m_iAddress = 1;
};

void MachineRoadTest::initTestCase()
{
    if (SimulatorProcess::Program().isEmpty()) {
        QSKIP("this build has no machine-simulator");
    }
    // The debug stream has every clicked row.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

// Every machine has a loopback address of its own, as it would have on a network.
QStringList MachineRoadTest::Arguments(const QString& serial, const Host& host)
{
    return QStringList{"--address",  QStringLiteral("127.0.42.%1").arg(m_iAddress++),
                       "--port",     "0",
                       "--ftp-port", "0",
                       "--serial",   serial} +
           host.AnnounceHere();
}

void MachineRoadTest::aMachineThatAnnouncesItselfIsListed()
{
    Host host;
    QCOMPARE(host.List()->rowCount(), 0);
    SimulatorProcess wifi;
    QVERIFY2(wifi.Start(Arguments(QStringLiteral("WIFI01"), host)), wifi.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    QCOMPARE(host.Machine(0, Qt::DisplayRole).toString(), QStringLiteral("WIFI01"));
    QCOMPARE(host.Machine(0, CSelectMachineBox::RoleInterface).toString(), QStringLiteral("wlan0"));

    SimulatorProcess usb;
    QVERIFY2(usb.Start(Arguments(QStringLiteral("机床02"), host) + QStringList{"--interface", "usb0"}), usb.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 2);
    QCOMPARE(host.Machine(1, CSelectMachineBox::RoleSerial).toString(), QStringLiteral("机床02"));
    QCOMPARE(host.Machine(1, CSelectMachineBox::RolePriority).toInt(), 3);
    QCOMPARE(host.List()->data(host.List()->index(1, 0)).toString(), QStringLiteral("Velmar CNC机器"));
}

void MachineRoadTest::aMachineOnTwoInterfacesIsListedOnceOnTheBetterOne()
{
    Host host;
    SimulatorProcess wifi;
    QVERIFY2(wifi.Start(Arguments(QStringLiteral("TWICE1"), host)), wifi.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    const QString wifiAddress = host.Machine(0, CSelectMachineBox::RoleIp).toString();

    SimulatorProcess wired;
    QVERIFY2(wired.Start(Arguments(QStringLiteral("TWICE1"), host) + QStringList{"--interface", "eth0"}),
             wired.Errors());
    QTRY_COMPARE(host.Machine(0, CSelectMachineBox::RoleInterface).toString(), QStringLiteral("eth0"));
    QVERIFY(host.Machine(0, CSelectMachineBox::RoleIp).toString() != wifiAddress);
    QCOMPARE(host.List()->rowCount(), 1);

    host.ClickRow(0);
    host.ClickConnect();
    QCOMPARE(host.m_listSelected.constLast(),
             QStringList({QStringLiteral("127.0.42.%1").arg(m_iAddress - 1), QStringLiteral("TWICE1")}));
    QTRY_VERIFY(host.m_bOk);
}

void MachineRoadTest::scanningAgainFindsTheMachineAgain()
{
    Host host;
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("AGAIN1"), host)), machine.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    QSignalSpy refresh(host.m_pPanel, &CSelectMachineBox::SignalSelectRefresh);
    QTest::mouseClick(host.Child<QPushButton>("m_btnRefresh"), Qt::LeftButton);
    QCOMPARE(refresh.size(), 1);
    QCOMPARE(host.List()->rowCount(), 0);
    QTRY_COMPARE(host.List()->rowCount(), 1);
    QCOMPARE(host.Machine(0, CSelectMachineBox::RoleSerial).toString(), QStringLiteral("AGAIN1"));
}

void MachineRoadTest::connectingAChosenMachineClosesThePanel()
{
    Host host;
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("CHOSEN"), host)), machine.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    host.ClickConnect();
    QVERIFY(host.m_listSelected.isEmpty()); // nothing is chosen yet

    host.ClickRow(0);
    host.ClickConnect();
    QCOMPARE(host.m_listSelected.size(), 1);
    QCOMPARE(host.m_listSelected.constLast().constLast(), QStringLiteral("CHOSEN"));
    QCOMPARE(host.Child<QPushButton>("m_btnConnect")->text(), QStringLiteral("连接中..."));
    QTRY_VERIFY(host.m_bAnswered);
    QVERIFY2(host.m_bOk, qPrintable(host.m_strError));
    QTRY_VERIFY(host.m_pPanel.isNull());
    QVERIFY(machine.WaitForLog(QStringLiteral("\"data\":\"CHOSEN\"")));
}

void MachineRoadTest::connectingATypedAddressFindsItsSerialNumber()
{
    Host host(true);
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("TYPED1"), host)), machine.Errors());
    const QString address = QStringLiteral("127.0.42.%1").arg(m_iAddress - 1);
    SimulatorProcess usb;
    QVERIFY2(usb.Start(Arguments(QStringLiteral("CABLE1"), host) + QStringList{"--interface", "usb0"}), usb.Errors());
    // Only the machine on the cable is listed; the other one has been heard before it.
    QTRY_COMPARE(host.List()->rowCount(), 1);
    QCOMPARE(host.Machine(0, CSelectMachineBox::RoleSerial).toString(), QStringLiteral("CABLE1"));

    QTest::mouseClick(host.Child<QPushButton>("ipButton"), Qt::LeftButton);
    auto* edit = host.Child<QLineEdit>("lineEdit");
    QVERIFY(edit);
    QVERIFY(QTest::qWaitForWindowExposed(edit->window()));
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keyClicks(edit, address);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(host.Child<QLabel>("ipLabel")->text(), address);
    QCOMPARE(host.Child<QPushButton>("m_btnConnect")->text(), QStringLiteral("指定IP连接"));

    host.ClickConnect();
    QCOMPARE(host.m_listSelected, QList<QStringList>({{address, QStringLiteral("TYPED1")}}));
    QTRY_VERIFY(host.m_bOk);
    QTRY_VERIFY(host.m_pPanel.isNull());
}

void MachineRoadTest::aFaultLeavesThePanelReadyForAnotherTry_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("silent") << QStringLiteral("no answer in time");
    QTest::newRow("late") << QStringLiteral("no answer in time");
    QTest::newRow("close") << QStringLiteral("The remote host closed the connection");
    QTest::newRow("split") << QStringLiteral("no object");
    QTest::newRow("slow") << QStringLiteral("no object");
    QTest::newRow("garbage") << QStringLiteral("no object");
    QTest::newRow("array") << QStringLiteral("no object");
    QTest::newRow("huge") << QStringLiteral("no object");
    QTest::newRow("empty-serial") << QStringLiteral("serial number \"\"");
    QTest::newRow("error:7:too hot") << QStringLiteral("error 7: too hot");
}

void MachineRoadTest::aFaultLeavesThePanelReadyForAnotherTry()
{
    QFETCH(const QString, error);
    Host host;
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("FAULTY"), host) +
                           QStringList{"--fault", QString::fromLatin1(QTest::currentDataTag())}),
             machine.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    host.ClickRow(0);
    host.ClickConnect();
    auto* connectButton = host.Child<QPushButton>("m_btnConnect");
    auto* closeButton = host.Child<QPushButton>("m_btnClose");
    QVERIFY(!connectButton->isEnabled());
    QVERIFY(!closeButton->isVisible());

    QTRY_VERIFY_WITH_TIMEOUT(host.m_bAnswered, 2 * kHostLimitMs);
    QVERIFY(!host.m_bOk);
    QCOMPARE(host.m_strError, error);
    QVERIFY(host.m_pPanel && host.m_pPanel->isVisible());
    QVERIFY(connectButton->isEnabled());
    QCOMPARE(connectButton->text(), QStringLiteral("连接"));
    QVERIFY(host.Child<QPushButton>("m_btnRefresh")->isEnabled());
    QVERIFY(closeButton->isVisible());
}

void MachineRoadTest::aMachineThatHasGoneIsTold()
{
    Host host;
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("GONE01"), host)), machine.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    QCOMPARE(machine.Stop(), 0);
    host.ClickRow(0);
    host.ClickConnect();
    QTRY_VERIFY(host.m_bAnswered);
    QCOMPARE(host.m_strError, QStringLiteral("Connection refused"));
    QVERIFY(host.m_pPanel);
}

void MachineRoadTest::anotherMachineConnectsAfterAFault()
{
    Host host;
    SimulatorProcess broken;
    QVERIFY2(broken.Start(Arguments(QStringLiteral("BROKEN"), host) + QStringList{"--fault", "garbage"}),
             broken.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    SimulatorProcess sound;
    QVERIFY2(sound.Start(Arguments(QStringLiteral("SOUND1"), host)), sound.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 2);
    host.ClickRow(0);
    host.ClickConnect();
    QTRY_VERIFY(host.m_bAnswered);
    QVERIFY(!host.m_bOk);
    host.ClickRow(1);
    host.ClickConnect();
    QTRY_VERIFY(host.m_bOk);
    QTRY_VERIFY(host.m_pPanel.isNull());
    QCOMPARE(host.m_listSelected.size(), 2);
}

void MachineRoadTest::escapeWhileConnectingOutlivesTheAnswer()
{
    Host host;
    SimulatorProcess machine;
    QVERIFY2(machine.Start(Arguments(QStringLiteral("ESCAPE"), host) + QStringList{"--fault", "silent"}),
             machine.Errors());
    QTRY_COMPARE(host.List()->rowCount(), 1);
    host.ClickRow(0);
    host.ClickConnect();
    QCOMPARE(host.m_listSelected.size(), 1);
    QTest::keyClick(host.m_pPanel, Qt::Key_Escape);
    QTRY_VERIFY(host.m_pPanel.isNull());
    QCOMPARE(machine.Stop(), 0);
    QTRY_VERIFY(host.m_bAnswered);
}

CUSTOMCONTROLS_TEST_MAIN(MachineRoadTest)
#include "MachineRoadTest.moc"

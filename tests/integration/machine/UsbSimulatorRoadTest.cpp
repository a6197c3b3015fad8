#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <tests/support/SimulatorProcess.h>
#include <tests/support/TestMain.h>

#include <QColor>
#include <QElapsedTimer>
#include <QLabel>
#include <QLoggingCategory>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kRoadMs = 60000;
const QString kMachineAddress = QStringLiteral("192.168.7.2");
const QString kSerial = QStringLiteral("USB0000042");

QString MachineNamespace()
{
    return qEnvironmentVariable("MACHINE_NAMESPACE");
}

// The user during the road: sees the wait dialog, reads the closing message and presses its one button.
class User : public QObject
{
public:
    User()
    {
        connect(&m_timer, &QTimer::timeout, this, &User::Look);
        m_timer.start(20);
        m_clock.start();
        qApp->installEventFilter(this);
    }

    // A machine that answers at once leaves the wait dialog no time to be found by looking.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<CProgressWidget*>(watched)) {
            if (m_bDeletesPanel) {
                QMetaObject::invokeMethod(
                    this, [this] { delete m_pPanel; }, Qt::QueuedConnection);
            }
            m_bSawWaitDialog = static_cast<QWidget*>(watched)->windowModality() == Qt::ApplicationModal;
            for (const char* name : {"btnConfig", "btnCancel"}) {
                m_bSawEnabledButton |= m_pPanel && m_pPanel->findChild<QPushButton*>(QLatin1String(name))->isEnabled();
            }
        }
        return QObject::eventFilter(watched, event);
    }

    QString m_strMessage;
    QString m_strTitle;
    int m_iMessages = 0;
    bool m_bDeletesPanel = false;     ///< deletes the panel as soon as the wait dialog is there
    bool m_bSawWaitDialog = false;    ///< and it was application-modal
    bool m_bSawEnabledButton = false; ///< btnConfig or btnCancel was enabled during the wait
    QPointer<CSelectMachineBox> m_pPanel;

private:
    void Look()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (!window->isVisible()) {
                continue;
            }
            if (qobject_cast<CVelmarMessageBox*>(window)) {
                Answer(window);
                return; // the box may be gone now
            }
        }
        if (m_clock.elapsed() > kRoadMs) {
            qFatal("the road has not ended in time");
        }
    }

    void Answer(QWidget* box)
    {
        ++m_iMessages;
        const QList<QLabel*> labels = box->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->objectName() == QLatin1String("m_labelTitle")) {
                m_strTitle = label->text();
            } else if (label->text().contains(QStringLiteral("机床"))) {
                m_strMessage = label->text();
            }
        }
        const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->isVisible() && button->text() == QStringLiteral("确定")) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
};

} // namespace

/** The whole road of a machine on a cable: real adapter, real address, real file service, real query. */
class UsbSimulatorRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void withoutACableTheUserIsToldToPlugIn();
    void withoutAMachineTheAddressIsTakenBack();
    void aMachineThatIsSwitchedOnConnectsAtTheRetry();
    void aFaultIsToldInItsOwnWords_data();
    void aFaultIsToldInItsOwnWords();
    void aSoundMachineConnectsAtOnce();
    void deletingThePanelMidwayEndsTheRoadQuietly();

private:
    static bool Ip(const QStringList& arguments);
    static bool IpOfMachine(const QStringList& arguments);
    static QString AddressOfHost();
    bool StartMachine(SimulatorProcess& machine, const QStringList& more = {});
    void Configure(User& user);
    template <typename Widget>
    Widget* Child(const char* name) const
    {
        return m_pPanel->findChild<Widget*>(QLatin1String(name));
    }

    QPointer<CSelectMachineBox> m_pPanel;
    QList<QStringList> m_listConnected; ///< of signalConnectSuccessToFile
    QList<QStringList> m_listRecorded;  ///< of signalCurrentMachineChanged
    QStringList m_listPane;             ///< the host's log pane
    QList<QColor> m_listPaneColours;
};

void UsbSimulatorRoadTest::initTestCase()
{
    // Outside a namespace made for it this test would change the adapters of the computer it runs on.
    if (MachineNamespace().isEmpty()) {
        QSKIP("runs in the namespaces of tests/support/machine-namespaces.sh only");
    }
    QVERIFY(!SimulatorProcess::Program().isEmpty());
    // The debug stream has every answer in full, 100 MiB of it too.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    NetworkConfigurator::SetProvider({});
    SetFtpConnectionProvider({});

    auto* helper = CorvaneSignalHelper::instance();
    connect(helper, &CorvaneSignalHelper::signalConnectSuccessToFile, this,
            [this](const QString& ip, const QString& serial) {
                m_listConnected.append({ip, serial});
            });
    connect(helper, &CorvaneSignalHelper::signalFilePluginAppendLog, this,
            [this](const QString& text, const QColor& colour) {
                m_listPane.append(text);
                m_listPaneColours.append(colour);
            });
    connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged, this,
            [this](bool connected, const QString& ip, const QString& serial) {
                m_listRecorded.append({connected ? QStringLiteral("connected") : QString(), ip, serial});
            });
}

void UsbSimulatorRoadTest::init()
{
    m_listConnected.clear();
    m_listRecorded.clear();
    m_listPane.clear();
    m_listPaneColours.clear();
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString());
    m_listRecorded.clear();
    m_pPanel = new CSelectMachineBox(nullptr);
    m_pPanel->SetIsCalibConnectMachine();
    m_pPanel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pPanel));
}

void UsbSimulatorRoadTest::cleanup()
{
    delete m_pPanel;
}

bool UsbSimulatorRoadTest::Ip(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("ip"), arguments) == 0;
}

bool UsbSimulatorRoadTest::IpOfMachine(const QStringList& arguments)
{
    return Ip(QStringList{QStringLiteral("-n"), MachineNamespace()} + arguments);
}

QString UsbSimulatorRoadTest::AddressOfHost()
{
    QProcess process;
    process.start(QStringLiteral("ip"), {"-4", "-brief", "address", "show", "usb0"});
    process.waitForFinished();
    return QString::fromLatin1(process.readAllStandardOutput()).simplified().section(u' ', 2, 2);
}

bool UsbSimulatorRoadTest::StartMachine(SimulatorProcess& machine, const QStringList& more)
{
    return machine.Start(QStringList{"--address", kMachineAddress, "--serial", kSerial} + more, MachineNamespace());
}

// Presses the button; by the return the road has ended and its message has been answered.
void UsbSimulatorRoadTest::Configure(User& user)
{
    user.m_pPanel = m_pPanel;
    QTest::mouseClick(Child<QPushButton>("btnConfig"), Qt::LeftButton);
    QCOMPARE(user.m_iMessages, 1);
    QCOMPARE(user.m_strTitle, QStringLiteral("提示"));
    QVERIFY(user.m_bSawWaitDialog);
    QVERIFY(!user.m_bSawEnabledButton);
}

void UsbSimulatorRoadTest::withoutACableTheUserIsToldToPlugIn()
{
    QVERIFY(IpOfMachine({"link", "set", "usb0", "down"}));
    User user;
    Configure(user);
    QVERIFY(IpOfMachine({"link", "set", "usb0", "up"}));
    const QString detail = QStringLiteral("未找到已连接的有线网卡，请确认机床已开机，并已用数据线连接到电脑");
    QCOMPARE(user.m_strMessage, QStringLiteral("机床连接失败【%1】").arg(detail));
    QCOMPARE(m_listPane, QStringList(detail + QStringLiteral(" IP: 192.168.7.2")));
    QCOMPARE(m_listPaneColours, QList<QColor>({QColor(220, 50, 50, 255)}));
    QVERIFY(Child<QLabel>("labelFailed")->isVisible());
    QVERIFY(Child<QLabel>("labelIcon")->isVisible());
    QVERIFY(Child<QPushButton>("btnSwitchConnect")->isVisible());
    QCOMPARE(Child<QLabel>("labelFailed")->text(), QStringLiteral("自动连接失败，有线网卡未探测到机床"));
    QCOMPARE(Child<QPushButton>("btnConfig")->text(), QStringLiteral("重试"));
    QVERIFY(Child<QPushButton>("btnConfig")->isEnabled());
    QVERIFY(m_listConnected.isEmpty());
    QVERIFY(m_listRecorded.isEmpty());
}

void UsbSimulatorRoadTest::withoutAMachineTheAddressIsTakenBack()
{
    // The cable leads to something, but not to a machine.
    QVERIFY(IpOfMachine({"address", "del", "192.168.7.2/24", "dev", "usb0"}));
    User user;
    Configure(user);
    QVERIFY(IpOfMachine({"address", "add", "192.168.7.2/24", "dev", "usb0"}));
    QCOMPARE(user.m_strMessage, QStringLiteral("机床连接失败【机床没有应答，请检查数据线是否插好、机床是否已开机】"));
    QCOMPARE(AddressOfHost(), QString());
    QVERIFY(Child<QLabel>("labelFailed")->isVisible());
    QCOMPARE(Child<QPushButton>("btnConfig")->text(), QStringLiteral("重试"));
}

void UsbSimulatorRoadTest::aMachineThatIsSwitchedOnConnectsAtTheRetry()
{
    QVERIFY(Ip({"address", "flush", "dev", "usb0"}));
    {
        // Its network is up, its services are not: refused at once.
        User user;
        Configure(user);
        QCOMPARE(user.m_strMessage, QStringLiteral("机床连接失败【机床连接失败!】"));
        QCOMPARE(m_listPane, QStringList(QStringLiteral("机床连接失败! IP: 192.168.7.2")));
    }
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    QSignalSpy selected(m_pPanel, &CSelectMachineBox::SignalMachineSelected);
    User user;
    Configure(user);
    QCOMPARE(user.m_strMessage, QStringLiteral("机床连接成功！"));
    QTRY_VERIFY(m_pPanel.isNull());
    QCOMPARE(m_listConnected, QList<QStringList>({{kMachineAddress, kSerial}}));
    QCOMPARE(m_listRecorded, QList<QStringList>({{QStringLiteral("connected"), kMachineAddress, kSerial}}));
    QCOMPARE(m_listPane.size(), 1);
    QCOMPARE(selected.size(), 0);
}

void UsbSimulatorRoadTest::aFaultIsToldInItsOwnWords_data()
{
    QTest::addColumn<QString>("error");
    const QString noAnswer = QStringLiteral("连接超时，请检查机床连接状态");
    const QString noSerial = QStringLiteral("获取机床序列号失败");
    QTest::newRow("silent") << noAnswer;
    QTest::newRow("late") << noAnswer;
    QTest::newRow("close") << QStringLiteral("The remote host closed the connection");
    QTest::newRow("split") << noSerial;
    QTest::newRow("slow") << noSerial;
    QTest::newRow("garbage") << noSerial;
    QTest::newRow("array") << noSerial;
    QTest::newRow("huge") << noSerial;
    QTest::newRow("empty-serial") << QStringLiteral("获取机床序列号失败：序列号为空");
    QTest::newRow("error:7:too hot") << QStringLiteral("获取机床序列号失败：too hot");
    QTest::newRow("error:7") << QStringLiteral("获取机床序列号失败：");
    QTest::newRow("ftp-down") << QStringLiteral("机床连接失败!");
}

void UsbSimulatorRoadTest::aFaultIsToldInItsOwnWords()
{
    QFETCH(const QString, error);
    const QString fault = QString::fromLatin1(QTest::currentDataTag());
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", fault}), machine.Errors());
    User user;
    Configure(user);
    QCOMPARE(user.m_strMessage, QStringLiteral("机床连接失败【%1】").arg(error));
    // Only a failure before the query names the address.
    QCOMPARE(m_listPane,
             QStringList(fault == QLatin1String("ftp-down") ? error + QStringLiteral(" IP: 192.168.7.2") : error));
    QVERIFY(m_pPanel && m_pPanel->isVisible());
    QVERIFY(Child<QLabel>("labelFailed")->isVisible());
    QCOMPARE(Child<QPushButton>("btnConfig")->text(), QStringLiteral("重试"));
    QVERIFY(Child<QPushButton>("btnCancel")->isEnabled());
    QVERIFY(m_listConnected.isEmpty());
    QVERIFY(m_listRecorded.isEmpty());
}

void UsbSimulatorRoadTest::aSoundMachineConnectsAtOnce()
{
    QVERIFY(Ip({"address", "flush", "dev", "usb0"}));
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine), machine.Errors());
    User user;
    Configure(user);
    QCOMPARE(user.m_strMessage, QStringLiteral("机床连接成功！"));
    QTRY_VERIFY(m_pPanel.isNull());
    QCOMPARE(m_listConnected, QList<QStringList>({{kMachineAddress, kSerial}}));
    QVERIFY(m_listPane.isEmpty());
    QVERIFY2(AddressOfHost().startsWith(QStringLiteral("192.168.7.")), qPrintable(AddressOfHost()));
    QVERIFY(machine.WaitForLog(QStringLiteral("1 commands | ended: QUIT")));
    QVERIFY(machine.WaitForLog(QStringLiteral("\"data\":\"USB0000042\"")));
}

void UsbSimulatorRoadTest::deletingThePanelMidwayEndsTheRoadQuietly()
{
    SimulatorProcess machine;
    QVERIFY2(StartMachine(machine, {"--fault", "silent"}), machine.Errors());
    User user;
    user.m_pPanel = m_pPanel;
    user.m_bDeletesPanel = true;
    // Not by the mouse: its release would be told to a button that is gone.
    QMetaObject::invokeMethod(Child<QPushButton>("btnConfig"), "click", Qt::QueuedConnection);
    QTRY_VERIFY(m_pPanel.isNull());
    QVERIFY(user.m_bSawWaitDialog);
    // The frame of the road returns with this loop, and nothing of it is left on the screen.
    const auto isNothingOpen = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::none_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
    };
    QTRY_VERIFY(isNothingOpen());
    QCOMPARE(user.m_iMessages, 0);
    QVERIFY(m_listConnected.isEmpty());
    QVERIFY(m_listRecorded.isEmpty());
}

CUSTOMCONTROLS_TEST_MAIN(UsbSimulatorRoadTest)
#include "UsbSimulatorRoadTest.moc"

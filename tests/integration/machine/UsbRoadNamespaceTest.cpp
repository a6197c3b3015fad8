#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <tests/support/LogCapture.h>
#include <tests/support/NestedLoop.h>
#include <tests/support/TestMain.h>

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextBrowser>
#include <QTimer>

#include <functional>
#include <memory>
#include <sched.h>

// The roads of the USB connection that speak to the machine's fixed address. The process leaves for a network namespace
// of its own before anything else; in there 192.168.7.2 is its own loopback, and no packet can get out.

namespace {

bool g_inOwnNamespace = false;

const QString MachineAddress = QStringLiteral("192.168.7.2");
const QString Serial = QStringLiteral("CNC-000451");

bool BoxShows()
{
    return VisibleTopLevel<CVelmarMessageBox>() != nullptr;
}

bool ProgressShows()
{
    return VisibleTopLevel<CProgressWidget>() != nullptr;
}

QString BoxText()
{
    const auto* box = VisibleTopLevel<CVelmarMessageBox>();
    QString text;
    for (const QLabel* label : box->findChildren<QLabel*>()) {
        text += label->text() + QLatin1Char('\n');
    }
    for (const QTextBrowser* browser : box->findChildren<QTextBrowser*>()) {
        text += browser->toPlainText() + QLatin1Char('\n');
    }
    return text;
}

// What listens on the machine's port 5002: answers with these bytes; "" keeps silent, "-" hangs up.
class SerialService : public QTcpServer
{
public:
    explicit SerialService(const QByteArray& answer)
    {
        connect(this, &QTcpServer::newConnection, this, [this, answer] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket, answer] {
                request += socket->readAll();
                if (answer == "-") {
                    socket->abort();
                } else {
                    socket->write(answer);
                }
            });
        });
        listen(QHostAddress(MachineAddress), 5002);
    }
    QByteArray request;
};

bool Ip(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("ip"), arguments) == 0;
}

} // namespace

class UsbRoadNamespaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void connectsRecordsAndTells();
    void fileServiceOfTheMachineIsReallyTried();
    void failedQuestionTellsItsReason_data();
    void failedQuestionTellsItsReason();
    void unreachableNetworkDoesNotHang();
    void silentMachineEndsTheRoadInTime();
    void retryAfterAFailureConnects();
    void panelDeletedOnTheWay_data();
    void panelDeletedOnTheWay();
    void panelDeletedWhileTheMachineIsSilent();
    void panelDeletedWhileTheSuccessShows();

private:
    void Click() { m_panel->findChild<QPushButton*>(QStringLiteral("btnConfig"))->click(); }
    void RunToTheEnd()
    {
        const Once answer(BoxShows, [this] {
            m_strMessage = BoxText();
            QTest::keyClick(VisibleTopLevel<CVelmarMessageBox>(), Qt::Key_Escape);
        });
        Click();
        QVERIFY(answer.done);
    }

    QPointer<CSelectMachineBox> m_panel;
    std::unique_ptr<LogCapture> m_log;
    QStringList m_listHeard;
    QString m_strMessage;
};

void UsbRoadNamespaceTest::initTestCase()
{
    if (!g_inOwnNamespace) {
        QSKIP("a network namespace of one's own takes root");
    }
    if (!Ip({QStringLiteral("link"), QStringLiteral("set"), QStringLiteral("lo"), QStringLiteral("up")}) ||
        !Ip({QStringLiteral("address"), QStringLiteral("add"), MachineAddress + QStringLiteral("/24"),
             QStringLiteral("dev"), QStringLiteral("lo")})) {
        QSKIP("the program ip is missing");
    }
    auto* helper = CorvaneSignalHelper::instance();
    connect(helper, &CorvaneSignalHelper::signalFilePluginAppendLog, this, [this](const QString& text, QColor color) {
        QCOMPARE(color, QColor(220, 50, 50, 255));
        m_listHeard << QStringLiteral("pane ") + text;
    });
    connect(helper, &CorvaneSignalHelper::signalConnectSuccessToFile, this,
            [this](const QString& ip, const QString& serial) {
                // The wait is over and the machine is recorded by the time the host is told.
                QVERIFY(!ProgressShows());
                m_listHeard << QStringLiteral("told ") + ip + QLatin1Char(' ') + serial;
            });
    connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged, this,
            [this](bool connected, const QString& ip, const QString& serial) {
                if (connected) {
                    m_listHeard << QStringLiteral("recorded ") + ip + QLatin1Char(' ') + serial;
                }
            });
}

void UsbRoadNamespaceTest::init()
{
    m_panel = new CSelectMachineBox(nullptr);
    connect(m_panel, &CSelectMachineBox::SignalMachineSelected, this,
            [this] { m_listHeard << QStringLiteral("selected"); });
    m_panel->SetIsCalibConnectMachine();
    m_panel->show();
    m_log = std::make_unique<LogCapture>();
    m_listHeard.clear();
    m_strMessage.clear();
    NetworkConfigurator::SetProvider([](int) {
        NetworkConfigurator::Result result;
        result.iStatus = NetworkConfigurator::StatusReady;
        return result;
    });
    SetFtpConnectionProvider([](const QString& ip) { return ip == MachineAddress; });
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString());
}

void UsbRoadNamespaceTest::cleanup()
{
    m_log.reset();
    delete m_panel;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!ProgressShows());
    QVERIFY(!BoxShows());
}

void UsbRoadNamespaceTest::connectsRecordsAndTells()
{
    const SerialService machine(R"({"errorCode":0,"data":"CNC-000451"})");
    RunToTheEnd();
    QCOMPARE(machine.request, QByteArray("{\n    \"action\": \"GET_SN_FROM_3255\"\n}\n"));
    QCOMPARE(m_listHeard, QStringList({QStringLiteral("recorded 192.168.7.2 CNC-000451"),
                                       QStringLiteral("told 192.168.7.2 CNC-000451")}));
    QVERIFY(m_strMessage.contains(QStringLiteral("机床连接成功！")));
    QVERIFY(!m_panel || !m_panel->isVisible());
    QTRY_VERIFY(!m_panel);
    QCOMPARE(m_log->Lines(),
             QStringList({QStringLiteral("ConnectToMachineViaUsb: 尝试连接机床 usbIP=192.168.7.2"),
                          QStringLiteral("ConfigureIpConnectMachine: ip配置结果 Status:0,detail:"),
                          QStringLiteral("ConfigureIpConnectMachine: 连接机床结果 bConnected=1"),
                          QStringLiteral("GetMachineSNViaTcp - TCP连接已建立"),
                          QStringLiteral("GetMachineSNViaTcp - 收到响应"),
                          QStringLiteral("GetMachineSNViaTcp成功,sn(right3):451"),
                          QStringLiteral("ConfigureIpConnectMachine:获取序列号bGetSnOk:1,sn:CNC-000451"),
                          QStringLiteral("ConnectToMachineViaUsb: Type-C成功连接机床 IP=192.168.7.2")}));
}

void UsbRoadNamespaceTest::fileServiceOfTheMachineIsReallyTried()
{
    QTcpServer files;
    connect(&files, &QTcpServer::newConnection, &files, [&] { files.nextPendingConnection()->write("220 ready\r\n"); });
    QVERIFY(files.listen(QHostAddress(MachineAddress), 21));
    SetFtpConnectionProvider({});
    const SerialService machine(R"({"data":"CNC-000451"})");
    RunToTheEnd();
    QVERIFY(m_listHeard.contains(QStringLiteral("told 192.168.7.2 CNC-000451")));
}

void UsbRoadNamespaceTest::failedQuestionTellsItsReason_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("reason"); // empty: the socket's own text
    QTest::newRow("error code") << QByteArray(R"({"errorCode":3,"msg":"忙"})") << "获取机床序列号失败：忙";
    QTest::newRow("no serial") << QByteArray("{}") << "获取机床序列号失败：序列号为空";
    QTest::newRow("garbage") << QByteArray("???") << "获取机床序列号失败";
    QTest::newRow("hangs up") << QByteArray("-") << "";
    QTest::newRow("no service") << QByteArray() << "";
}

void UsbRoadNamespaceTest::failedQuestionTellsItsReason()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, reason);
    std::unique_ptr<SerialService> machine;
    if (!answer.isEmpty()) {
        machine = std::make_unique<SerialService>(answer);
    }
    RunToTheEnd();
    QCOMPARE(m_listHeard.size(), 1);
    QVERIFY(m_listHeard.at(0).startsWith(QStringLiteral("pane ")));
    const QString told = m_listHeard.at(0).mid(5);
    QVERIFY(!told.isEmpty());
    QVERIFY(!told.contains(MachineAddress)); // no address on this one of the ways
    if (!reason.isEmpty()) {
        QCOMPARE(told, reason);
    }
    QVERIFY(m_strMessage.contains(QStringLiteral("机床连接失败【%1】").arg(told)));
    QVERIFY(m_panel->isVisible());
    QVERIFY(m_panel->findChild<QLabel*>(QStringLiteral("labelFailed"))->isVisible());
    QCOMPARE(m_panel->findChild<QPushButton*>(QStringLiteral("btnConfig"))->text(), QStringLiteral("重试"));
    QCOMPARE(m_log->Lines().last(), QStringLiteral("ConfigureIpConnectMachine:获取序列号bGetSnOk:0,sn:"));
}

void UsbRoadNamespaceTest::unreachableNetworkDoesNotHang()
{
    const QString address = MachineAddress + QStringLiteral("/24");
    QVERIFY(
        Ip({QStringLiteral("address"), QStringLiteral("del"), address, QStringLiteral("dev"), QStringLiteral("lo")}));
    RunToTheEnd();
    QVERIFY(
        Ip({QStringLiteral("address"), QStringLiteral("add"), address, QStringLiteral("dev"), QStringLiteral("lo")}));
    QCOMPARE(m_listHeard.size(), 1);
    QVERIFY(m_panel->isVisible());
}

void UsbRoadNamespaceTest::silentMachineEndsTheRoadInTime()
{
    const SerialService machine("");
    QElapsedTimer clock;
    clock.start();
    RunToTheEnd();
    QVERIFY(clock.elapsed() >= 4700);
    QCOMPARE(m_listHeard, QStringList(QStringLiteral("pane 连接超时，请检查机床连接状态")));
}

void UsbRoadNamespaceTest::retryAfterAFailureConnects()
{
    {
        const SerialService broken("[]");
        RunToTheEnd();
    }
    QVERIFY(m_panel->isVisible());
    m_listHeard.clear();
    const SerialService machine(R"({"data":"CNC-000451"})");
    RunToTheEnd();
    QCOMPARE(m_listHeard.size(), 2);
    QTRY_VERIFY(!m_panel);
}

void UsbRoadNamespaceTest::panelDeletedOnTheWay_data()
{
    QTest::addColumn<QString>("where");
    QTest::newRow("the result of the question") << "question";
    QTest::newRow("the record of the machine") << "record";
    QTest::newRow("the news to the host") << "news";
}

void UsbRoadNamespaceTest::panelDeletedOnTheWay()
{
    QFETCH(QString, where);
    const SerialService machine(R"({"data":"CNC-000451"})");
    QObject guard;
    const auto destroy = [this] { delete m_panel; };
    if (where == QStringLiteral("question")) {
        connect(m_panel, &CSelectMachineBox::SignalGetMachineSNFinished, &guard, destroy);
    } else if (where == QStringLiteral("record")) {
        connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged, &guard,
                destroy);
    } else {
        connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalConnectSuccessToFile, &guard, destroy);
    }
    Click();
    QVERIFY(!m_panel);
    QVERIFY(!ProgressShows());
    QVERIFY(!BoxShows());
    // Once recorded, the machine is told of whatever becomes of the panel.
    QCOMPARE(m_listHeard.size(), where == QStringLiteral("question") ? 0 : 2);
}

void UsbRoadNamespaceTest::panelDeletedWhileTheMachineIsSilent()
{
    SerialService machine("");
    QElapsedTimer clock;
    clock.start();
    const Once destroy([&] { return machine.request.size() == 37; }, [this] { delete m_panel; });
    Click();
    QVERIFY(destroy.done);
    QVERIFY(!m_panel);
    QVERIFY(clock.elapsed() < 4500); // at once, not when the question would have timed out
    QVERIFY(m_listHeard.isEmpty());
}

void UsbRoadNamespaceTest::panelDeletedWhileTheSuccessShows()
{
    const SerialService machine(R"({"data":"CNC-000451"})");
    const Once destroy(BoxShows, [this] {
        delete m_panel;
        QTest::keyClick(VisibleTopLevel<CVelmarMessageBox>(), Qt::Key_Escape);
    });
    Click();
    QVERIFY(destroy.done);
    QVERIFY(!m_panel);
}

int main(int argc, char* argv[])
{
    g_inOwnNamespace = unshare(CLONE_NEWNET) == 0;
    qputenv("QT_QPA_PLATFORM",
            "offscreen"); // in there it needs no display, and a display's services would be out of reach
    TestEnvironment::PrepareProcess();
    QApplication app(argc, argv);
    const TestEnvironment environment;
    UsbRoadNamespaceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "UsbRoadNamespaceTest.moc"

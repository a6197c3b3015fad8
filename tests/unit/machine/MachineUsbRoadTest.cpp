#include <CustomControls/machine/CSelectMachineBox.h>

#include "ui_CSelectMachineBox.h"

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <tests/support/LogCapture.h>
#include <tests/support/NestedLoop.h>
#include <tests/support/TestMain.h>

#include <QScopeGuard>
#include <QSemaphore>
#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>

// Only the two ways that end before the machine's own address is spoken to; the others need a network of their own.

namespace {

// The sibling's two operations, held back until the test lets them go.
struct Network
{
    QSemaphore gate;
    int status = NetworkConfigurator::StatusNoAdapter;
    QString detail = QStringLiteral("没有网卡");
    QList<int> rounds;
    QStringList ftpAddresses;
    QThread* thread = nullptr;

    Network()
    {
        NetworkConfigurator::SetProvider([this](int n) {
            gate.acquire();
            rounds << n;
            thread = QThread::currentThread();
            NetworkConfigurator::Result result;
            result.iStatus = status;
            result.strDetail = detail;
            return result;
        });
        SetFtpConnectionProvider([this](const QString& ip) {
            ftpAddresses << ip;
            return false;
        });
    }
    ~Network()
    {
        gate.release(1000);
        QThreadPool::globalInstance()->waitForDone();
        NetworkConfigurator::SetProvider([](int) { return NetworkConfigurator::Result(); });
        SetFtpConnectionProvider([](const QString&) { return false; });
    }
};

} // namespace

class MachineUsbRoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void failedConfigurationTellsItsDetail();
    void silentFileServiceTellsOfTheConnection();
    void emptyDetailGivesThePlainMessage();
    void detailWithPlaceholdersStaysAsItIs();
    void widgetsDuringTheWork();
    void retryKeepsTheFailureWidgetsDuringTheWait();
    void closingMessageIsAPlainNotice();
    void workerRunsBesideTheGui();
    void clickDuringTheWorkDoesNothing();
    void deletedDuringTheWork_data();
    void deletedDuringTheWork();
    void closedDuringTheWork();
    void deletedInTheLogPanesSlot();
    void deletedWhileTheMessageShows();
    void boxDeletedByTheHostEndsTheMessage();
    void waitDialogDeletedByTheHostChangesNothing();
    void quittingTheApplicationEndsTheWait();

private:
    void Click() { QTest::mouseClick(m_panel->ui->btnConfig, Qt::LeftButton); }
    static bool BoxShows() { return VisibleTopLevel<CVelmarMessageBox>() != nullptr; }
    static bool ProgressShows() { return VisibleTopLevel<CProgressWidget>() != nullptr; }
    // Answers the closing message with Escape and keeps what it said.
    void AnswerBox()
    {
        auto* box = VisibleTopLevel<CVelmarMessageBox>();
        m_listMessages << box->m_strContent;
        QTest::keyClick(box, Qt::Key_Escape);
    }
    void RunToTheEnd()
    {
        Once answer(BoxShows, [this] { AnswerBox(); });
        Click();
        QVERIFY(answer.done);
    }

    QPointer<CSelectMachineBox> m_panel;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<Network> m_network;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<QSignalSpy> m_logPane;
    std::unique_ptr<QSignalSpy> m_told;
    std::unique_ptr<QSignalSpy> m_recorded;
    QStringList m_listMessages;
};

void MachineUsbRoadTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    m_host = std::make_unique<QWidget>();
    m_host->show();
    m_panel = new CSelectMachineBox(m_host.get());
    m_panel->show();
    m_panel->SetIsCalibConnectMachine();
    m_network = std::make_unique<Network>();
    m_log = std::make_unique<LogCapture>();
    auto* helper = CorvaneSignalHelper::instance();
    m_logPane = std::make_unique<QSignalSpy>(helper, &CorvaneSignalHelper::signalFilePluginAppendLog);
    m_told = std::make_unique<QSignalSpy>(helper, &CorvaneSignalHelper::signalConnectSuccessToFile);
    m_recorded = std::make_unique<QSignalSpy>(CorvaneRegisterHelper::instance(),
                                              &CorvaneRegisterHelper::signalCurrentMachineChanged);
    m_listMessages.clear();
}

void MachineUsbRoadTest::cleanup()
{
    QCOMPARE(m_told->count(), 0);
    QCOMPARE(m_recorded->count(), 0);
    m_network.reset();
    m_log.reset();
    m_host.reset();
    QVERIFY(!m_panel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!ProgressShows());
    QVERIFY(!BoxShows());
}

void MachineUsbRoadTest::failedConfigurationTellsItsDetail()
{
    QSignalSpy selected(m_panel, &CSelectMachineBox::SignalMachineSelected);
    m_network->gate.release();
    QTest::ignoreMessage(QtDebugMsg, "==-- res false");
    RunToTheEnd();
    QCOMPARE(m_listMessages, QStringList(QStringLiteral("机床连接失败【没有网卡】")));
    QCOMPARE(m_logPane->count(), 1);
    QCOMPARE(m_logPane->at(0).at(0).toString(), QStringLiteral("没有网卡 IP: 192.168.7.2"));
    QCOMPARE(m_logPane->at(0).at(1).value<QColor>(), QColor(220, 50, 50, 255));
    QVERIFY(m_network->ftpAddresses.isEmpty());
    QCOMPARE(m_log->Lines(),
             QStringList({QStringLiteral("ConnectToMachineViaUsb: 尝试连接机床 usbIP=192.168.7.2"),
                          QStringLiteral("ConfigureIpConnectMachine: ip配置结果 Status:1,detail:没有网卡"),
                          QStringLiteral("ConfigureIpConnectMachine: 连接机床结果 bConnected=0")}));
    QVERIFY(m_panel->ui->labelFailed->isVisible());
    QVERIFY(m_panel->ui->labelIcon->isVisible());
    QVERIFY(m_panel->ui->btnSwitchConnect->isVisible());
    QVERIFY(!m_panel->ui->labelDetail->isVisible());
    QCOMPARE(m_panel->ui->labelFailed->text(), QStringLiteral("自动连接失败，有线网卡未探测到机床"));
    QCOMPARE(m_panel->ui->btnConfig->text(), QStringLiteral("重试"));
    QVERIFY(m_panel->ui->btnConfig->isEnabled());
    QVERIFY(m_panel->ui->btnCancel->isEnabled());
    QCOMPARE(m_panel->ui->stackedWidget->currentWidget(), m_panel->ui->pageConfig);
    QVERIFY(!ProgressShows());
    QCOMPARE(selected.count(), 0);
}

void MachineUsbRoadTest::silentFileServiceTellsOfTheConnection()
{
    m_network->status = NetworkConfigurator::StatusReady;
    m_network->detail = QStringLiteral("ready");
    m_network->gate.release();
    RunToTheEnd();
    QCOMPARE(m_network->ftpAddresses, QStringList(QStringLiteral("192.168.7.2")));
    QCOMPARE(m_listMessages, QStringList(QStringLiteral("机床连接失败【机床连接失败!】")));
    QCOMPARE(m_logPane->at(0).at(0).toString(), QStringLiteral("机床连接失败! IP: 192.168.7.2"));
    QCOMPARE(m_log->Lines().at(1), QStringLiteral("ConfigureIpConnectMachine: ip配置结果 Status:0,detail:ready"));
    QVERIFY(m_panel->ui->labelFailed->isVisible());
}

void MachineUsbRoadTest::emptyDetailGivesThePlainMessage()
{
    m_network->detail.clear();
    m_network->gate.release();
    RunToTheEnd();
    QCOMPARE(m_listMessages, QStringList(QStringLiteral("机床连接失败")));
    QCOMPARE(m_logPane->at(0).at(0).toString(), QStringLiteral(" IP: 192.168.7.2"));
}

void MachineUsbRoadTest::detailWithPlaceholdersStaysAsItIs()
{
    m_network->detail = QStringLiteral("%1 and %2");
    m_network->gate.release();
    RunToTheEnd();
    QCOMPARE(m_listMessages, QStringList(QStringLiteral("机床连接失败【%1 and %2】")));
    QCOMPARE(m_logPane->at(0).at(0).toString(), QStringLiteral("%1 and %2 IP: 192.168.7.2"));
}

void MachineUsbRoadTest::widgetsDuringTheWork()
{
    bool looked = false;
    const Once look(ProgressShows, [&] {
        m_network->gate.release();
        looked = true;
        auto* progress = VisibleTopLevel<CProgressWidget>();
        QCOMPARE(progress->getTitle(), QStringLiteral("连接机床"));
        QCOMPARE(progress->getTextRef(), QStringLiteral("正在进行自动配置并连接机床，请稍候"));
        QVERIFY(!m_panel->ui->btnConfig->isEnabled());
        QVERIFY(!m_panel->ui->btnCancel->isEnabled());
        QCOMPARE(m_panel->ui->btnConfig->text(), QStringLiteral("自动配置"));
        QVERIFY(!m_panel->ui->labelFailed->isVisible());
    });
    RunToTheEnd();
    QVERIFY(looked);
}

void MachineUsbRoadTest::retryKeepsTheFailureWidgetsDuringTheWait()
{
    m_network->gate.release();
    RunToTheEnd();
    const Once look(ProgressShows, [&] {
        m_network->gate.release();
        QVERIFY(m_panel->ui->labelFailed->isVisible());
        QVERIFY(m_panel->ui->labelIcon->isVisible());
        QVERIFY(m_panel->ui->btnSwitchConnect->isVisible());
        QCOMPARE(m_panel->ui->btnConfig->text(), QStringLiteral("重试"));
    });
    RunToTheEnd();
    QVERIFY(look.done);
    QCOMPARE(m_network->rounds.size(), 2);
    QCOMPARE(m_listMessages.size(), 2);
    QCOMPARE(m_logPane->count(), 2);
}

void MachineUsbRoadTest::closingMessageIsAPlainNotice()
{
    m_network->gate.release();
    const Once look(BoxShows, [&] {
        // Whatever is found, the box is answered: it would wait for ever.
        const auto answer = qScopeGuard([this] { AnswerBox(); });
        auto* box = VisibleTopLevel<CVelmarMessageBox>();
        QVERIFY(box->parentWidget() == nullptr);
        QCOMPARE(box->m_iButtonMask, int(MsgBtnOk));
        QVERIFY(box->findChild<QLabel*>(QStringLiteral("m_labelIcon"))->styleSheet().contains(QStringLiteral("pop_5")));
        QCOMPARE(box->findChild<QLabel*>(QStringLiteral("m_labelTitle"))->text(), QStringLiteral("提示"));
        QCOMPARE(box->findChild<QWidget*>(QStringLiteral("m_widgetBtn"))->findChildren<QPushButton*>().size(), 1);
        // The page is ready before the message is answered.
        QVERIFY(m_panel->ui->btnConfig->isEnabled());
        QVERIFY(m_panel->ui->labelFailed->isVisible());
        QVERIFY(!ProgressShows());
    });
    Click();
    QVERIFY(look.done);
}

void MachineUsbRoadTest::workerRunsBesideTheGui()
{
    m_network->gate.release();
    RunToTheEnd();
    QCOMPARE(m_network->rounds, QList<int>{4});
    QVERIFY(m_network->thread != QThread::currentThread());
}

void MachineUsbRoadTest::clickDuringTheWorkDoesNothing()
{
    const Once look(ProgressShows, [&] {
        m_panel->ui->btnConfig->click();
        m_panel->ui->btnCancel->click();
        m_network->gate.release();
    });
    RunToTheEnd();
    QVERIFY(m_panel);
    QVERIFY(m_panel->isVisible());
    QCOMPARE(m_network->rounds.size(), 1);
}

void MachineUsbRoadTest::deletedDuringTheWork_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("the panel") << false;
    QTest::newRow("its parent") << true;
}

void MachineUsbRoadTest::deletedDuringTheWork()
{
    QFETCH(bool, withParent);
    bool progressGone = false;
    const Once destroy(ProgressShows, [&] {
        if (withParent) {
            m_host.reset();
        } else {
            delete m_panel;
        }
        progressGone = !ProgressShows();
        m_network->gate.release();
    });
    Click();
    QVERIFY(destroy.done);
    QVERIFY(progressGone);
    QVERIFY(!m_panel);
    QCOMPARE(m_logPane->count(), 0);
    QVERIFY(!BoxShows());
}

void MachineUsbRoadTest::closedDuringTheWork()
{
    const Once close(ProgressShows, [&] {
        m_panel->close(); // as Escape does
        m_network->gate.release();
    });
    Once answer(BoxShows, [this] { AnswerBox(); });
    Click();
    QVERIFY(close.done);
    QTRY_VERIFY(!m_panel);
    QVERIFY(!ProgressShows());
}

void MachineUsbRoadTest::deletedInTheLogPanesSlot()
{
    m_network->gate.release();
    const auto connection = connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalFilePluginAppendLog,
                                    this, [&] { delete m_panel; });
    Click();
    disconnect(connection);
    QVERIFY(!m_panel);
    QVERIFY(!ProgressShows());
    QVERIFY(!BoxShows());
}

void MachineUsbRoadTest::deletedWhileTheMessageShows()
{
    m_network->gate.release();
    const Once destroy(BoxShows, [&] {
        delete m_panel;
        AnswerBox();
    });
    Click();
    QVERIFY(destroy.done);
    QVERIFY(!m_panel);
}

void MachineUsbRoadTest::boxDeletedByTheHostEndsTheMessage()
{
    m_network->gate.release();
    const Once destroy(BoxShows, [] { delete VisibleTopLevel<CVelmarMessageBox>(); });
    Click();
    QVERIFY(destroy.done);
    QVERIFY(m_panel->isVisible());
    QVERIFY(m_panel->ui->btnConfig->isEnabled());
    QCOMPARE(m_panel->ui->btnConfig->text(), QStringLiteral("重试"));
}

void MachineUsbRoadTest::waitDialogDeletedByTheHostChangesNothing()
{
    const Once destroy(ProgressShows, [this] {
        delete VisibleTopLevel<CProgressWidget>();
        m_network->gate.release();
    });
    RunToTheEnd();
    QVERIFY(destroy.done);
    QCOMPARE(m_listMessages, QStringList(QStringLiteral("机床连接失败【没有网卡】")));
    QVERIFY(m_panel->ui->labelFailed->isVisible());
}

void MachineUsbRoadTest::quittingTheApplicationEndsTheWait()
{
    const Once quit(ProgressShows, [&] {
        m_network->gate.release();
        QCoreApplication::quit();
    });
    bool returned = false;
    QTimer::singleShot(0, this, [&] {
        m_panel->ui->btnConfig->click();
        returned = true;
    });
    QApplication::exec();
    QVERIFY(quit.done);
    QVERIFY(returned);
    QCOMPARE(m_network->rounds.size(), 1); // the worker has finished before its frame went
}

CUSTOMCONTROLS_TEST_MAIN(MachineUsbRoadTest)
#include "MachineUsbRoadTest.moc"

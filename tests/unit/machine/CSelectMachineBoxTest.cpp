#include <CustomControls/machine/CSelectMachineBox.h>

#include "ui_CSelectMachineBox.h"
#include "ui_CSelectMachineIPLineEdit.h"
#include "ui_CVelmarSelectBox.h"

#include <CustomControls/machine/CSelectMachineIPLineEdit.h>
#include <CustomControls/tables/CFileNameDelegate.h>

#include <CorvaneBase/CorvaneConstants.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <tests/support/LogCapture.h>
#include <tests/support/ProcessorTime.h>
#include <tests/support/TestMain.h>

#include <QDesktopServices>
#include <QStandardItemModel>
#include <QTimer>

namespace {

const QString GreenSheet = QStringLiteral(
    "QPushButton{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}\n"
    "QPushButton:hover{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}\n"
    "QPushButton:pressed{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}");
const QString GreyBlock = QStringLiteral("color:rgb(51,51,51);\nbackground:rgb(246,246,246);\nborder-radius:4px;\n"
                                         "outline:none;\nborder:1px solid rgb(196,196,196);\n}");
const QString GreySheet = QStringLiteral("QPushButton{\n") + GreyBlock + QStringLiteral("\nQPushButton:hover{\n") +
                          GreyBlock + QStringLiteral("\nQPushButton:pressed{\n") + GreyBlock;
const QString LinkSheet = QStringLiteral("QPushButton{\ncolor:rgb(40,91,227);\nbackground:transparent;\nborder:none;\n"
                                         "text-decoration: underline;\n}");
const QString PlainSheet =
    QStringLiteral("QPushButton{\ncolor:rgb(40,91,227);\nbackground:transparent;\nborder:none;\n}\n");
const QString TableSheet = QStringLiteral(
    "QTableView{\nalternate-background-color:rgb(246,246,246);\nbackground-color: rgb(239,239,239);\n"
    "border: 1px solid rgb(229,229,229);\nborder-radius:4px;\noutline:none;\nselection-background-color:#b2c6de;\n}\n"
    "QTableView::item{\npadding-left: 15px;\ncolor:rgb(51,51,51);\nborder:none;\noutline:0px;\n}\n"
    "QTableView::item::selected{\nbackground-color: rgb(178,198,222);\nborder:none;\noutline:0px;\n}\n"
    "QHeaderView::section{\nbackground-color: rgb(246,246,246);\ncolor: rgb(153,153,153);\npadding-left: 15px;\n"
    "border: none;\n}");

QString Machine(const QString& serial, const QString& ip, const QString& interfaceName)
{
    return QStringLiteral("a*%1*b*%2*c*%3").arg(serial, ip, interfaceName);
}

const QString Usb = QString::fromLatin1(g_strInterfaceUsb);
const QString Eth = QString::fromLatin1(g_strInterfaceEth);
const QString Wlan = QString::fromLatin1(g_strInterfaceWlan);

// A panel on the stack doesn't delete itself.
struct Panel : CSelectMachineBox
{
    Panel()
        : CSelectMachineBox(nullptr)
    {
        setAttribute(Qt::WA_DeleteOnClose, false);
    }
    QStandardItem* Item(int row, int column = 1) const { return m_pModel->item(row, column); }
    void ClickRow(int row, int column = 1)
    {
        const QRect cell = ui->tableView->visualRect(m_pModel->index(row, column));
        QTest::mouseClick(ui->tableView->viewport(), Qt::LeftButton, {}, cell.center());
    }
    QPushButton* CloseButton() const { return findChild<QPushButton*>(QStringLiteral("m_btnClose")); }
};

// The index by serial number must tell what going through the rows tells.
void VerifyIndex(CSelectMachineBox& panel)
{
    QHash<QString, QStandardItem*> expected;
    for (int row = 0; row < panel.m_pModel->rowCount(); ++row) {
        QStandardItem* item = panel.m_pModel->item(row, 1);
        const QString serial = item != nullptr ? item->data(CSelectMachineBox::RoleSerial).toString() : QString();
        if (!serial.isEmpty() && !expected.contains(serial)) {
            expected.insert(serial, item);
        }
    }
    panel.FindMachine(QString());
    QHash<QString, QStandardItem*> actual = panel.m_hashSnToItem;
    actual.remove(QString());
    QCOMPARE(actual, expected);
}

} // namespace

class CSelectMachineBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void methodsStandInTheirOrder();
    void formStandsAsDrawn();
    void layoutsStandAsDrawn_data();
    void layoutsStandAsDrawn();
    void fixedSizesStandAsDrawn_data();
    void fixedSizesStandAsDrawn();
    void styleSheetsAreExact_data();
    void styleSheetsAreExact();
    void textsAreTheFormsOwn_data();
    void textsAreTheFormsOwn();
    void everyPushButtonButOneHasTheHand();
    void listPageFillsThePanel();
    void tableIsSetUp();
    void startsInTheScanningLook();
    void configPageIsPlacedByLanguage_data();
    void configPageIsPlacedByLanguage();
    void titleAndStripAreThePanels();
    void fontsAreTheProducts();

    void priorityOfInterfaces_data();
    void priorityOfInterfaces();
    void textsThatGiveNoRow_data();
    void textsThatGiveNoRow();
    void rowHoldsTheMachine();
    void textWithoutInterfaceCountsAsWifi();
    void fieldsBehindTheSixthAreIgnored();
    void betterRouteReplacesTheOldOne();
    void equalOrWorseRouteChangesNothing_data();
    void equalOrWorseRouteChangesNothing();
    void betterRouteIgnoresUsbOnly();
    void usbOnlyKeepsOthersOutButKnowsTheirAddress();
    void serialsDifferByCase();
    void strangeTextsAreTakenAsTheyAre_data();
    void strangeTextsAreTakenAsTheyAre();
    void percentSignsStayInTheLog();
    void onlyTheSerialsEndIsLogged();
    void indexFollowsWhateverHappensToTheRows();
    void indexKeepsTheFirstOfTwoRows();
    void clearingForgetsRowsAndAddressesOnly();
    void rowsAndAddressesGoInTheirOrder();

    void clickOnEitherColumnTakesTheRow();
    void clickWhereNoRowIsKeepsTheRowClickedLast();
    void keyboardChoiceCarriesTheRowClickedLast();
    void connectWithNothingChosenDoesNothing();
    void connectWithASelectionAnnouncesTheRow();
    void routeChangeAfterTheClickKeepsTheOldAddress();
    void typedAddressWinsOverASelectedRow();
    void typedAddressIsTrimmed();
    void panelDuringTheAnnouncementOfATypedAddress();
    void connectByTheKeyboardTakesTheAddressOfAFocusedPopUp();
    void connectResultFalseMakesItUsable();
    void connectResultTrueClosesAndDeletes();
    void resultWithinTheSignal_data();
    void resultWithinTheSignal();
    void refreshEmptiesTheListAndTells();
    void connectAfterRefreshDoesNothing();
    void scanCaptionEndsAfterTenSeconds();
    void refreshHidesThePopUpAndKeepsItsText();
    void ipButtonOpensThePopUpInTheMiddle();
    void typingShowsInThePanel();
    void partialAddressIsTakenBackOnClose();
    void clearFaceTakesTheAddressBack();
    void calibrationOpensTheConfigPage();
    void switchLeadsToTheListForGood();
    void cancelAndEscapeClose_data();
    void cancelAndEscapeClose();
    void escapeClosesWhileConnecting();
    void returnDoesNothing();
    void networkButtonOpensTheSettings();
    void eachSlotRunsOncePerClick();

    void deletedInTheMachineSelectedSlot_data();
    void deletedInTheMachineSelectedSlot();
    void deletedInTheRefreshSlot();
    void deletedWhileThePopUpHasTheFocus();
    void manyMachinesCostWhatFewDo();

public Q_SLOTS:
    void openSettings(const QUrl& url) { m_listOpened << url; }

private:
    QList<QUrl> m_listOpened;
};

void CSelectMachineBoxTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    TestEnvironment::MoveCursorAway();
}

void CSelectMachineBoxTest::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void CSelectMachineBoxTest::methodsStandInTheirOrder()
{
    const QMetaObject& meta = CSelectMachineBox::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(methods,
             QStringList({"SignalMachineSelected(QString,QString)", "SignalSelectRefresh()",
                          "SignalGetMachineSNFinished(bool,QString,QString)", "on_m_btnConnect_clicked()",
                          "on_m_btnRefresh_clicked()", "on_ipButton_clicked()", "on_btnSwitchConnect_clicked()",
                          "on_btnCancel_clicked()", "on_btnConfig_clicked()", "on_pushButton_clicked()"}));
}

void CSelectMachineBoxTest::formStandsAsDrawn()
{
    Panel panel;
    const Ui::CSelectMachineBox* ui = panel.ui;
    QCOMPARE(panel.objectName(), QStringLiteral("CVelmarSelectBox"));
    QCOMPARE(panel.minimumSize(), QSize(550, 376));
    QCOMPARE(panel.maximumSize(), QSize(550, 376));
    const QLayout* main = panel.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout_4"));
    QCOMPARE(main->count(), 1);
    QCOMPARE(main->itemAt(0)->widget(), ui->central);
    QCOMPARE(ui->stackedWidget->count(), 2);
    QCOMPARE(ui->stackedWidget->widget(0), ui->pageConnect);
    QCOMPARE(ui->stackedWidget->widget(1), ui->pageConfig);
    QVERIFY(ui->pageConfig->layout() == nullptr);
    QCOMPARE(ui->topWidget->layoutDirection(), Qt::LeftToRight);
    QVERIFY(ui->topWidget->testAttribute(Qt::WA_SetLayoutDirection));
    QVERIFY(ui->tipLabel->testAttribute(Qt::WA_SetLayoutDirection));
    QCOMPARE(ui->tipLabel->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    for (const QLabel* label : {ui->labelConfigTip, ui->labelmg, ui->labelFailed}) {
        QCOMPARE(label->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    }
    QVERIFY(ui->labelConfigTip->wordWrap());
    QVERIFY(ui->labelFailed->wordWrap());
    // The minimum stands above the maximum, and both are kept.
    QCOMPARE(ui->bottomWidget->minimumSize(), QSize(0, 58));
    QCOMPARE(ui->bottomWidget->maximumSize(), QSize(QWIDGETSIZE_MAX, 50));
}

void CSelectMachineBoxTest::layoutsStandAsDrawn_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("spacing"); // -1: the style's
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QStringList>("children"); // "40x20" is a spacer
    QTest::newRow("central") << "central"
                             << "verticalLayout_2" << 0 << QMargins() << QStringList{"stackedWidget"};
    QTest::newRow("pageConnect") << "pageConnect"
                                 << "verticalLayout_5" << 8 << QMargins(24, 24, 24, 24)
                                 << QStringList{"topWidget", "ipDetail", "tableView", "bottomWidget"};
    QTest::newRow("topWidget") << "topWidget"
                               << "horizontalLayout_7" << 0 << QMargins()
                               << QStringList{"tipLabel", "40x20", "label_4", "pushButton", "pushButton_2"};
    QTest::newRow("ipDetail") << "ipDetail"
                              << "horizontalLayout_8" << 0 << QMargins()
                              << QStringList{"labelType", "85x17", "labelIP", "85x17", "labelMask"};
    QTest::newRow("bottomWidget") << "bottomWidget"
                                  << "verticalLayout_3" << -1 << QMargins() << QStringList{"ipWidget", "buttonWidget"};
    QTest::newRow("ipWidget") << "ipWidget"
                              << "horizontalLayout" << 4 << QMargins() << QStringList{"345x20", "ipLabel", "ipButton"};
    QTest::newRow("buttonWidget") << "buttonWidget"
                                  << "horizontalLayout_2" << 16 << QMargins()
                                  << QStringList{"25x20", "m_btnRefresh", "m_btnConnect", "25x20"};
}

void CSelectMachineBoxTest::layoutsStandAsDrawn()
{
    QFETCH(QString, owner);
    QFETCH(QString, name);
    QFETCH(int, spacing);
    QFETCH(QMargins, margins);
    QFETCH(QStringList, children);
    Panel panel;
    const auto* layout = qobject_cast<QBoxLayout*>(panel.findChild<QWidget*>(owner)->layout());
    QCOMPARE(layout->objectName(), name);
    QCOMPARE(layout->contentsMargins(), margins);
    QCOMPARE(layout->spacing(), spacing >= 0 ? spacing : panel.style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    QStringList actual;
    for (int i = 0; i < layout->count(); ++i) {
        if (const QSpacerItem* spacer = layout->itemAt(i)->spacerItem()) {
            const QSize hint = spacer->sizeHint();
            actual << QStringLiteral("%1x%2").arg(hint.width()).arg(hint.height());
            QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        } else {
            actual << layout->itemAt(i)->widget()->objectName();
        }
    }
    QCOMPARE(actual, children);
}

void CSelectMachineBoxTest::fixedSizesStandAsDrawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    const auto row = [](const char* name, QSize minimum, QSize maximum) {
        QTest::newRow(name) << QString::fromLatin1(name) << minimum << maximum;
    };
    const int any = QWIDGETSIZE_MAX;
    row("topWidget", {0, 20}, {any, 20});
    row("ipDetail", {0, 20}, {any, 20});
    row("label_4", {16, 16}, {16, 16});
    row("pushButton_2", {16, 16}, {16, 16});
    row("buttonWidget", {0, 32}, {any, 32});
    row("m_btnRefresh", {190, 32}, {190, 32});
    row("m_btnConnect", {190, 32}, {190, 32});
    row("labelConfigTip", {530, 0}, {530, any});
    row("labelmg", {442, 129}, {442, 129});
    row("btnCancel", {190, 32}, {190, 32});
    row("btnConfig", {190, 32}, {190, 32});
    row("labelFailed", {270, 0}, {270, any});
    row("labelIcon", {20, 20}, {20, 20});
    row("btnSwitchConnect", {56, 18}, {56, 18});
}

void CSelectMachineBoxTest::fixedSizesStandAsDrawn()
{
    QFETCH(QString, name);
    QFETCH(QSize, minimum);
    QFETCH(QSize, maximum);
    Panel panel;
    const auto* widget = panel.findChild<QWidget*>(name);
    QCOMPARE(widget->minimumSize(), minimum);
    QCOMPARE(widget->maximumSize(), maximum);
}

void CSelectMachineBoxTest::styleSheetsAreExact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sheet");
    const auto row = [](const char* name, const QString& sheet) {
        QTest::newRow(name) << QString::fromLatin1(name) << sheet;
    };
    row("central", QStringLiteral("QWidget#central\n{\nbackground-color:rgb(246,246,246);\n}"));
    row("stackedWidget", QString());
    row("tipLabel", QStringLiteral("QLabel{\nborder:none;\nbackground:transparent;\ncolor:#666666;\n}"));
    row("label_4", QStringLiteral("border-image:url(\":/icon/connect/ico_connect_set.png\");"));
    row("pushButton", LinkSheet);
    row("pushButton_2", PlainSheet);
    row("ipDetail", QStringLiteral("QLabel{\ncolor:#333333;\nborder:none;\nbackground:transparent;\n}"));
    row("tableView", TableSheet);
    row("ipLabel", QStringLiteral("QLabel{\ncolor:rgba(153, 153, 153, 1);\nbackground:transparent;\nborder:none;\n}"));
    row("ipButton", PlainSheet);
    row("m_btnRefresh", GreySheet);
    row("m_btnConnect", GreenSheet);
    row("pageConfig", QStringLiteral("#pageConfig{\nbackground:#ffffff;\nborder:none;}"));
    row("labelmg", QStringLiteral("border-image:url(\":/icon/connect/img_connet_typec_usb3.png\");"));
    row("btnCancel", GreySheet);
    row("btnConfig", GreenSheet);
    row("labelFailed", QStringLiteral("border:none;\nbackground:transparent;\ncolor:#E50000;"));
    row("labelDetail", QStringLiteral("color:#000000;"));
    row("labelIcon", QStringLiteral("border-image:url(\":/icon/connect/ico_current_stp_i_20x20.png\");"));
    row("btnSwitchConnect", LinkSheet + QLatin1Char('\n'));
}

void CSelectMachineBoxTest::styleSheetsAreExact()
{
    QFETCH(QString, name);
    QFETCH(QString, sheet);
    Panel panel;
    QCOMPARE(panel.findChild<QWidget*>(name)->styleSheet(), sheet);
}

void CSelectMachineBoxTest::textsAreTheFormsOwn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromUtf8(text);
    };
    row("tipLabel", "请将本机手动配置以下数据后重试");
    row("pushButton", "打开网络和Internet");
    row("pushButton_2", "");
    row("label_4", "");
    row("labelType", "IP分配：手动");
    row("labelIP", "IP地址：192.168.7.x");
    row("labelMask", "IP掩码：255.255.255.0");
    row("ipLabel", "");
    row("ipButton", "指定IP");
    row("m_btnRefresh", "扫描中...");
    row("m_btnConnect", "连接");
    row("labelConfigTip", "为确保数据传输稳定和结果准确，请参照示意图进行有线方式连接机床");
    row("labelmg", "");
    row("btnCancel", "取消");
    row("btnConfig", "自动配置");
    row("labelFailed", "自动连接失败，有线网卡未探测到机床");
    row("labelDetail", "连接中，请稍候...");
    row("labelIcon", "");
    row("btnSwitchConnect", "手动配置");
    row("m_labelBoxName", "新建连接");
    row("m_btnConfirm", "");
}

void CSelectMachineBoxTest::textsAreTheFormsOwn()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    Panel panel;
    QCOMPARE(panel.findChild<QWidget*>(name)->property("text").toString(), text);
}

void CSelectMachineBoxTest::everyPushButtonButOneHasTheHand()
{
    Panel panel;
    for (const QPushButton* button : panel.ui->central->findChildren<QPushButton*>()) {
        QCOMPARE(button->cursor().shape(), button == panel.ui->pushButton_2 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    }
}

void CSelectMachineBoxTest::listPageFillsThePanel()
{
    Panel panel;
    panel.show();
    const auto inPanel = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&panel, QPoint(0, 0)), widget->size());
    };
    QCOMPARE(inPanel(panel.findChild<QWidget*>(QStringLiteral("m_widgetTitle"))), QRect(1, 1, 548, 32));
    QCOMPARE(inPanel(panel.ui->central), QRect(2, 34, 546, 340));
    const QRect table = inPanel(panel.ui->tableView);
    QCOMPARE(table.topLeft(), QPoint(26, 58));
    QCOMPARE(table.width(), 498);
    // The layout has 50 pixels for it, its maximum; the minimum of 58 wins and stands out by four on each side.
    QCOMPARE(inPanel(panel.ui->bottomWidget), QRect(26, 296, 498, 58));
    QCOMPARE(panel.ui->buttonWidget->geometry(), QRect(0, 26, 498, 32));
    QCOMPARE(panel.ui->m_btnConnect->mapTo(&panel, QPoint()).x() - panel.ui->m_btnRefresh->mapTo(&panel, QPoint()).x(),
             190 + 16);
}

void CSelectMachineBoxTest::tableIsSetUp()
{
    Panel panel;
    const QTableView* table = panel.ui->tableView;
    QCOMPARE(table->model(), panel.m_pModel);
    QCOMPARE(panel.m_pModel->parent(), &panel);
    QCOMPARE(panel.m_pModel->columnCount(), 2);
    QCOMPARE(panel.m_pModel->horizontalHeaderItem(0)->text(), QStringLiteral("设备列表"));
    QCOMPARE(panel.m_pModel->horizontalHeaderItem(1)->text(), QStringLiteral("序列号"));
    QVERIFY(panel.m_pFileNameDelegate != nullptr);
    QCOMPARE(panel.m_pFileNameDelegate->parent(), &panel);
    QVERIFY(table->itemDelegate() != panel.m_pFileNameDelegate);
    QHeaderView* header = table->horizontalHeader();
    QCOMPARE(header->sectionResizeMode(0), QHeaderView::Stretch);
    QCOMPARE(header->sectionResizeMode(1), QHeaderView::Stretch);
    QCOMPARE(header->minimumHeight(), 32);
    QCOMPARE(header->maximumHeight(), 32);
    QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(!header->isEnabled());
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(table->verticalHeader()->isHidden());
    QVERIFY(!table->showGrid());
    QVERIFY(!table->isHidden());
    QVERIFY(table->alternatingRowColors());
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void CSelectMachineBoxTest::startsInTheScanningLook()
{
    Panel panel;
    QSignalSpy refresh(&panel, &CSelectMachineBox::SignalSelectRefresh);
    QCOMPARE(panel.ui->stackedWidget->currentWidget(), panel.ui->pageConnect);
    QCOMPARE(panel.m_pScanTimer->parent(), &panel);
    QCOMPARE(panel.m_pScanTimer->interval(), 10000);
    QVERIFY(!panel.m_pScanTimer->isSingleShot());
    QVERIFY(panel.m_pScanTimer->isActive());
    QCOMPARE(panel.ui->m_btnRefresh->text(), QStringLiteral("扫描中..."));
    QVERIFY(panel.ui->m_btnRefresh->isEnabled());
    QVERIFY(panel.m_pIpLineEdit == nullptr);
    QVERIFY(panel.m_strMachineIP.isEmpty());
    QVERIFY(panel.m_strMachineNum.isEmpty());
    QVERIFY(panel.m_hashIpToSn.isEmpty());
    QVERIFY(!panel.CloseButton()->isHidden());
    for (const QWidget* widget :
         std::initializer_list<QWidget*>{panel.ui->topWidget, panel.ui->ipDetail, panel.ui->labelDetail,
                                         panel.ui->labelIcon, panel.ui->labelFailed, panel.ui->btnSwitchConnect}) {
        QVERIFY2(widget->isHidden(), qPrintable(widget->objectName()));
    }
    QCoreApplication::processEvents();
    QCOMPARE(refresh.count(), 0);
}

void CSelectMachineBoxTest::configPageIsPlacedByLanguage_data()
{
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("switchWidth");
    QTest::addColumn<int>("switchX");
    QTest::addColumn<int>("failedX");
    QTest::addColumn<int>("iconX");
    QTest::newRow("Chinese") << true << ":/icon/connect/img_connet_typec_usb3.png" << 56 << 392 << 110 << 86;
    QTest::newRow("other") << false << ":/icon/connect/img_connet_typec_usb3_en.png" << 128 << 382 << 100 << 76;
}

void CSelectMachineBoxTest::configPageIsPlacedByLanguage()
{
    QFETCH(bool, chinese);
    QFETCH(QString, picture);
    QFETCH(int, switchWidth);
    QFETCH(int, switchX);
    QFETCH(int, failedX);
    QFETCH(int, iconX);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
    Panel panel;
    const Ui::CSelectMachineBox* ui = panel.ui;
    QCOMPARE(ui->labelmg->styleSheet(), QStringLiteral("border-image:url(\"%1\");").arg(picture));
    QVERIFY(QFile::exists(picture));
    QCOMPARE(ui->btnSwitchConnect->geometry(), QRect(switchX, 233, switchWidth, 18));
    QCOMPARE(ui->labelFailed->width(), 270);
    QCOMPARE(ui->labelFailed->pos(), QPoint(failedX, 233));
    QCOMPARE(ui->labelIcon->geometry(), QRect(iconX, 233, 20, 20));
    QCOMPARE(ui->labelConfigTip->width(), 530);
    QCOMPARE(ui->labelConfigTip->pos(), QPoint(10, 29));
    QCOMPARE(ui->labelDetail->pos(), QPoint((550 - ui->labelDetail->width()) / 2, 233));
    QCOMPARE(ui->labelmg->geometry(), QRect(54, 93, 442, 129));
    QCOMPARE(ui->btnCancel->geometry(), QRect(72, 291, 190, 32));
    QCOMPARE(ui->btnConfig->geometry(), QRect(283, 291, 190, 32));
}

void CSelectMachineBoxTest::titleAndStripAreThePanels()
{
    Panel panel;
    QVERIFY(panel.findChild<QWidget*>(QStringLiteral("m_widgetBtn"))->isHidden());
    QCOMPARE(panel.findChild<QLabel*>(QStringLiteral("m_labelBoxName"))->text(), QStringLiteral("新建连接"));
    const CSelectMachineBox deletesItself(nullptr);
    QVERIFY(deletesItself.testAttribute(Qt::WA_DeleteOnClose));
}

void CSelectMachineBoxTest::fontsAreTheProducts()
{
    Panel panel;
    for (const char* name : {"ipButton", "ipLabel", "m_btnConnect", "m_btnRefresh", "labelConfigTip", "labelDetail",
                             "labelFailed", "btnConfig", "btnCancel", "btnSwitchConnect", "labelType", "labelIP",
                             "labelMask", "pushButton", "tipLabel"}) {
        const QFont font = panel.findChild<QWidget*>(QString::fromLatin1(name))->font();
        QCOMPARE(font.pixelSize(), FontCnMedium_14.pixelSize());
        QCOMPARE(font.weight(), FontCnMedium_14.weight());
        QCOMPARE(font.families(), FontCnMedium_14.families());
    }
}

void CSelectMachineBoxTest::priorityOfInterfaces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("priority");
    QTest::newRow("usb") << Usb << 3;
    QTest::newRow("ethernet") << Eth << 2;
    QTest::newRow("wifi") << Wlan << 1;
    QTest::newRow("upper case") << Usb.toUpper() << 0;
    QTest::newRow("another") << "eth1" << 0;
    QTest::newRow("blank behind") << Eth + QLatin1Char(' ') << 0;
    QTest::newRow("empty") << "" << 0;
}

void CSelectMachineBoxTest::priorityOfInterfaces()
{
    QFETCH(QString, name);
    QFETCH(int, priority);
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), name), false);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RolePriority).toInt(), priority);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleInterface).toString(), name);
}

void CSelectMachineBoxTest::textsThatGiveNoRow_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("three fields") << "a*SN1*b";
    QTest::newRow("no serial") << "a**b*10.0.0.5*c*x";
    QTest::newRow("no address yet") << "a*SN1*b*0.0.0.0*c*x";
    QTest::newRow("no stars") << "SN1";
    QTest::newRow("only stars") << "*****";
    QTest::newRow("a mebibyte of stars") << QString(1 << 20, QLatin1Char('*'));
}

void CSelectMachineBoxTest::textsThatGiveNoRow()
{
    QFETCH(QString, text);
    LogCapture log;
    Panel panel;
    panel.SetMachineInfo(text, false);
    QCOMPARE(panel.m_pModel->rowCount(), 0);
    QVERIFY(panel.m_hashIpToSn.isEmpty());
    QVERIFY(log.Lines().isEmpty());
}

void CSelectMachineBoxTest::rowHoldsTheMachine()
{
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QCOMPARE(panel.m_pModel->rowCount(), 1);
    const QStandardItem* name = panel.Item(0, 0);
    const QStandardItem* serial = panel.Item(0, 1);
    QCOMPARE(name->text(), QStringLiteral("Velmar CNC机器"));
    QVERIFY(!name->icon().isNull());
    QVERIFY(!name->icon().pixmap(16, 16).isNull());
    QVERIFY(serial->icon().isNull());
    QCOMPARE(serial->text(), QStringLiteral("SN1"));
    for (const QStandardItem* item : {name, serial}) {
        QCOMPARE(item->font(), FontCnMedium_13);
        QCOMPARE(item->foreground(), QBrush(QColor(153, 153, 153, 255), Qt::SolidPattern));
    }
    QCOMPARE(int(CSelectMachineBox::RoleSerial), 256);
    QCOMPARE(int(CSelectMachineBox::RolePriority), 259);
    QCOMPARE(serial->data(256), QVariant(QStringLiteral("SN1")));
    QCOMPARE(serial->data(257), QVariant(QStringLiteral("10.0.0.5")));
    QCOMPARE(serial->data(258), QVariant(Eth));
    QCOMPARE(serial->data(259), QVariant(2));
    QCOMPARE(serial->data(259).typeId(), int(QMetaType::Int));
    QVERIFY(!name->data(256).isValid());
    const QHash<QString, QString> known = {{QStringLiteral("10.0.0.5"), QStringLiteral("SN1")}};
    QCOMPARE(panel.m_hashIpToSn, known);
}

void CSelectMachineBoxTest::textWithoutInterfaceCountsAsWifi()
{
    Panel panel;
    panel.SetMachineInfo(QStringLiteral("a*SN1*b*10.0.0.5"), false);
    panel.SetMachineInfo(QStringLiteral("a*SN2*b*10.0.0.6*c"), false);
    QCOMPARE(panel.m_pModel->rowCount(), 2);
    for (int row = 0; row < 2; ++row) {
        QCOMPARE(panel.Item(row)->data(CSelectMachineBox::RoleInterface).toString(), QStringLiteral("wlan0"));
        QCOMPARE(panel.Item(row)->data(CSelectMachineBox::RolePriority).toInt(), 1);
    }
}

void CSelectMachineBoxTest::fieldsBehindTheSixthAreIgnored()
{
    Panel panel;
    panel.SetMachineInfo(QStringLiteral("a*SN1*b*10.0.0.5*c*%1*x*y**").arg(Usb), false);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleInterface).toString(), Usb);
}

void CSelectMachineBoxTest::betterRouteReplacesTheOldOne()
{
    Panel panel;
    LogCapture log;
    panel.SetMachineInfo(Machine(QStringLiteral("OTHER"), QStringLiteral("9.9.9.9"), Wlan), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN-100"), QStringLiteral("A"), Wlan), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN-100"), QStringLiteral("B"), Eth), false);
    QCOMPARE(panel.m_pModel->rowCount(), 2);
    const QStandardItem* item = panel.Item(1);
    QCOMPARE(item->data(CSelectMachineBox::RoleIp).toString(), QStringLiteral("B"));
    QCOMPARE(item->data(CSelectMachineBox::RoleInterface).toString(), Eth);
    QCOMPARE(item->data(CSelectMachineBox::RolePriority).toInt(), 2);
    QCOMPARE(panel.m_hashIpToSn.value(QStringLiteral("B")), QStringLiteral("SN-100"));
    QVERIFY(!panel.m_hashIpToSn.contains(QStringLiteral("A")));
    QCOMPARE(log.Lines().mid(1), QStringList({QStringLiteral("新增机床IP:A,Interface:wlan0,SN(last3):100"),
                                              QStringLiteral("机床更换优先级更高IP:B,Interface:eth0,SN(last3):100")}));
}

void CSelectMachineBoxTest::equalOrWorseRouteChangesNothing_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("equal") << Eth << Eth;
    QTest::newRow("worse") << Eth << Wlan;
    QTest::newRow("unknown after wifi") << Wlan << "x";
    QTest::newRow("two unknown ones") << "x"
                                      << "y";
    QTest::newRow("usb twice") << Usb << Usb;
}

void CSelectMachineBoxTest::equalOrWorseRouteChangesNothing()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("A"), first), false);
    LogCapture log;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("B"), second), false);
    QCOMPARE(panel.m_pModel->rowCount(), 1);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleIp).toString(), QStringLiteral("A"));
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleInterface).toString(), first);
    const QHash<QString, QString> known = {{QStringLiteral("A"), QStringLiteral("SN1")}};
    QCOMPARE(panel.m_hashIpToSn, known);
    QVERIFY(log.Lines().isEmpty());
}

void CSelectMachineBoxTest::betterRouteIgnoresUsbOnly()
{
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("A"), Wlan), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("B"), Eth), true);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleIp).toString(), QStringLiteral("B"));
}

void CSelectMachineBoxTest::usbOnlyKeepsOthersOutButKnowsTheirAddress()
{
    Panel panel;
    LogCapture log;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), true);
    QCOMPARE(panel.m_pModel->rowCount(), 0);
    QVERIFY(log.Lines().isEmpty());
    panel.SetMachineInfo(Machine(QStringLiteral("SN2"), QStringLiteral("10.0.0.6"), Usb), true);
    QCOMPARE(panel.m_pModel->rowCount(), 1);

    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.InputIp(QStringLiteral("10.0.0.5"));
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), QList<QVariant>({QStringLiteral("10.0.0.5"), QStringLiteral("SN1")}));
}

void CSelectMachineBoxTest::serialsDifferByCase()
{
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("sn1"), QStringLiteral("A"), Eth), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("B"), Eth), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN1 "), QStringLiteral("C"), Eth), false);
    QCOMPARE(panel.m_pModel->rowCount(), 3);
}

void CSelectMachineBoxTest::strangeTextsAreTakenAsTheyAre_data()
{
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("ip");
    QTest::newRow("NUL inside") << QString::fromUtf16(u"S\0N", 3) << "10.0.0.5";
    QTest::newRow("lone surrogates") << QString(QChar(0xD800)) + QChar(0xDC00 - 1) << QString(QChar(0xDFFF));
    QTest::newRow("a mebibyte") << QString(1 << 20, QLatin1Char('S')) << QString(1 << 20, QLatin1Char('1'));
    QTest::newRow("no address at all") << "SN"
                                       << "";
    QTest::newRow("one character") << "S"
                                   << "x";
    QTest::newRow("line feeds") << "S\nN"
                                << "1\n2";
}

void CSelectMachineBoxTest::strangeTextsAreTakenAsTheyAre()
{
    QFETCH(QString, serial);
    QFETCH(QString, ip);
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("x"), QStringLiteral("y"), Wlan), false);
    panel.SetMachineInfo(QStringLiteral("a*") + serial + QStringLiteral("*b*") + ip, false);
    panel.SetMachineInfo(QStringLiteral("a*") + serial + QStringLiteral("*b*") + ip, false);
    QCOMPARE(panel.m_pModel->rowCount(), 2);
    QCOMPARE(panel.Item(1)->data(CSelectMachineBox::RoleSerial).toString(), serial);
    QCOMPARE(panel.Item(1)->data(CSelectMachineBox::RoleIp).toString(), ip);
    QCOMPARE(panel.m_hashIpToSn.value(ip), serial);
    VerifyIndex(panel);
}

void CSelectMachineBoxTest::percentSignsStayInTheLog()
{
    Panel panel;
    LogCapture log;
    panel.SetMachineInfo(Machine(QStringLiteral("%1"), QStringLiteral("%2"), QStringLiteral("%3")), false);
    QCOMPARE(log.Lines(), QStringList(QStringLiteral("新增机床IP:%2,Interface:%3,SN(last3):%1")));
}

void CSelectMachineBoxTest::onlyTheSerialsEndIsLogged()
{
    Panel panel;
    LogCapture log;
    panel.show();
    const QString serial = QStringLiteral("SECRET789");
    panel.SetMachineInfo(Machine(serial, QStringLiteral("10.0.0.5"), Wlan), false);
    panel.SetMachineInfo(Machine(serial, QStringLiteral("10.0.0.6"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    panel.ui->m_btnConnect->click();
    panel.OnConnectResult(false);
    panel.InputIp(QStringLiteral("10.0.0.6"));
    panel.ui->m_btnConnect->click();
    QCOMPARE(log.Lines(), QStringList({QStringLiteral("新增机床IP:10.0.0.5,Interface:wlan0,SN(last3):789"),
                                       QStringLiteral("机床更换优先级更高IP:10.0.0.6,Interface:eth0,SN(last3):789"),
                                       QStringLiteral("当前点击IP:10.0.0.6,interface:eth0,SN(right3):789"),
                                       QStringLiteral("点击连接机床连接 是否指定IP:,已有sn:"),
                                       QStringLiteral("通过选中连接 IP:10.0.0.6"),
                                       QStringLiteral("点击连接机床连接 是否指定IP:10.0.0.6,已有sn:789"),
                                       QStringLiteral("通过指定IP连接 IP:10.0.0.6")}));
}

void CSelectMachineBoxTest::indexFollowsWhateverHappensToTheRows()
{
    Panel panel;
    QStandardItemModel* model = panel.m_pModel;
    const auto add = [&](const char* serial) {
        panel.SetMachineInfo(Machine(QString::fromLatin1(serial), QString::fromLatin1(serial), Wlan), false);
        VerifyIndex(panel);
    };
    const auto foreignRow = [](const char* serial) {
        auto* item = new QStandardItem;
        item->setData(QString::fromLatin1(serial), CSelectMachineBox::RoleSerial);
        return QList<QStandardItem*>{new QStandardItem, item};
    };
    for (const char* serial : {"A", "B", "C", "D", "E", "F"}) {
        add(serial);
    }
    model->removeRow(1);
    VerifyIndex(panel);
    add("B");
    QCOMPARE(model->rowCount(), 6);
    model->sort(1, Qt::DescendingOrder);
    VerifyIndex(panel);
    qDeleteAll(model->takeRow(0));
    VerifyIndex(panel);
    model->appendRow(foreignRow("G"));
    VerifyIndex(panel);
    add("G");
    QCOMPARE(model->rowCount(), 6);
    model->insertRow(0, foreignRow("A"));
    VerifyIndex(panel);
    delete model->takeItem(2, 1);
    VerifyIndex(panel);
    model->setItem(3, 1, new QStandardItem(QStringLiteral("Z")));
    VerifyIndex(panel);
    model->item(3, 1)->setData(QStringLiteral("Y"), CSelectMachineBox::RoleSerial);
    VerifyIndex(panel);
    model->appendRow(new QStandardItem); // one column only
    VerifyIndex(panel);
    model->appendRow(QList<QStandardItem*>{new QStandardItem});
    VerifyIndex(panel);
    model->setColumnCount(1);
    VerifyIndex(panel);
    model->setColumnCount(2);
    VerifyIndex(panel);
    add("Q");
    model->clear();
    VerifyIndex(panel);
    add("R");
    QCOMPARE(model->rowCount(), 1);
    panel.ClearBoxInfo();
    VerifyIndex(panel);
    add("R");
    panel.ui->m_btnRefresh->click();
    VerifyIndex(panel);
    add("R");
    QCOMPARE(model->rowCount(), 1);
}

void CSelectMachineBoxTest::indexKeepsTheFirstOfTwoRows()
{
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("A"), QStringLiteral("1"), Wlan), false);
    auto* twin = new QStandardItem;
    twin->setData(QStringLiteral("A"), CSelectMachineBox::RoleSerial);
    panel.m_pModel->appendRow({new QStandardItem, twin});
    panel.SetMachineInfo(Machine(QStringLiteral("A"), QStringLiteral("2"), Usb), false);
    QCOMPARE(panel.Item(0)->data(CSelectMachineBox::RoleIp).toString(), QStringLiteral("2"));
    QVERIFY(!twin->data(CSelectMachineBox::RoleIp).isValid());
}

void CSelectMachineBoxTest::clearingForgetsRowsAndAddressesOnly()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    QSignalSpy refresh(&panel, &CSelectMachineBox::SignalSelectRefresh);
    panel.ClearBoxInfo();
    QCOMPARE(panel.m_pModel->rowCount(), 0);
    QCOMPARE(panel.m_pModel->columnCount(), 2);
    QVERIFY(panel.m_hashIpToSn.isEmpty());
    QCOMPARE(panel.m_strMachineIP, QStringLiteral("10.0.0.5"));
    QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN1"));
    QVERIFY(panel.m_pScanTimer->isActive());
    QCOMPARE(panel.ui->m_btnRefresh->text(), QStringLiteral("扫描中..."));
    QCOMPARE(refresh.count(), 0);
    panel.ClearBoxInfo();
}

void CSelectMachineBoxTest::rowsAndAddressesGoInTheirOrder()
{
    Panel panel;
    QList<int> addresses; // known at the moment when the rows go
    connect(panel.m_pModel, &QAbstractItemModel::rowsRemoved, this,
            [&] { addresses << int(panel.m_hashIpToSn.size()); });
    const QString text = Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth);
    panel.SetMachineInfo(text, false);
    panel.ClearBoxInfo();
    panel.SetMachineInfo(text, false);
    panel.ui->m_btnRefresh->click();
    QCOMPARE(addresses, QList<int>({0, 1}));
}

void CSelectMachineBoxTest::clickOnEitherColumnTakesTheRow()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    panel.SetMachineInfo(Machine(QStringLiteral("SN2"), QStringLiteral("10.0.0.6"), Wlan), false);
    QTest::ignoreMessage(QtDebugMsg, "Selected machine IP: \"10.0.0.6\" Machine number: \"SN2\" interface \"wlan0\"");
    panel.ClickRow(1, 0);
    QCOMPARE(panel.m_strMachineIP, QStringLiteral("10.0.0.6"));
    QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN2"));
    QTest::ignoreMessage(QtDebugMsg, "Selected machine IP: \"10.0.0.5\" Machine number: \"SN1\" interface \"eth0\"");
    panel.ClickRow(0, 1);
    QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN1"));
    QCOMPARE(panel.ui->tableView->selectionModel()->selectedRows().size(), 1);
}

void CSelectMachineBoxTest::clickWhereNoRowIsKeepsTheRowClickedLast()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    panel.ClickRow(0);
    LogCapture log;
    panel.RowClicked(QModelIndex());
    QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN1"));
    QCOMPARE(panel.m_strMachineIP, QStringLiteral("10.0.0.5"));
    QVERIFY(log.Lines().isEmpty());
}

void CSelectMachineBoxTest::keyboardChoiceCarriesTheRowClickedLast()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    QTest::keyClick(panel.ui->tableView, Qt::Key_Down);
    QVERIFY(panel.ui->tableView->selectionModel()->hasSelection());
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), QList<QVariant>({QString(), QString()}));
}

void CSelectMachineBoxTest::connectWithNothingChosenDoesNothing()
{
    Panel panel;
    LogCapture log;
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    log.Take();
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 0);
    QVERIFY(panel.ui->m_btnConnect->isEnabled());
    QVERIFY(panel.ui->m_btnRefresh->isEnabled());
    QVERIFY(!panel.CloseButton()->isHidden());
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接"));
    QCOMPARE(log.Lines(), QStringList(QStringLiteral("点击连接机床连接 是否指定IP:,已有sn:")));
}

void CSelectMachineBoxTest::connectWithASelectionAnnouncesTheRow()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    QString captionInSlot;
    connect(&panel, &CSelectMachineBox::SignalMachineSelected, this,
            [&] { captionInSlot = panel.ui->m_btnConnect->text(); });
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    QTest::mouseClick(panel.ui->m_btnConnect, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), QList<QVariant>({QStringLiteral("10.0.0.5"), QStringLiteral("SN1")}));
    QCOMPARE(captionInSlot, QStringLiteral("连接中..."));
    QVERIFY(!panel.ui->m_btnConnect->isEnabled());
    QVERIFY(!panel.ui->m_btnRefresh->isEnabled());
    QVERIFY(panel.ui->ipButton->isEnabled());
    QVERIFY(panel.CloseButton()->isHidden());
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接中..."));
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
}

void CSelectMachineBoxTest::routeChangeAfterTheClickKeepsTheOldAddress()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("A"), Wlan), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("B"), Usb), false);
    QCOMPARE(panel.m_strMachineIP, QStringLiteral("A"));
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.at(0), QList<QVariant>({QStringLiteral("A"), QStringLiteral("SN1")}));
}

void CSelectMachineBoxTest::typedAddressWinsOverASelectedRow()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    panel.ui->ipButton->click();
    QCursor::setPos(panel.m_pIpLineEdit->geometry().center());
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("10.0.0.77"));
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), QList<QVariant>({QStringLiteral("10.0.0.77"), QString()}));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接中..."));
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
    QVERIFY(!panel.m_pIpLineEdit->isVisible());
    QVERIFY(panel.m_pIpLineEdit->ui->lineEdit->text().isEmpty());
}

void CSelectMachineBoxTest::typedAddressIsTrimmed()
{
    Panel panel;
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.InputIp(QStringLiteral("  "));
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 0);
    panel.InputIp(QStringLiteral(" 10.0.0.5\t"));
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.value(0), QList<QVariant>({QStringLiteral("10.0.0.5"), QStringLiteral("SN1")}));
}

// The address goes only after the host has been told.
void CSelectMachineBoxTest::panelDuringTheAnnouncementOfATypedAddress()
{
    Panel panel;
    panel.InputIp(QStringLiteral("10.0.0.77"));
    LogCapture log;
    bool told = false;
    connect(&panel, &CSelectMachineBox::SignalMachineSelected, this, [&] {
        told = true;
        QVERIFY(!panel.ui->m_btnConnect->isEnabled());
        QVERIFY(!panel.ui->m_btnRefresh->isEnabled());
        QVERIFY(panel.CloseButton()->isHidden());
        QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接中..."));
        QCOMPARE(panel.ui->ipLabel->text(), QStringLiteral("10.0.0.77"));
        QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("清除"));
        QCOMPARE(log.Lines().value(1), QStringLiteral("通过指定IP连接 IP:10.0.0.77"));
    });
    panel.ui->m_btnConnect->click();
    QVERIFY(told);
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
}

// The pop-up has the focus and the cursor is elsewhere: hiding it must not tell its address a second time.
void CSelectMachineBoxTest::connectByTheKeyboardTakesTheAddressOfAFocusedPopUp()
{
    Panel panel;
    panel.show();
    panel.ui->ipButton->click();
    QVERIFY(QTest::qWaitForWindowActive(panel.m_pIpLineEdit));
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("10.0.0.77"));
    QVERIFY(panel.m_pIpLineEdit->isVisible());
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.ui->m_btnConnect->click();
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接中..."));
    QVERIFY(panel.m_pIpLineEdit->ui->lineEdit->text().isEmpty());
}

void CSelectMachineBoxTest::connectResultFalseMakesItUsable()
{
    Panel panel;
    panel.show();
    panel.InputIp(QStringLiteral("10.0.0.77"));
    panel.ui->m_btnConnect->click();
    panel.OnConnectResult(false);
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接"));
    QVERIFY(panel.ui->m_btnConnect->isEnabled());
    QVERIFY(panel.ui->m_btnRefresh->isEnabled());
    QVERIFY(panel.CloseButton()->isVisible());
    QVERIFY(panel.isVisible());
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
}

void CSelectMachineBoxTest::connectResultTrueClosesAndDeletes()
{
    const QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    panel->OnConnectResult(true);
    QVERIFY(panel);
    QVERIFY(!panel->isVisible());
    QTRY_VERIFY(!panel);
}

void CSelectMachineBoxTest::resultWithinTheSignal_data()
{
    QTest::addColumn<bool>("ok");
    QTest::newRow("true") << true;
    QTest::newRow("false") << false;
}

void CSelectMachineBoxTest::resultWithinTheSignal()
{
    QFETCH(bool, ok);
    const QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    connect(panel, &CSelectMachineBox::SignalMachineSelected, panel, [&] { panel->OnConnectResult(ok); });
    panel->InputIp(QStringLiteral("10.0.0.77"));
    panel->ui->m_btnConnect->click();
    QVERIFY(panel);
    QCOMPARE(panel->isVisible(), !ok);
    if (ok) {
        QTRY_VERIFY(!panel);
    } else {
        QCOMPARE(panel->ui->m_btnConnect->text(), QStringLiteral("连接"));
        QVERIFY(panel->ui->m_btnConnect->isEnabled());
        delete panel;
    }
}

void CSelectMachineBoxTest::refreshEmptiesTheListAndTells()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    int rowsInSlot = -1;
    connect(&panel, &CSelectMachineBox::SignalSelectRefresh, this, [&] {
        rowsInSlot = panel.m_pModel->rowCount() + int(panel.m_hashIpToSn.size());
        panel.SetMachineInfo(Machine(QStringLiteral("SN9"), QStringLiteral("10.0.0.9"), Eth), false);
    });
    QMetaObject::invokeMethod(panel.m_pScanTimer, "timeout");
    QCOMPARE(panel.ui->m_btnRefresh->text(), QStringLiteral("重新扫描"));
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalSelectRefresh);
    QTest::mouseClick(panel.ui->m_btnRefresh, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(rowsInSlot, 0);
    QCOMPARE(panel.m_pModel->rowCount(), 1);
    QCOMPARE(panel.ui->m_btnRefresh->text(), QStringLiteral("扫描中..."));
    QVERIFY(panel.ui->m_btnRefresh->isEnabled());
    QVERIFY(panel.m_pScanTimer->remainingTime() > 9000);
    QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN1"));
    QTest::mouseClick(panel.ui->m_btnRefresh, Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
}

void CSelectMachineBoxTest::connectAfterRefreshDoesNothing()
{
    Panel panel;
    panel.show();
    panel.SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Selected machine IP:")));
    panel.ClickRow(0);
    panel.ui->m_btnRefresh->click();
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    panel.ui->m_btnConnect->click();
    QCOMPARE(spy.count(), 0);
    QVERIFY(panel.ui->m_btnConnect->isEnabled());
}

void CSelectMachineBoxTest::scanCaptionEndsAfterTenSeconds()
{
    Panel panel;
    QElapsedTimer clock;
    clock.start();
    QTRY_COMPARE_WITH_TIMEOUT(panel.ui->m_btnRefresh->text(), QStringLiteral("重新扫描"), 15000);
    QVERIFY(clock.elapsed() >= 9400); // a coarse timer may come five in a hundred early
    QVERIFY(panel.m_pScanTimer->isActive());
}

void CSelectMachineBoxTest::refreshHidesThePopUpAndKeepsItsText()
{
    Panel panel;
    panel.show();
    panel.ui->ipButton->click();
    QCursor::setPos(panel.m_pIpLineEdit->geometry().center());
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("10.0"));
    panel.ui->m_btnRefresh->click();
    QVERIFY(!panel.m_pIpLineEdit->isVisible());
    QCOMPARE(panel.m_pIpLineEdit->ui->lineEdit->text(), QStringLiteral("10.0"));
    QCOMPARE(panel.ui->ipLabel->text(), QStringLiteral("10.0"));
}

void CSelectMachineBoxTest::ipButtonOpensThePopUpInTheMiddle()
{
    Panel panel;
    panel.move(60, 70);
    panel.show();
    QTest::mouseClick(panel.ui->ipButton, Qt::LeftButton);
    const QPointer<CSelectMachineIPLineEdit> popUp = panel.m_pIpLineEdit;
    QVERIFY(popUp->isVisible());
    QCOMPARE(popUp->parent(), &panel);
    QCOMPARE(popUp->pos(), panel.mapToGlobal(QPoint((550 - 340) / 2, (376 - 90) / 2)));
    popUp->close();
    panel.ui->ipButton->click();
    QCOMPARE(panel.m_pIpLineEdit, popUp.data());
    QVERIFY(popUp->isVisible());
}

void CSelectMachineBoxTest::typingShowsInThePanel()
{
    Panel panel;
    panel.show();
    panel.ui->ipButton->click();
    QCursor::setPos(panel.m_pIpLineEdit->geometry().center());
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("1"));
    QCOMPARE(panel.ui->ipLabel->text(), QStringLiteral("1"));
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("清除"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("指定IP连接"));
    QVERIFY(panel.ui->m_btnConnect->isEnabled());
    QVERIFY(panel.ui->m_btnRefresh->isEnabled());
    QTest::keyClick(panel.m_pIpLineEdit->ui->lineEdit, Qt::Key_Backspace);
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接"));
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("192.168.1.1"));
    QTest::keyClick(panel.m_pIpLineEdit->ui->lineEdit, Qt::Key_Return);
    QVERIFY(!panel.m_pIpLineEdit->isVisible());
    QCOMPARE(panel.ui->ipLabel->text(), QStringLiteral("192.168.1.1"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("指定IP连接"));
}

void CSelectMachineBoxTest::partialAddressIsTakenBackOnClose()
{
    Panel panel;
    panel.show();
    panel.ui->ipButton->click();
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("192.168"));
    panel.m_pIpLineEdit->close();
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接"));
}

void CSelectMachineBoxTest::clearFaceTakesTheAddressBack()
{
    Panel panel;
    panel.show();
    panel.ui->ipButton->click();
    QCursor::setPos(panel.m_pIpLineEdit->geometry().center());
    QTest::keyClicks(panel.m_pIpLineEdit->ui->lineEdit, QStringLiteral("192.168.1.1"));
    QSignalSpy told(panel.m_pIpLineEdit, &CSelectMachineIPLineEdit::SignalInputIP);
    panel.ui->ipButton->click();
    QVERIFY(panel.ui->ipLabel->text().isEmpty());
    QCOMPARE(panel.ui->ipButton->text(), QStringLiteral("指定IP"));
    QCOMPARE(panel.ui->m_btnConnect->text(), QStringLiteral("连接"));
    QVERIFY(!panel.m_pIpLineEdit->isVisible());
    QVERIFY(panel.m_pIpLineEdit->ui->lineEdit->text().isEmpty());
    QCOMPARE(told.count(), 0);

    // Also without a pop-up: an address that came another way.
    Panel other;
    other.InputIp(QStringLiteral("10.0.0.1"));
    other.ui->ipButton->click();
    QVERIFY(other.ui->ipLabel->text().isEmpty());
    QVERIFY(other.m_pIpLineEdit == nullptr);
}

void CSelectMachineBoxTest::calibrationOpensTheConfigPage()
{
    Panel panel;
    panel.show();
    panel.SetIsCalibConnectMachine();
    QCOMPARE(panel.ui->stackedWidget->currentWidget(), panel.ui->pageConfig);
    QVERIFY(!panel.ui->topWidget->isHidden());
    QVERIFY(!panel.ui->ipDetail->isHidden());
    QVERIFY(!panel.ui->topWidget->isVisible());
    QVERIFY(panel.ui->labelFailed->isHidden());
    QVERIFY(panel.ui->btnSwitchConnect->isHidden());
    QVERIFY(panel.ui->labelIcon->isHidden());
    QCOMPARE(panel.ui->btnConfig->text(), QStringLiteral("自动配置"));
    QVERIFY(panel.ui->btnConfig->isEnabled());
    QVERIFY(panel.ui->btnCancel->isEnabled());
}

void CSelectMachineBoxTest::switchLeadsToTheListForGood()
{
    Panel panel;
    panel.show();
    panel.SetIsCalibConnectMachine();
    panel.ui->btnSwitchConnect->show();
    QTest::mouseClick(panel.ui->btnSwitchConnect, Qt::LeftButton);
    QCOMPARE(panel.ui->stackedWidget->currentWidget(), panel.ui->pageConnect);
    QVERIFY(panel.ui->topWidget->isVisible());
    QVERIFY(panel.ui->ipDetail->isVisible());
}

void CSelectMachineBoxTest::cancelAndEscapeClose_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("cancel") << "btnCancel";
    QTest::newRow("close button") << "m_btnClose";
    QTest::newRow("escape") << "";
}

void CSelectMachineBoxTest::cancelAndEscapeClose()
{
    QFETCH(QString, way);
    const QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    if (way.isEmpty()) {
        QTest::keyClick(panel, Qt::Key_Escape);
    } else {
        panel->findChild<QPushButton*>(way)->click();
    }
    QVERIFY(panel);
    QVERIFY(!panel->isVisible());
    QTRY_VERIFY(!panel);
}

void CSelectMachineBoxTest::escapeClosesWhileConnecting()
{
    Panel panel;
    panel.show();
    panel.InputIp(QStringLiteral("10.0.0.1"));
    panel.ui->m_btnConnect->click();
    QVERIFY(panel.CloseButton()->isHidden());
    QTest::keyClick(&panel, Qt::Key_Escape);
    QVERIFY(!panel.isVisible());
}

void CSelectMachineBoxTest::returnDoesNothing()
{
    Panel panel;
    panel.show();
    panel.InputIp(QStringLiteral("10.0.0.1"));
    QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
    QTest::keyClick(&panel, Qt::Key_Return);
    QTest::keyClick(&panel, Qt::Key_Enter);
    QVERIFY(panel.isVisible());
    QCOMPARE(spy.count(), 0);
}

void CSelectMachineBoxTest::networkButtonOpensTheSettings()
{
    m_listOpened.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("ms-settings"), this, "openSettings");
    Panel panel;
    panel.ui->pushButton->click();
    panel.ui->pushButton_2->click();
    QDesktopServices::unsetUrlHandler(QStringLiteral("ms-settings"));
    QCOMPARE(m_listOpened, QList<QUrl>{QUrl(QStringLiteral("ms-settings:network-ethernet"))});
}

void CSelectMachineBoxTest::eachSlotRunsOncePerClick()
{
    struct CloseCounter : QObject
    {
        int closes = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            closes += event->type() == QEvent::Close ? 1 : 0;
            return false;
        }
    } counter;
    Panel panel;
    panel.installEventFilter(&counter);
    panel.show();
    QTest::mouseClick(panel.CloseButton(), Qt::LeftButton);
    QCOMPARE(counter.closes, 1);
}

void CSelectMachineBoxTest::deletedInTheMachineSelectedSlot_data()
{
    QTest::addColumn<bool>("typed");
    QTest::newRow("typed address") << true;
    QTest::newRow("selected row") << false;
}

void CSelectMachineBoxTest::deletedInTheMachineSelectedSlot()
{
    QFETCH(bool, typed);
    QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    panel->SetMachineInfo(Machine(QStringLiteral("SN1"), QStringLiteral("10.0.0.5"), Eth), false);
    if (typed) {
        panel->ui->ipButton->click();
        QTest::keyClicks(panel->m_pIpLineEdit->ui->lineEdit, QStringLiteral("10.0.0.1"));
    } else {
        panel->ui->tableView->selectRow(0);
    }
    QVERIFY(QTest::qWaitForWindowActive(panel));
    connect(panel, &CSelectMachineBox::SignalMachineSelected, this, [&] { delete panel; });
    QTest::mouseClick(panel->ui->m_btnConnect, Qt::LeftButton);
    QVERIFY(!panel);
}

void CSelectMachineBoxTest::deletedInTheRefreshSlot()
{
    QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    connect(panel, &CSelectMachineBox::SignalSelectRefresh, this, [&] { delete panel; });
    QTest::mouseClick(panel->ui->m_btnRefresh, Qt::LeftButton);
    QVERIFY(!panel);
}

void CSelectMachineBoxTest::deletedWhileThePopUpHasTheFocus()
{
    QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
    panel->show();
    panel->ui->ipButton->click();
    QVERIFY(QTest::qWaitForWindowActive(panel->m_pIpLineEdit));
    panel->m_pIpLineEdit->ui->lineEdit->setFocus();
    QTest::keyClicks(panel->m_pIpLineEdit->ui->lineEdit, QStringLiteral("1.2"));
    delete panel;
    QVERIFY(!panel);
}

void CSelectMachineBoxTest::manyMachinesCostWhatFewDo()
{
    const auto perMachine = [](int machines) {
        Panel panel;
        panel.show();
        const ProcessorTime time;
        for (int machine = 0; machine < machines; ++machine) {
            panel.SetMachineInfo(Machine(QStringLiteral("SN%1").arg(machine),
                                         QStringLiteral("10.0.%1.%2").arg(machine / 250).arg(machine % 250), Eth),
                                 false);
        }
        QCoreApplication::processEvents();
        const double cost = time.Microseconds() / machines;
        return panel.m_pModel->rowCount() == machines ? cost : -1.0;
    };
    const double few = LeastOfFive([&perMachine] { return perMachine(100); });
    const double many = perMachine(1000);
    qInfo("%.1f us per machine at 100, %.1f at 1000: %.2f", few, many, many / few);
    QVERIFY(few > 0 && many > 0);
    // Growth with the number of machines would be a factor of ten.
    QVERIFY(many < kGrowthAllowed * few);
}

CUSTOMCONTROLS_TEST_MAIN(CSelectMachineBoxTest)
#include "CSelectMachineBoxTest.moc"

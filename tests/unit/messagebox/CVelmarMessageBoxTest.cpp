#include <CustomControls/messagebox/CMsgBoxBackground.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include "ui_CVelmarMessageBox.h"

#include <CorvaneBase/CorvaneConstants.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>
#include <tests/unit/messagebox/RunningBox.h>

#include <QAbstractEventDispatcher>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMovie>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <functional>
#include <memory>

namespace {

using Texts = QMap<EnumMsgButtonFunction, QString>;

const QString kPrimarySheet = QStringLiteral(
    "QPushButton{border:1px solid transparent;background:#188553;color:#f5f5f5;border-radius:4px;}QPushButton::focus{"
    "border: 3px solid #58ff98;outline-offset:0px;}QPushButton::hover{background:#2ab475;color:#FFFFFF;}QPushButton::"
    "pressed{background:#188553;color:#FFFFFF;}");
const QString kOtherSheet = QStringLiteral(
    "QPushButton{border:1px solid #c4c4c4;background:#f6f6f6;color:#333333;border-radius:4px;text-align:center;}"
    "QPushButton::focus{border: 3px solid #58ff98;outline-offset:0px;}QPushButton::hover{background:#ffffff;}"
    "QPushButton::pressed{background:#aeaeae;}");

struct ButtonRow
{
    int iBit;
    const char* szText;
};
const ButtonRow kButtons[] = {
    {1, "确定"},        {2, "取消"},      {4, "是"},         {8, "否"},         {16, "删除安装包"},
    {32, "稍后提示"},   {64, "立刻升级"}, {128, "稍后重启"}, {256, "立即重启"}, {512, "取消"},
    {1024, "上传参数"}, {2048, "忽略"},   {4096, "重试"},
};

std::unique_ptr<CVelmarMessageBox> MakeBox(int mask, const QString& content = QStringLiteral("text"),
                                           int icon = MsgIconPop5, const QString& title = QStringLiteral("title"),
                                           const Texts& texts = {}, bool forceBrowser = false)
{
    return std::make_unique<CVelmarMessageBox>(nullptr, mask, EnumMsgIcon(icon), title, content, false, forceBrowser,
                                               texts);
}

void SendMouse(QWidget* widget, QEvent::Type type, QPoint local, QPoint global, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, local, global, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void SetChecking(bool checking)
{
    CorvaneSignalHelper::instance()->SetInCheckingEnvironment(checking);
}

void SetDiskSetting(bool noMore)
{
    CorvaneTextHelper::instance()->SetLocalSettingCache(
        SettingTypeNotice, QLatin1String(g_strSettingNoCheckDiskAvailableSpace), QVariant(noMore), false);
}

bool DiskSetting()
{
    return CorvaneTextHelper::instance()
        ->GetLocalSettingCache(SettingTypeNotice, QLatin1String(g_strSettingNoCheckDiskAvailableSpace), QVariant())
        .toBool();
}

/** Calls one entry point with a parent, a mask, a title and a content. */
using Entry = std::function<int(QWidget*, int, const QString&, const QString&)>;

struct NamedEntry
{
    const char* szName;
    Entry call;
};

const QList<NamedEntry>& MaskedEntries()
{
    using Box = CVelmarMessageBox;
    static const QList<NamedEntry> entries{
        {"ShowWindow", [](QWidget* p, int m, const QString& t,
                          const QString& c) { return Box::ShowWindow(p, m, MsgIconPop2, t, c, {}); }},
        {"ShowWindowExt", [](QWidget* p, int m, const QString& t,
                             const QString& c) { return Box::ShowWindowExt(p, m, MsgIconPop2, t, c); }},
        {"ShowWindowAutoClose", [](QWidget* p, int m, const QString& t,
                                   const QString& c) { return Box::ShowWindowAutoClose(p, m, MsgIconPop2, t, c); }},
        {"ShowWindowWithoutClose",
         [](QWidget* p, int m, const QString& t, const QString& c) {
             return Box::ShowWindowWithoutClose(p, m, MsgIconPop2, t, c);
         }},
        {"ShowWindowWithCheckBox",
         [](QWidget* p, int m, const QString& t, const QString& c) {
             return Box::ShowWindowWithCheckBox(p, m, MsgIconPop2, t, c, QString(), false, {}).first;
         }},
        {"ShowWindowScreenCenter",
         [](QWidget* p, int m, const QString& t, const QString& c) {
             return Box::ShowWindowScreenCenter(p, m, MsgIconPop2, t, c);
         }},
    };
    return entries;
}

void AddEntryRows()
{
    QTest::addColumn<int>("entry");
    for (int i = 0; i < MaskedEntries().size(); ++i) {
        QTest::newRow(MaskedEntries().at(i).szName) << i;
    }
}

/** Sees the URLs that the desktop is asked to open. */
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> m_listUrl;

public Q_SLOTS:
    void Open(const QUrl& url) { m_listUrl.append(url); }
};

class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject* obj, QEvent* event) override
    {
        m_iCount += event->type() == m_type;
        return QObject::eventFilter(obj, event);
    }
    int m_iCount = 0;

private:
    QEvent::Type m_type;
};

} // namespace

class CVelmarMessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void windowIsFramelessDialogOfFixedWidth();
    void formHasItsSizesMarginsAndSpacings();
    void formHasItsStyleSheets();
    void fontsAreTheHouseFonts();
    void constructorLeavesBoxVisibleWithoutCheckBox();
    void constructorHandsPositionToHost();
    void iconValuePicksImage_data();
    void iconValuePicksImage();
    void eachBitMakesItsButton_data();
    void eachBitMakesItsButton();
    void rowFollowsBitOrderAndFirstButtonIsPrimary();
    void allThirteenFunctionsMakeTwelveButtons();
    void closeButtonRule_data();
    void closeButtonRule();
    void closeButtonLooksAndLiesAsPrescribed();
    void missingCloseImagesAreNotReported();
    void maskZeroHasNoBottomRow();
    void maskOfUnknownBitsHasAnEmptyBottomRow();
    void emptyTitleHidesTitleLine();
    void titleIsShownAndNamesTheWindow();
    void callerTextsReplaceDefaultOnes();
    void callerTextsOutsideTheMaskChangeNothing();
    void contentSizePicksLabelOrBrowser_data();
    void contentSizePicksLabelOrBrowser();
    void labelContentIsFitted();
    void browserContentGrowsWithItsText();
    void browserContentShowsRichText();
    void emptyContentMakesNeitherLabelNorBrowser();
    void setContentKeepsHeight();
    void setContentReachesBrowser();
    void setBtnEnableActsOnSingleButtonOnly();
    void hideCloseButtonDoesNothing();
    void loadingDotsRunAndWrap();
    void loadingDotsFollowNewContent();
    void loadingBrowserHasNoDots();
    void loadingIconCopiesOnlyNewFrames();

    void pressedButtonReturnsItsBit_data();
    void pressedButtonReturnsItsBit();
    void closeButtonReturnsTwoWithoutSignal();
    void escapeClosesSomeBoxesOnly_data();
    void escapeClosesSomeBoxesOnly();
    void escapeActsOnReleaseNotOnPress();
    void returnReleaseAnswersSingleButtonOnly_data();
    void returnReleaseAnswersSingleButtonOnly();
    void returnAnswersDisabledSingleButton();
    void returnPressClicksFocusedButton_data();
    void returnPressClicksFocusedButton();
    void returnWithoutFocusedButtonAnswersNothing();
    void returnAnswersSingleButtonOnPressAndOnRelease();
    void acceptWithoutButtonReportsTwo();
    void previewStaysAndSaysThatItLeaves_data();
    void previewStaysAndSaysThatItLeaves();
    void closeRequestIsRecorded();
    void filterConsumesNothing();
    void msgExecShowsRunsAndHides();
    void msgExitEndsRunWithoutSignal();
    void msgExecOfRunningBoxLeavesItAlone();
    void boxCanRunAgain();
    void signalPrecedesEndOfRun();
    void dragStartsInTopBandOnly_data();
    void dragStartsInTopBandOnly();
    void dragEndsOnLeftReleaseOnly();
    void dragWithoutLeftButtonDoesNotMove();

    void checkingModeLogsOneLine_data();
    void checkingModeLogsOneLine();
    void checkingModeLogsInnerEntries();
    void contentFillsPlaceMarkerInTitle();
    void noLogOutsideCheckingMode();
    void entryReturnsPressedBit_data();
    void entryReturnsPressedBit();
    void entryReturnsTwoOnEscape_data();
    void entryReturnsTwoOnEscape();
    void entryDeletesItsBox_data();
    void entryDeletesItsBox();
    void entryPassesItsArguments();
    void autoCloseReturnsZeroAfterTwoSeconds();
    void autoCloseTimerOfAnsweredBoxDoesNoHarm();
    void withoutCloseKeepsCloseButton();
    void checkBoxStateIsReturned_data();
    void checkBoxStateIsReturned();
    void checkBoxTextIsReplacedOnlyByText();
    void hiddenParentPlacesCheckBoxBoxByItsScreen();
    void visibleParentLeavesPositionAlone();
    void screenCenterLiesOverMainWindow();
    void screenCenterWithoutMainWindowKeepsPosition();
    void screenCenterAloneIsRaised();
    void openDirOffersFileOrFolder_data();
    void openDirOffersFileOrFolder();
    void openDirFallsBackToParentFolder();
    void openDirStartsExplorerAfterItReturned();
    void openDirAcknowledgedStartsNothing();
    void diskSpaceBoxStoresTickWhateverTheCode_data();
    void diskSpaceBoxStoresTickWhateverTheCode();
    void diskSpaceBoxAsksAgainWithoutTick();
    void diskSpaceBoxTakesUnusableSettings_data();
    void diskSpaceBoxTakesUnusableSettings();

    void boxesEndInReverseOrder();
    void boxDeletedInItsRunEndsIt_data();
    void boxDeletedInItsRunEndsIt();
    void parentDeletedInItsRunEndsIt_data();
    void parentDeletedInItsRunEndsIt();
    void boxDeletedByItsSignalReturnsPressedBit_data();
    void boxDeletedByItsSignalReturnsPressedBit();
    void boxClosedByHostEndsItsRun();
    void msgExecSurvivesDeletion();
    void boxDeletedAfterMsgExitKeepsItsCode();
    void olderBoxDeletedUnderNewerOne();

private:
    QTemporaryDir m_folder;
};

void CVelmarMessageBoxTest::init()
{
    SetChecking(false);
    CVelmarMessageBox::SetMainWindow(nullptr);
    CorvaneTextHelper::instance()->SetSettingsFile(m_folder.filePath(QStringLiteral("settings.json")));
    SetDiskSetting(false);
    QVERIFY(!RunningBox());
}

void CVelmarMessageBoxTest::windowIsFramelessDialogOfFixedWidth()
{
    const auto box = MakeBox(1);
    QCOMPARE(box->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
    QCOMPARE(box->windowModality(), Qt::ApplicationModal);
    QVERIFY(box->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(box->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(box->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(box->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(box->objectName(), QStringLiteral("CVelmarMessageBox"));
    QCOMPARE(box->width(), 580);
    QCOMPARE(box->minimumWidth(), 580);
    QCOMPARE(box->maximumSize(), QSize(580, 16777215));
}

void CVelmarMessageBoxTest::formHasItsSizesMarginsAndSpacings()
{
    const auto box = MakeBox(1);
    const auto* ui = box->ui;
    const auto checkLayout = [](const QBoxLayout* layout, int spacing, const QMargins& margins) {
        QVERIFY2(layout->spacing() == spacing, qPrintable(layout->objectName()));
        QVERIFY2(layout->contentsMargins() == margins, qPrintable(layout->objectName()));
    };
    checkLayout(ui->verticalLayout_4, 0, {0, 0, 0, 0});
    checkLayout(ui->verticalLayout, 30, {4, 38, 4, 4});
    checkLayout(ui->horizontalLayout_3, 24, {36, 2, 28, 0});
    checkLayout(ui->verticalLayout_2, 10, {0, 0, 0, 0});
    checkLayout(ui->horizontalLayout, 0, {0, 0, 0, 0});
    checkLayout(ui->layoutContent, 0, {0, 0, 0, 0});
    checkLayout(ui->horizontalLayout_2, 8, {36, 0, 0, 20});
    checkLayout(ui->m_horizontalLayoutFuncBtn, 8, {0, 0, 28, 0});
    checkLayout(ui->m_layoutBtn, 16, {0, 0, 0, 0});

    QCOMPARE(ui->m_widgetMsg->minimumSize(), QSize(580, 0));
    QCOMPARE(ui->m_widgetMsg->maximumSize(), QSize(580, 16777215));
    QCOMPARE(ui->m_labelIcon->size(), QSize(56, 56));
    QCOMPARE(ui->m_labelIcon->minimumSize(), ui->m_labelIcon->maximumSize());
    QVERIFY(ui->m_labelIcon->text().isEmpty());
    QCOMPARE(ui->horizontalLayout_3->itemAt(0)->alignment(), Qt::AlignTop);
    QCOMPARE(ui->widget->minimumHeight(), 24);
    QCOMPARE(ui->widget->maximumHeight(), 24);
    QCOMPARE(ui->widget->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(ui->widget->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(ui->m_labelTitle->height(), 24);
    QCOMPARE(ui->horizontalLayout->itemAt(1)->spacerItem()->sizeHint(), QSize(866, 20));
    QCOMPARE(ui->horizontalLayout->itemAt(1)->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(ui->horizontalLayout->itemAt(1)->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ui->m_widgetBottom->height(), 52);
    QCOMPARE(ui->m_widgetFuncBtn->height(), 34);
    QCOMPARE(ui->checkBox->maximumWidth(), 240);
    QCOMPARE(ui->checkBox->text(), QStringLiteral("不再提醒"));
    // The icon stands beside the title, and everything has its place in the panel.
    QCOMPARE(ui->m_labelIcon->mapTo(box.get(), QPoint()), QPoint(40, 40));
    QCOMPARE(ui->m_labelTitle->mapTo(box.get(), QPoint()), QPoint(120, 40));
    const QPushButton* button = Row(box.get()).constFirst();
    QCOMPARE(button->mapTo(box.get(), QPoint(button->width(), button->height())),
             QPoint(580 - 4 - 28, box->height() - 4 - 20 + 2));
}

void CVelmarMessageBoxTest::formHasItsStyleSheets()
{
    const auto box = MakeBox(1);
    const auto* ui = box->ui;
    QVERIFY(qobject_cast<CMsgBoxBackground*>(ui->m_widgetMsg));
    QCOMPARE(ui->m_widgetMsg->styleSheet(),
             QStringLiteral("QWidget#m_widgetMsg{\nbackground:rgba(246, 246, 246, 1);\nborder:1px solid rgba(187, 187, "
                            "187, 1);\nborder-radius:4px;}"));
    QCOMPARE(ui->m_widgetShow->styleSheet(), QStringLiteral("background:transparent;"));
    QCOMPARE(ui->widget->styleSheet(),
             QStringLiteral("QWidget#widget{border:none;border-radius:0px;background:transparent;}"));
    QCOMPARE(ui->m_labelTitle->styleSheet(), QStringLiteral("color:rgba(51, 51, 51, 1);"));
    QCOMPARE(ui->widget_2->styleSheet(),
             QStringLiteral("QWidget#widget_2{border-radius:0px;background:transparent;border:none;}"));
    QCOMPARE(ui->m_widgetBottom->styleSheet(),
             QStringLiteral("QWidget#m_widgetBottom {border-top:0px solid #e6e6e6; background:transparent;}"));
    QCOMPARE(ui->checkBox->styleSheet(),
             QStringLiteral("  QCheckBox {\n      spacing: 4px;\n\t  color:rgba(51, 51, 51, 1);\n  }\n\n  "
                            "QCheckBox::indicator {\n      width: 20px;\n      height: 20px;\n  }\n"));
    for (const QWidget* plain :
         {ui->widget_3, ui->m_widgetFuncBtn, ui->m_widgetBtn, static_cast<QWidget*>(box.get())}) {
        QVERIFY2(plain->styleSheet().isEmpty(), qPrintable(plain->objectName()));
    }
    const QImage image = box->grab().toImage();
    QCOMPARE(image.pixelColor(290, 20), QColor(246, 246, 246));
    QCOMPARE(image.pixelColor(290, 0), QColor(187, 187, 187));
    QCOMPARE(image.pixelColor(0, box->height() / 2), QColor(187, 187, 187));
}

void CVelmarMessageBoxTest::fontsAreTheHouseFonts()
{
    const auto box = MakeBox(3);
    const auto sameFont = [](const QFont& font, const QFont& house) {
        return font.pixelSize() == house.pixelSize() && font.weight() == house.weight() &&
               font.family() == house.family();
    };
    QVERIFY(sameFont(box->ui->m_labelTitle->font(), FontCnBold_16));
    QVERIFY(sameFont(box->ui->checkBox->font(), FontCn_16));
    QVERIFY(sameFont(box->m_pLabelContent->font(), FontCn_16));
    for (const QPushButton* button : Row(box.get())) {
        QVERIFY(sameFont(button->font(), FontCnMedium_14));
    }
    const auto longBox = MakeBox(3, QStringLiteral("text"), 1, QString(), {}, true);
    QVERIFY(sameFont(longBox->m_pBrowserContent->font(), FontCn_16));
}

void CVelmarMessageBoxTest::constructorLeavesBoxVisibleWithoutCheckBox()
{
    const auto box = MakeBox(1);
    QVERIFY(box->isVisible());
    QVERIFY(box->ui->checkBox->isHidden());
    QVERIFY(!box->m_bCloseRequested);
    QVERIFY(!box->m_bDragging);
    QVERIFY(!box->m_bExtended);
    QVERIFY(box->m_mapReserved.isEmpty());
    QVERIFY(box->m_pEventLoop);
    QVERIFY(!box->m_pEventLoop->parent());
    QCOMPARE(box->m_mapBtnText.size(), 13);
}

void CVelmarMessageBoxTest::constructorHandsPositionToHost()
{
    QWidget host(nullptr, Qt::FramelessWindowHint); // the box is centred over the frame
    host.setGeometry(100, 60, 700, 500);
    host.show();
    const CVelmarMessageBox box(&host, 1, MsgIconPop1, QStringLiteral("t"), QStringLiteral("c"), false, false, {});
    QCOMPARE(box.geometry().center().x(), host.geometry().center().x());
    QVERIFY(qAbs(box.geometry().center().y() - host.geometry().center().y()) <= 1);
}

void CVelmarMessageBoxTest::iconValuePicksImage_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("sheet");
    const QString image = QStringLiteral("background:transparent;border:none;image:url(:/icon/img_pop_%1.png)");
    QTest::newRow("1 shows 5") << 1 << image.arg(5);
    QTest::newRow("2 shows 2") << 2 << image.arg(2);
    QTest::newRow("3 shows 3") << 3 << image.arg(3);
    QTest::newRow("4 shows 1") << 4 << image.arg(1);
    QTest::newRow("5 is animated") << 5 << QStringLiteral("background:transparent;border:none;");
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("6") << 6 << QString();
    QTest::newRow("negative") << -1 << QString();
    QTest::newRow("huge") << 1000000 << QString();
}

void CVelmarMessageBoxTest::iconValuePicksImage()
{
    QFETCH(const int, icon);
    QFETCH(const QString, sheet);
    const auto box = MakeBox(1, QStringLiteral("text"), icon);
    QCOMPARE(box->ui->m_labelIcon->styleSheet(), sheet);
    QCOMPARE(box->ui->m_labelIcon->size(), QSize(56, 56));
    QCOMPARE(box->ui->widget_3->mapTo(box.get(), QPoint()).x(), 120);
    QCOMPARE(box->findChildren<QMovie*>().size(), icon == 5 ? 1 : 0);
}

void CVelmarMessageBoxTest::eachBitMakesItsButton_data()
{
    QTest::addColumn<int>("bit");
    QTest::addColumn<QString>("text");
    for (const ButtonRow& row : kButtons) {
        QTest::addRow("%d", row.iBit) << row.iBit << QString::fromUtf8(row.szText);
    }
}

void CVelmarMessageBoxTest::eachBitMakesItsButton()
{
    QFETCH(const int, bit);
    QFETCH(const QString, text);
    const auto box = MakeBox(bit);
    const QList<QPushButton*> row = Row(box.get());
    QCOMPARE(row.size(), 1);
    QCOMPARE(row.constFirst()->text(), text);
    QCOMPARE(row.constFirst()->property("Function").toInt(), bit);
    QCOMPARE(row.constFirst()->size(), QSize(116, 34));
    QCOMPARE(row.constFirst()->minimumSize(), row.constFirst()->maximumSize());
    QCOMPARE(row.constFirst()->focusPolicy(), QPushButton().focusPolicy());
    QCOMPARE(box->m_iButtonCount, 1);
    QCOMPARE(box->m_pLastButton, row.constFirst());
    QCOMPARE(box->m_iButtonMask, bit);
    QVERIFY(!box->m_pBtnClose);
}

void CVelmarMessageBoxTest::rowFollowsBitOrderAndFirstButtonIsPrimary()
{
    const auto box = MakeBox(MsgBtnNo | MsgBtnYes | MsgBtnRetry, QStringLiteral("text"), 1, QStringLiteral("t"),
                             {{MsgBtnRetry, QStringLiteral("first?")}});
    const QList<QPushButton*> row = Row(box.get());
    QCOMPARE(row.size(), 3);
    QCOMPARE(row.at(0)->text(), QStringLiteral("是"));
    QCOMPARE(row.at(1)->text(), QStringLiteral("否"));
    QCOMPARE(row.at(2)->text(), QStringLiteral("first?"));
    QCOMPARE(row.at(0)->styleSheet(), kPrimarySheet);
    QCOMPARE(row.at(1)->styleSheet(), kOtherSheet);
    QCOMPARE(row.at(2)->styleSheet(), kOtherSheet);
    QCOMPARE(row.at(1)->x() - row.at(0)->x(), 116 + 16);
    QCOMPARE(box->m_pLastButton, row.at(2));
    QVERIFY(box->ui->m_layoutBtn->itemAt(0)->spacerItem());
    const QImage image = row.at(0)->grab().toImage();
    QCOMPARE(image.pixelColor(8, 17), QColor(0x18, 0x85, 0x53));
}

void CVelmarMessageBoxTest::allThirteenFunctionsMakeTwelveButtons()
{
    const auto box = MakeBox(0x1fff);
    QCOMPARE(Row(box.get()).size(), 12);
    QCOMPARE(box->m_iButtonCount, 12);
    QVERIFY(box->m_pBtnClose);
    QCOMPARE(box->m_iButtonMask, 0x1fff & ~2);
    QCOMPARE(box->width(), 580);
}

void CVelmarMessageBoxTest::closeButtonRule_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<bool>("closeButton");
    QTest::addColumn<QList<int>>("row");
    QTest::newRow("one function") << 2 << false << QList<int>{2};
    QTest::newRow("OK and Cancel") << 3 << false << QList<int>{1, 2};
    QTest::newRow("OK, Cancel and Yes") << 7 << true << QList<int>{1, 4};
    QTest::newRow("Cancel, Yes and No") << 14 << true << QList<int>{4, 8};
    QTest::newRow("three without Cancel") << 13 << false << QList<int>{1, 4, 8};
    QTest::newRow("plain Cancel is no Cancel") << (1 | 4 | 512) << false << QList<int>{1, 4, 512};
    QTest::newRow("both Cancels") << (1 | 2 | 512) << true << QList<int>{1, 512};
    QTest::newRow("a bit without button counts") << (1 | 2 | 0x2000) << true << QList<int>{1};
    QTest::newRow("sign bit") << int(0x80000000u | 3u) << true << QList<int>{1};
}

void CVelmarMessageBoxTest::closeButtonRule()
{
    QFETCH(const int, mask);
    QFETCH(const bool, closeButton);
    QFETCH(const QList<int>, row);
    const auto box = MakeBox(mask);
    QCOMPARE(box->m_pBtnClose != nullptr, closeButton);
    QCOMPARE(box->m_iButtonMask, closeButton ? mask & ~2 : mask);
    QList<int> bits;
    for (const QPushButton* button : Row(box.get())) {
        bits.append(button->property("Function").toInt());
    }
    QCOMPARE(bits, row);
    QCOMPARE(box->m_iButtonCount, int(row.size()));
}

void CVelmarMessageBoxTest::closeButtonLooksAndLiesAsPrescribed()
{
    const auto box = MakeBox(7);
    const QPushButton* button = box->m_pBtnClose;
    QVERIFY(button);
    QCOMPARE(button->parentWidget(), box.get());
    QCOMPARE(button->geometry(), QRect(549, 7, 24, 24));
    QCOMPARE(button->minimumSize(), button->maximumSize());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(button->isVisible());
    QCOMPARE(button->styleSheet(),
             QStringLiteral("QPushButton{border:none;background:transparent;image:url(:/icon/icon_title_close.png);}"
                            "QPushButton::hover{image:url(:/icon/icon_title_close_w.png);}"));
    QCOMPARE(box->childAt(560, 20), button);
}

void CVelmarMessageBoxTest::missingCloseImagesAreNotReported()
{
    static QStringList messages;
    messages.clear();
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
            if (!message.startsWith(QLatin1String("EnableNonClientDpiScaling"))) { // Wine lacks it
                messages.append(message);
            }
        });
    {
        const auto box = MakeBox(7);
        box->grab();
        QTest::mouseMove(box->m_pBtnClose);
        QCoreApplication::processEvents();
        box->grab();
    }
    qInstallMessageHandler(before);
    QCOMPARE(messages, QStringList());
}

void CVelmarMessageBoxTest::maskZeroHasNoBottomRow()
{
    const auto box = MakeBox(0);
    QVERIFY(box->ui->m_widgetBottom->isHidden());
    QCOMPARE(box->ui->verticalLayout->contentsMargins(), QMargins(4, 30, 4, 30));
    QVERIFY(Row(box.get()).isEmpty());
    QCOMPARE(box->m_iButtonCount, 0);
    QVERIFY(!box->m_pLastButton);
    box->SetBtnEnable(false);
    SendKeyRelease(box.get(), Qt::Key_Return);
}

void CVelmarMessageBoxTest::maskOfUnknownBitsHasAnEmptyBottomRow()
{
    const auto box = MakeBox(0x2000);
    QVERIFY(box->ui->m_widgetBottom->isVisible());
    QCOMPARE(box->ui->verticalLayout->contentsMargins(), QMargins(4, 38, 4, 4));
    QVERIFY(Row(box.get()).isEmpty());
    QCOMPARE(box->m_iButtonMask, 0x2000);
}

void CVelmarMessageBoxTest::emptyTitleHidesTitleLine()
{
    const auto box = MakeBox(1, QStringLiteral("text"), 1, QString());
    QVERIFY(box->ui->m_labelTitle->isHidden());
    QCOMPARE(box->ui->widget->styleSheet(),
             QStringLiteral("QWidget#widget{border-bottom:0px solid #D5D5D5;border-top:0px solid #D5D5D5;}"));
    QVERIFY(box->windowTitle().isEmpty());
}

void CVelmarMessageBoxTest::titleIsShownAndNamesTheWindow()
{
    const auto box = MakeBox(1, QStringLiteral("text"), 1, QStringLiteral("磁盘"));
    QCOMPARE(box->ui->m_labelTitle->text(), QStringLiteral("磁盘"));
    QVERIFY(box->ui->m_labelTitle->isVisible());
    QCOMPARE(box->windowTitle(), QStringLiteral("磁盘"));
}

void CVelmarMessageBoxTest::callerTextsReplaceDefaultOnes()
{
    const auto box = MakeBox(5, QStringLiteral("text"), 1, QStringLiteral("t"),
                             {{MsgBtnOk, QStringLiteral("go")}, {MsgBtnYes, QString()}});
    QCOMPARE(Row(box.get()).at(0)->text(), QStringLiteral("go"));
    QCOMPARE(Row(box.get()).at(1)->text(), QString());
}

void CVelmarMessageBoxTest::callerTextsOutsideTheMaskChangeNothing()
{
    const Texts texts{{MsgBtnCancel, QStringLiteral("no effect")},
                      {MsgBtnRetry, QStringLiteral("no effect")},
                      {EnumMsgButtonFunction(0), QStringLiteral("no effect")},
                      {EnumMsgButtonFunction(-1), QStringLiteral("no effect")},
                      {EnumMsgButtonFunction(5), QStringLiteral("no effect")},
                      {EnumMsgButtonFunction(0x2000), QStringLiteral("no effect")}};
    const auto box = MakeBox(7 | 0x2000, QStringLiteral("text"), 1, QStringLiteral("t"), texts);
    QCOMPARE(box->m_mapBtnText.size(), 17);
    const QList<QPushButton*> row = Row(box.get());
    QCOMPARE(row.size(), 2);
    QCOMPARE(row.at(0)->text(), QStringLiteral("确定"));
    QCOMPARE(row.at(1)->text(), QStringLiteral("是"));
    QCOMPARE(box->m_pBtnClose->text(), QString());
}

void CVelmarMessageBoxTest::contentSizePicksLabelOrBrowser_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("forceBrowser");
    QTest::addColumn<bool>("browser");
    QTest::newRow("1") << 1 << false << false;
    QTest::newRow("249") << 249 << false << false;
    QTest::newRow("250") << 250 << false << true;
    QTest::newRow("1 forced") << 1 << true << true;
    QTest::newRow("10000") << 10000 << false << true;
}

void CVelmarMessageBoxTest::contentSizePicksLabelOrBrowser()
{
    QFETCH(const int, size);
    QFETCH(const bool, forceBrowser);
    QFETCH(const bool, browser);
    const QString text(size, QChar(u'字'));
    const auto box = MakeBox(1, text, 1, QStringLiteral("t"), {}, forceBrowser);
    QCOMPARE(box->m_strContent, text);
    QCOMPARE(box->m_pBrowserContent != nullptr, browser);
    QCOMPARE(box->m_pLabelContent != nullptr, !browser);
    QCOMPARE(box->ui->layoutContent->count(), 1);
    QCOMPARE(box->ui->layoutContent->stretch(0), browser ? 0 : 1);
}

void CVelmarMessageBoxTest::labelContentIsFitted()
{
    const auto box = MakeBox(1, QString(120, QChar(u'字')));
    const QLabel* label = box->m_pLabelContent;
    QCOMPARE(label->styleSheet(),
             QStringLiteral("color:rgba(51, 51, 51, 1);background:transparent;border:0px solid red;"));
    QCOMPARE(label->minimumWidth(), 428);
    QCOMPARE(label->maximumWidth(), 428);
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(label->wordWrap());
    QCOMPARE(label->indent(), 0);
    QCOMPARE(label->contentsMargins(), QMargins());
    QCOMPARE(label->height(), label->heightForWidth(428));
    QCOMPARE(label->minimumHeight(), label->maximumHeight());
    QCOMPARE(label->minimumHeight(), label->height());
    // Five lines of 26 characters of 16 pixels: the box has grown with them.
    QVERIFY(label->height() >= 5 * 16);
    QCOMPARE(box->height(), 38 + 2 + 24 + 10 + label->height() + 30 + 52 + 4);
}

void CVelmarMessageBoxTest::browserContentGrowsWithItsText()
{
    const auto box = MakeBox(1, QString(2000, QChar(u'字')));
    QTextBrowser* browser = box->m_pBrowserContent;
    QCOMPARE(browser->styleSheet(), QStringLiteral("background:transparent;color:#333333;border:0px solid red;"));
    QCOMPARE(browser->focusPolicy(), Qt::NoFocus);
    QCOMPARE(browser->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(browser->alignment() & Qt::AlignLeft);
    QCOMPARE(browser->frameShape(), QFrame::NoFrame);
    QCOMPARE(browser->frameShadow(), QFrame::Plain);
    QCOMPARE(browser->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(browser->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(browser->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QCOMPARE(browser->textInteractionFlags(), Qt::NoTextInteraction);
    QCOMPARE(browser->document()->documentMargin(), 0.0);
    QCOMPARE(browser->minimumHeight(), browser->maximumHeight());

    // Once the box is laid out the height is that of the text at the content's width.
    const auto wholeTextFits = [&] {
        QTextDocument document;
        document.setDefaultFont(browser->font());
        document.setDocumentMargin(0);
        document.setPlainText(browser->toPlainText());
        document.setTextWidth(428);
        return browser->minimumHeight() == int(document.size().height());
    };
    QTRY_VERIFY(wholeTextFits());
    QCOMPARE(browser->width(), 428);
    QTRY_COMPARE(box->height(), 38 + 2 + 24 + 10 + browser->minimumHeight() + 30 + 52 + 4);
}

void CVelmarMessageBoxTest::browserContentShowsRichText()
{
    const auto box = MakeBox(1, QStringLiteral("<b>bold</b>"), 1, QStringLiteral("t"), {}, true);
    QCOMPARE(box->m_pBrowserContent->toPlainText(), QStringLiteral("bold"));
}

void CVelmarMessageBoxTest::emptyContentMakesNeitherLabelNorBrowser()
{
    const auto box = MakeBox(1, QString(), MsgIconLoading, QStringLiteral("t"), {}, true);
    QVERIFY(!box->m_pLabelContent);
    QVERIFY(!box->m_pBrowserContent);
    QCOMPARE(box->ui->layoutContent->count(), 0);
    box->SetContent(QStringLiteral("stored"));
    QCOMPARE(box->m_strContent, QStringLiteral("stored"));
    QCOMPARE(box->ui->layoutContent->count(), 0);
}

void CVelmarMessageBoxTest::setContentKeepsHeight()
{
    const auto box = MakeBox(1, QStringLiteral("short"));
    const int height = box->m_pLabelContent->height();
    const int boxHeight = box->height();
    box->SetContent(QString(200, QChar(u'字')));
    QCoreApplication::processEvents();
    QCOMPARE(box->m_pLabelContent->text(), QString(200, QChar(u'字')));
    QCOMPARE(box->m_pLabelContent->height(), height);
    QCOMPARE(box->height(), boxHeight);
}

void CVelmarMessageBoxTest::setContentReachesBrowser()
{
    const auto box = MakeBox(1, QStringLiteral("old"), 1, QStringLiteral("t"), {}, true);
    box->SetContent(QStringLiteral("<i>new</i>"));
    QCOMPARE(box->m_strContent, QStringLiteral("<i>new</i>"));
    QCOMPARE(box->m_pBrowserContent->toPlainText(), QStringLiteral("new"));
}

void CVelmarMessageBoxTest::setBtnEnableActsOnSingleButtonOnly()
{
    const auto one = MakeBox(4);
    one->SetBtnEnable(false);
    QVERIFY(!Row(one.get()).at(0)->isEnabled());
    one->SetBtnEnable(true);
    QVERIFY(Row(one.get()).at(0)->isEnabled());

    const auto two = MakeBox(12);
    two->SetBtnEnable(false);
    QVERIFY(Row(two.get()).at(0)->isEnabled());
    QVERIFY(Row(two.get()).at(1)->isEnabled());
}

void CVelmarMessageBoxTest::hideCloseButtonDoesNothing()
{
    const auto box = MakeBox(7);
    box->HideCloseButton();
    QVERIFY(box->m_pBtnClose->isVisible());
}

void CVelmarMessageBoxTest::loadingDotsRunAndWrap()
{
    const auto box = MakeBox(0, QStringLiteral("loading"), MsgIconLoading);
    QLabel* label = box->m_pLabelContent;
    QCOMPARE(label->text(), QStringLiteral("loading"));
    QCOMPARE(label->property("count"), QVariant(0));
    QTimer* timer = nullptr;
    for (QTimer* candidate : box->findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
        if (candidate->interval() == 500) {
            timer = candidate;
        }
    }
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    const QSize size = label->size();
    // Each tick is seen as it comes; eight of them show the wrap.
    QSignalSpy ticks(timer, &QTimer::timeout);
    for (int dots : {0, 1, 2, 3, 4, 5, 6, 0}) {
        QVERIFY(ticks.wait(5000));
        QCOMPARE(label->text(), QStringLiteral("loading") + QString(dots, QChar(u'.')));
        QCOMPARE(label->property("count").toInt(), (dots + 1) % 7);
    }
    QCOMPARE(label->size(), size);
}

void CVelmarMessageBoxTest::loadingDotsFollowNewContent()
{
    const auto box = MakeBox(0, QStringLiteral("loading"), MsgIconLoading);
    box->m_pLabelContent->setProperty("count", 3);
    box->SetContent(QStringLiteral("saving"));
    QCOMPARE(box->m_pLabelContent->text(), QStringLiteral("saving"));
    QTRY_COMPARE(box->m_pLabelContent->text(), QStringLiteral("saving..."));
}

void CVelmarMessageBoxTest::loadingBrowserHasNoDots()
{
    const auto box = MakeBox(0, QString(300, QChar(u'字')), MsgIconLoading);
    for (const QTimer* timer : box->findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
        QCOMPARE(timer->interval(), 1);
    }
    QCOMPARE(box->findChildren<QMovie*>().size(), 1);
}

void CVelmarMessageBoxTest::loadingIconCopiesOnlyNewFrames()
{
    const auto box = MakeBox(0, QStringLiteral("loading"), MsgIconLoading);
    const QMovie* movie = box->findChild<QMovie*>();
    QCOMPARE(movie->fileName(), QStringLiteral(":/icon/gif_pop_bac.gif"));
    QCOMPARE(movie->parent(), box.get());
    QTimer* timer = nullptr;
    for (QTimer* candidate : box->findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
        if (candidate->interval() == 1) {
            timer = candidate;
        }
    }
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(!timer->isSingleShot());
    QCOMPARE(movie->state(), QMovie::Running);
    const auto served = QAbstractEventDispatcher::instance()->registeredTimers(timer);
    QCOMPARE(served.size(), 1);
    QVERIFY2(served.first().interval >= 20, "a thousand wake-ups a second");

    // Let the first picture arrive, then compare paints with frames while many ticks go by.
    QTRY_VERIFY(!box->ui->m_labelIcon->pixmap(Qt::ReturnByValue).isNull());
    QCoreApplication::processEvents();
    QSignalSpy frames(movie, &QMovie::frameChanged);
    EventCounter paints(box->ui->m_labelIcon, QEvent::Paint);
    QSignalSpy ticks(timer, &QTimer::timeout);
    QTRY_VERIFY(frames.size() >= 3);
    QVERIFY2(paints.m_iCount <= frames.size() + 1, qPrintable(QString::number(paints.m_iCount)));
    QTRY_VERIFY(ticks.size() >= 3);
    QTRY_COMPARE(box->ui->m_labelIcon->pixmap(Qt::ReturnByValue).toImage(), movie->currentPixmap().toImage());
}

void CVelmarMessageBoxTest::pressedButtonReturnsItsBit_data()
{
    eachBitMakesItsButton_data();
}

void CVelmarMessageBoxTest::pressedButtonReturnsItsBit()
{
    QFETCH(const int, bit);
    const auto box = MakeBox(bit | (bit == 1 ? 4 : 1));
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    InNextBox([bit](CVelmarMessageBox* running) { QTest::mouseClick(ButtonOf(running, bit), Qt::LeftButton); });
    QCOMPARE(box->MsgExec(), bit);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), bit);
    QVERIFY(!box->m_bCloseRequested);
}

void CVelmarMessageBoxTest::closeButtonReturnsTwoWithoutSignal()
{
    const auto box = MakeBox(7);
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    InNextBox([](CVelmarMessageBox* running) { QTest::mouseClick(running->m_pBtnClose, Qt::LeftButton); });
    QCOMPARE(box->MsgExec(), 2);
    QVERIFY(spy.isEmpty());
    QVERIFY(box->m_bCloseRequested);
    QVERIFY(!box->isVisible());
}

void CVelmarMessageBoxTest::escapeClosesSomeBoxesOnly_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<bool>("closes");
    QTest::newRow("no button") << 0 << false;
    QTest::newRow("OK") << 1 << true;
    QTest::newRow("Cancel") << 2 << true;
    QTest::newRow("OK and Cancel") << 3 << true;
    QTest::newRow("OK, Cancel and Yes") << 7 << true;
    QTest::newRow("Yes") << 4 << false;
    QTest::newRow("Yes and No") << 12 << false;
    QTest::newRow("OK and Yes") << 5 << false;
    QTest::newRow("plain Cancel") << 512 << false;
    QTest::newRow("three without Cancel") << 13 << false;
}

void CVelmarMessageBoxTest::escapeClosesSomeBoxesOnly()
{
    QFETCH(const int, mask);
    QFETCH(const bool, closes);
    if (closes) {
        QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    }
    const auto box = MakeBox(mask);
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    InNextBox([closes](CVelmarMessageBox* running) {
        SendKeyRelease(running, Qt::Key_Escape);
        QCOMPARE(running->isVisible(), !closes);
        QCOMPARE(running->m_pEventLoop->isRunning(), !closes);
        if (!closes) {
            running->MsgExit(kOtherExit);
        }
    });
    QCOMPARE(box->MsgExec(), closes ? 2 : kOtherExit);
    QVERIFY(spy.isEmpty());
}

void CVelmarMessageBoxTest::escapeActsOnReleaseNotOnPress()
{
    const auto box = MakeBox(1);
    InNextBox([](CVelmarMessageBox* running) {
        QTest::keyPress(running, Qt::Key_Escape);
        QVERIFY(running->isVisible());
        QVERIFY(running->m_pEventLoop->isRunning());
        running->MsgExit(kOtherExit);
    });
    QCOMPARE(box->MsgExec(), kOtherExit);
}

void CVelmarMessageBoxTest::returnReleaseAnswersSingleButtonOnly_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("OK, Return") << 1 << int(Qt::Key_Return) << 1;
    QTest::newRow("OK, Enter") << 1 << int(Qt::Key_Enter) << 1;
    QTest::newRow("Retry, Return") << 4096 << int(Qt::Key_Return) << 4096;
    QTest::newRow("plain Cancel, Enter") << 512 << int(Qt::Key_Enter) << 512;
    QTest::newRow("OK and Cancel") << 3 << int(Qt::Key_Return) << kOtherExit;
    QTest::newRow("two of three left") << 7 << int(Qt::Key_Return) << kOtherExit;
    QTest::newRow("none") << 0 << int(Qt::Key_Return) << kOtherExit;
    QTest::newRow("another key") << 1 << int(Qt::Key_A) << kOtherExit;
}

void CVelmarMessageBoxTest::returnReleaseAnswersSingleButtonOnly()
{
    QFETCH(const int, mask);
    QFETCH(const int, key);
    QFETCH(const int, result);
    const auto box = MakeBox(mask);
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    InNextBox([key, result](CVelmarMessageBox* running) {
        SendKeyRelease(running, Qt::Key(key));
        QCOMPARE(running->m_pEventLoop->isRunning(), result == kOtherExit);
        if (result == kOtherExit) {
            running->MsgExit(kOtherExit);
        }
    });
    QCOMPARE(box->MsgExec(), result);
    QCOMPARE(spy.size(), result == kOtherExit ? 0 : 1);
    if (!spy.isEmpty()) {
        QCOMPARE(spy.at(0).at(0).toInt(), result);
    }
}

void CVelmarMessageBoxTest::returnAnswersDisabledSingleButton()
{
    const auto box = MakeBox(8);
    box->SetBtnEnable(false);
    InNextBox([](CVelmarMessageBox* running) { SendKeyRelease(running, Qt::Key_Return); });
    QCOMPARE(box->MsgExec(), 8);
}

void CVelmarMessageBoxTest::returnPressClicksFocusedButton_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void CVelmarMessageBoxTest::returnPressClicksFocusedButton()
{
    QFETCH(const int, key);
    const auto box = MakeBox(12);
    QVERIFY(QTest::qWaitForWindowActive(box.get()));
    InNextBox([key](CVelmarMessageBox* running) {
        ButtonOf(running, 8)->setFocus();
        QTest::keyClick(running->windowHandle(), Qt::Key(key));
    });
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    QCOMPARE(box->MsgExec(), 8);
    QCOMPARE(spy.size(), 1);
}

void CVelmarMessageBoxTest::returnWithoutFocusedButtonAnswersNothing()
{
    const auto box = MakeBox(12);
    QVERIFY(QTest::qWaitForWindowActive(box.get()));
    InNextBox([](CVelmarMessageBox* running) {
        running->setFocusPolicy(Qt::StrongFocus);
        running->setFocus();
        running->HandleEnterKey();
        QVERIFY(running->m_pEventLoop->isRunning());
        running->MsgExit(kOtherExit);
    });
    QCOMPARE(box->MsgExec(), kOtherExit);
}

void CVelmarMessageBoxTest::returnAnswersSingleButtonOnPressAndOnRelease()
{
    const auto box = MakeBox(4);
    QVERIFY(QTest::qWaitForWindowActive(box.get()));
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    InNextBox([&spy](CVelmarMessageBox* running) {
        QTest::keyPress(running->windowHandle(), Qt::Key_Return);
        QCOMPARE(spy.size(), 1);
        // Comes before the run has returned to its caller, so the box is still there to get it.
        QTest::keyRelease(running->windowHandle(), Qt::Key_Return);
        QCOMPARE(spy.size(), 2);
    });
    QCOMPARE(box->MsgExec(), 4);
    QCOMPARE(spy.at(0), spy.at(1));
}

void CVelmarMessageBoxTest::acceptWithoutButtonReportsTwo()
{
    const auto box = MakeBox(12);
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    InNextBox([](CVelmarMessageBox* running) { running->SlotAcceptSender(); });
    QCOMPARE(box->MsgExec(), 2);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 2);
}

void CVelmarMessageBoxTest::previewStaysAndSaysThatItLeaves_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("browser");
    QTest::addColumn<bool>("stays");
    QTest::newRow("Chinese") << QStringLiteral("预览") << false << true;
    QTest::newRow("English") << QStringLiteral("Preview") << false << true;
    QTest::newRow("browser") << QStringLiteral("Preview") << true << true;
    QTest::newRow("another title") << QStringLiteral("preview") << false << false;
    QTest::newRow("longer title") << QStringLiteral("预览 1") << false << false;
}

void CVelmarMessageBoxTest::previewStaysAndSaysThatItLeaves()
{
    QFETCH(const QString, title);
    QFETCH(const bool, browser);
    QFETCH(const bool, stays);
    const auto box = MakeBox(3, QStringLiteral("running"), MsgIconLoading, title, {}, browser);
    QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    InNextBox([](CVelmarMessageBox* running) { SendKeyRelease(running, Qt::Key_Escape); });
    QCOMPARE(box->RunLoop(), 2);
    QCOMPARE(box->isVisible(), stays);
    const QString shown = browser ? box->m_pBrowserContent->toPlainText() : box->m_pLabelContent->text();
    QCOMPARE(shown, stays ? QStringLiteral("退出中") : QStringLiteral("running"));
    QCOMPARE(box->m_strContent, shown);
    if (stays && !browser) {
        QTRY_COMPARE(box->m_pLabelContent->text(), QStringLiteral("退出中."));
    }
}

void CVelmarMessageBoxTest::closeRequestIsRecorded()
{
    const auto box = MakeBox(1);
    QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    QVERIFY(QMetaObject::invokeMethod(box.get(), "pushButton_clicked_slot"));
    QVERIFY(box->m_bCloseRequested);
    QVERIFY(!box->isVisible());
    // A release that arrives at a hidden box does no harm.
    SendKeyRelease(box.get(), Qt::Key_Return);
    QVERIFY(!box->isVisible());
}

void CVelmarMessageBoxTest::filterConsumesNothing()
{
    const auto box = MakeBox(1);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!box->eventFilter(box.get(), &release));
    QObject other;
    QVERIFY(!box->eventFilter(&other, &release));
}

void CVelmarMessageBoxTest::msgExecShowsRunsAndHides()
{
    const auto box = MakeBox(1);
    box->hide();
    InNextBox([&box](CVelmarMessageBox* running) {
        QCOMPARE(running, box.get());
        QVERIFY(running->isVisible());
        running->MsgExit(5);
    });
    QCOMPARE(box->MsgExec(), 5);
    QVERIFY(!box->isVisible());
}

void CVelmarMessageBoxTest::msgExitEndsRunWithoutSignal()
{
    const auto box = MakeBox(0);
    QSignalSpy spy(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation);
    box->MsgExit(9); // not running: forgotten
    InNextBox([](CVelmarMessageBox* running) { running->MsgExit(-3); });
    QCOMPARE(box->MsgExec(), -3);
    QVERIFY(spy.isEmpty());
}

void CVelmarMessageBoxTest::msgExecOfRunningBoxLeavesItAlone()
{
    const auto box = MakeBox(1);
    InNextBox([](CVelmarMessageBox* running) {
        QCOMPARE(running->MsgExec(), 2);
        QVERIFY(running->isVisible());
        QVERIFY(running->m_pEventLoop->isRunning());
        running->MsgExit(kOtherExit);
    });
    QCOMPARE(box->MsgExec(), kOtherExit);
}

void CVelmarMessageBoxTest::boxCanRunAgain()
{
    const auto box = MakeBox(12);
    for (const int bit : {8, 4, 8}) {
        InNextBox([bit](CVelmarMessageBox* running) { ButtonOf(running, bit)->click(); });
        QCOMPARE(box->MsgExec(), bit);
    }
}

void CVelmarMessageBoxTest::signalPrecedesEndOfRun()
{
    const auto box = MakeBox(12);
    bool runningAtSignal = false;
    connect(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation, box.get(),
            [&] { runningAtSignal = box->m_pEventLoop->isRunning() && box->isVisible(); });
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 4)->click(); });
    QCOMPARE(box->MsgExec(), 4);
    QVERIFY(runningAtSignal);
}

void CVelmarMessageBoxTest::dragStartsInTopBandOnly_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("moves");
    QTest::newRow("first point") << QPoint(1, 1) << int(Qt::LeftButton) << true;
    QTest::newRow("left edge") << QPoint(0, 10) << int(Qt::LeftButton) << false;
    QTest::newRow("top edge") << QPoint(10, 0) << int(Qt::LeftButton) << false;
    QTest::newRow("last row") << QPoint(10, 31) << int(Qt::LeftButton) << true;
    QTest::newRow("below") << QPoint(10, 32) << int(Qt::LeftButton) << false;
    QTest::newRow("last column") << QPoint(571, 10) << int(Qt::LeftButton) << true;
    QTest::newRow("beyond the shown widget") << QPoint(572, 10) << int(Qt::LeftButton) << false;
    QTest::newRow("right button") << QPoint(10, 10) << int(Qt::RightButton) << false;
}

void CVelmarMessageBoxTest::dragStartsInTopBandOnly()
{
    QFETCH(const QPoint, point);
    QFETCH(const int, button);
    QFETCH(const bool, moves);
    const auto box = MakeBox(1);
    QCOMPARE(box->ui->m_widgetShow->width(), 572);
    const QPoint start = box->pos();
    const QPoint global = start + point;
    SendMouse(box.get(), QEvent::MouseButtonPress, point, global, Qt::MouseButton(button), Qt::MouseButton(button));
    QCOMPARE(box->m_bDragging, moves);
    SendMouse(box.get(), QEvent::MouseMove, point, global + QPoint(30, 20), Qt::NoButton, Qt::LeftButton);
    SendMouse(box.get(), QEvent::MouseMove, point, global + QPoint(25, -5000), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(box->pos(), moves ? start + QPoint(25, -5000) : start);
}

void CVelmarMessageBoxTest::dragEndsOnLeftReleaseOnly()
{
    const auto box = MakeBox(1);
    const QPoint global = box->pos() + QPoint(10, 10);
    SendMouse(box.get(), QEvent::MouseButtonPress, {10, 10}, global, Qt::LeftButton, Qt::LeftButton);
    SendMouse(box.get(), QEvent::MouseButtonRelease, {10, 10}, global, Qt::RightButton, Qt::LeftButton);
    QVERIFY(box->m_bDragging);
    SendMouse(box.get(), QEvent::MouseButtonRelease, {10, 10}, global, Qt::LeftButton, Qt::NoButton);
    QVERIFY(!box->m_bDragging);
    const QPoint before = box->pos();
    SendMouse(box.get(), QEvent::MouseMove, {10, 10}, global + QPoint(9, 9), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(box->pos(), before);
}

void CVelmarMessageBoxTest::dragWithoutLeftButtonDoesNotMove()
{
    const auto box = MakeBox(1);
    const QPoint before = box->pos();
    const QPoint global = before + QPoint(10, 10);
    SendMouse(box.get(), QEvent::MouseButtonPress, {10, 10}, global, Qt::LeftButton, Qt::LeftButton);
    SendMouse(box.get(), QEvent::MouseMove, {10, 10}, global + QPoint(9, 9), Qt::NoButton, Qt::RightButton);
    QCOMPARE(box->pos(), before);
}

void CVelmarMessageBoxTest::checkingModeLogsOneLine_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::checkingModeLogsOneLine()
{
    QFETCH(const int, entry);
    SetChecking(true);
    LogCapture log;
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 4)->click(); });
    QCOMPARE(MaskedEntries().at(entry).call(nullptr, 12, QStringLiteral("a title"), QStringLiteral("a text")), 4);
    QCOMPARE(log.Lines(),
             QStringList{
                 QStringLiteral("ShowWindow %1 a title a text").arg(QLatin1String(MaskedEntries().at(entry).szName))});
}

void CVelmarMessageBoxTest::checkingModeLogsInnerEntries()
{
    SetChecking(true);
    LogCapture log;
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 8)->click(); });
    CVelmarMessageBox::ShowWindowAndOpenDir(nullptr, QStringLiteral("/x"), QStringLiteral("c"), MsgIconPop1, QString());
    QCOMPARE(log.Take(), QStringList{QStringLiteral("ShowWindow ShowWindow 提示 c")});
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 4)->click(); });
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("c"));
    QCOMPARE(log.Take(), QStringList{QStringLiteral("ShowWindow ShowWindowWithCheckBox 磁盘空间不足 c")});
    SetDiskSetting(true);
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("c"));
    QCOMPARE(log.Take(), QStringList());
}

void CVelmarMessageBoxTest::contentFillsPlaceMarkerInTitle()
{
    SetChecking(true);
    LogCapture log;
    InNextBox([](CVelmarMessageBox* running) { running->MsgExit(1); });
    CVelmarMessageBox::ShowWindow(nullptr, 1, MsgIconPop1, QStringLiteral("<%3>"), QStringLiteral("%1"), {});
    QCOMPARE(log.Lines(), QStringList{QStringLiteral("ShowWindow ShowWindow <%1> %1")});
}

void CVelmarMessageBoxTest::noLogOutsideCheckingMode()
{
    LogCapture log;
    InNextBox([](CVelmarMessageBox* running) { running->MsgExit(1); });
    CVelmarMessageBox::ShowWindow(nullptr, 1, MsgIconPop1, QStringLiteral("t"), QStringLiteral("c"), {});
    QCOMPARE(log.Lines(), QStringList());
}

void CVelmarMessageBoxTest::entryReturnsPressedBit_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::entryReturnsPressedBit()
{
    QFETCH(const int, entry);
    QWidget host;
    host.show();
    InNextBox([&host](CVelmarMessageBox* running) {
        QCOMPARE(running->parentWidget(), &host);
        QTest::mouseClick(ButtonOf(running, 64), Qt::LeftButton);
    });
    QCOMPARE(MaskedEntries().at(entry).call(&host, 32 | 64, QStringLiteral("t"), QStringLiteral("c")), 64);
}

void CVelmarMessageBoxTest::entryReturnsTwoOnEscape_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::entryReturnsTwoOnEscape()
{
    QFETCH(const int, entry);
    QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    InNextBox([](CVelmarMessageBox* running) { SendKeyRelease(running, Qt::Key_Escape); });
    QCOMPARE(MaskedEntries().at(entry).call(nullptr, 1, QStringLiteral("t"), QStringLiteral("c")), 2);
}

void CVelmarMessageBoxTest::entryDeletesItsBox_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::entryDeletesItsBox()
{
    QFETCH(const int, entry);
    QPointer<CVelmarMessageBox> box;
    InNextBox([&box](CVelmarMessageBox* running) {
        box = running;
        running->MsgExit(kOtherExit);
    });
    QCOMPARE(MaskedEntries().at(entry).call(nullptr, 12, QStringLiteral("t"), QStringLiteral("c")), kOtherExit);
    QVERIFY(!box);
}

void CVelmarMessageBoxTest::entryPassesItsArguments()
{
    for (const NamedEntry& entry : MaskedEntries()) {
        InNextBox([&entry](CVelmarMessageBox* running) {
            const QByteArray name(entry.szName);
            QCOMPARE(running->ui->m_labelTitle->text(), QStringLiteral("t"));
            QCOMPARE(running->m_strContent, QStringLiteral("c"));
            QCOMPARE(running->m_iButtonMask, 12);
            QVERIFY(running->ui->m_labelIcon->styleSheet().contains(QLatin1String("img_pop_2")));
            QCOMPARE(running->m_bExtended, name == "ShowWindowExt");
            QCOMPARE(running->m_pBrowserContent != nullptr, name == "ShowWindowScreenCenter");
            QCOMPARE(running->ui->checkBox->isVisible(), name == "ShowWindowWithCheckBox");
            QCOMPARE(ButtonOf(running, 4)->text(), QStringLiteral("是"));
            running->MsgExit(0);
        });
        entry.call(nullptr, 12, QStringLiteral("t"), QStringLiteral("c"));
    }
    const Texts texts{{MsgBtnYes, QStringLiteral("mine")}};
    const BoxAction seesText = [](CVelmarMessageBox* running) {
        QCOMPARE(ButtonOf(running, 4)->text(), QStringLiteral("mine"));
        running->MsgExit(0);
    };
    InNextBox(seesText);
    CVelmarMessageBox::ShowWindow(nullptr, 12, MsgIconPop1, QString(), QString(), texts);
    InNextBox(seesText);
    CVelmarMessageBox::ShowWindowWithCheckBox(nullptr, 12, MsgIconPop1, QString(), QString(), QString(), false, texts);
}

void CVelmarMessageBoxTest::autoCloseReturnsZeroAfterTwoSeconds()
{
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(CVelmarMessageBox::ShowWindowAutoClose(nullptr, 0, MsgIconPop1, QString(), QStringLiteral("c")), 0);
    // The clock and the timer may round to different milliseconds.
    QVERIFY2(clock.elapsed() >= 1999, qPrintable(QString::number(clock.elapsed())));
}

void CVelmarMessageBoxTest::autoCloseTimerOfAnsweredBoxDoesNoHarm()
{
    QPointer<QEventLoop> loop;
    InNextBox([&loop](CVelmarMessageBox* running) {
        loop = running->m_pEventLoop;
        ButtonOf(running, 1)->click();
    });
    QCOMPARE(CVelmarMessageBox::ShowWindowAutoClose(nullptr, 1, MsgIconPop1, QString(), QStringLiteral("c")), 1);
    QVERIFY(loop);
    // Another box that is open when the timer comes is not ended by it.
    InNextBox([](CVelmarMessageBox* running) {
        QTimer::singleShot(2200, running, [running] { running->MsgExit(kOtherExit); });
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, 1, MsgIconPop1, QString(), QStringLiteral("c"), {}), kOtherExit);
}

void CVelmarMessageBoxTest::withoutCloseKeepsCloseButton()
{
    InNextBox([](CVelmarMessageBox* running) {
        QVERIFY(running->m_pBtnClose);
        QVERIFY(running->m_pBtnClose->isVisible());
        running->MsgExit(0);
    });
    CVelmarMessageBox::ShowWindowWithoutClose(nullptr, 7, MsgIconPop1, QString(), QStringLiteral("c"));
}

void CVelmarMessageBoxTest::checkBoxStateIsReturned_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("toggled");
    QTest::addColumn<bool>("escape");
    for (int i = 0; i < 8; ++i) {
        QTest::addRow("%s, %s, %s", i & 1 ? "ticked" : "unticked", i & 2 ? "toggled" : "left", i & 4 ? "Escape" : "OK")
            << bool(i & 1) << bool(i & 2) << bool(i & 4);
    }
}

void CVelmarMessageBoxTest::checkBoxStateIsReturned()
{
    QFETCH(const bool, checked);
    QFETCH(const bool, toggled);
    QFETCH(const bool, escape);
    if (escape) {
        QTest::ignoreMessage(QtDebugMsg, "pushButton_clicked_slot 899");
    }
    InNextBox([=](CVelmarMessageBox* running) {
        QCOMPARE(running->ui->checkBox->isChecked(), checked);
        QVERIFY(running->ui->checkBox->isVisible());
        if (toggled) {
            running->ui->checkBox->click();
        }
        if (escape) {
            SendKeyRelease(running, Qt::Key_Escape);
        } else {
            ButtonOf(running, 1)->click();
        }
    });
    const std::pair<int, bool> result = CVelmarMessageBox::ShowWindowWithCheckBox(
        nullptr, 1, MsgIconPop1, QStringLiteral("t"), QStringLiteral("c"), QStringLiteral("tick"), checked, {});
    QCOMPARE(result.first, escape ? 2 : 1);
    QCOMPARE(result.second, checked != toggled);
}

void CVelmarMessageBoxTest::checkBoxTextIsReplacedOnlyByText()
{
    for (const QString& text : {QString(), QStringLiteral("记住")}) {
        InNextBox([text](CVelmarMessageBox* running) {
            QCOMPARE(running->ui->checkBox->text(), text.isEmpty() ? QStringLiteral("不再提醒") : text);
            running->MsgExit(0);
        });
        CVelmarMessageBox::ShowWindowWithCheckBox(nullptr, 1, MsgIconPop1, QString(), QStringLiteral("c"), text, false,
                                                  {});
    }
}

void CVelmarMessageBoxTest::hiddenParentPlacesCheckBoxBoxByItsScreen()
{
    QWidget host;
    host.setGeometry(10, 20, 300, 200);
    InNextBox([&host](CVelmarMessageBox* running) {
        const QRect available = host.screen()->availableGeometry();
        QCOMPARE(running->size(), QSize(running->minimumWidth(), running->minimumHeight()));
        QCOMPARE(running->pos(), QPoint(qMax((available.width() - running->width()) / 2, 0),
                                        qMax((available.height() - running->height()) / 2, 0)));
        running->MsgExit(0);
    });
    CVelmarMessageBox::ShowWindowWithCheckBox(&host, 1, MsgIconPop1, QString(), QStringLiteral("c"), QString(), false,
                                              {});
}

void CVelmarMessageBoxTest::visibleParentLeavesPositionAlone()
{
    QWidget host;
    host.setGeometry(60, 40, 640, 300);
    host.show();
    InNextBox([&host](CVelmarMessageBox* running) {
        QCOMPARE(running->geometry().center().x(), host.geometry().center().x());
        running->MsgExit(0);
    });
    CVelmarMessageBox::ShowWindowWithCheckBox(&host, 1, MsgIconPop1, QString(), QStringLiteral("c"), QString(), false,
                                              {});
}

void CVelmarMessageBoxTest::screenCenterLiesOverMainWindow()
{
    QWidget mainWindow;
    mainWindow.setGeometry(33, 44, 701, 401);
    CVelmarMessageBox::SetMainWindow(&mainWindow);
    QWidget other;
    other.show();
    // The height is fitted to the text once more after the placing, so that of a box just built counts.
    const int height = MakeBox(1, QStringLiteral("c"), MsgIconPop1, QString(), {}, true)->height();
    InNextBox([&mainWindow, height](CVelmarMessageBox* running) {
        const QPoint center = mainWindow.geometry().center();
        QCOMPARE(running->pos(), QPoint(center.x() - running->width() / 2, center.y() - height / 2));
        running->MsgExit(0);
    });
    CVelmarMessageBox::ShowWindowScreenCenter(&other, 1, MsgIconPop1, QString(), QStringLiteral("c"));
}

void CVelmarMessageBoxTest::screenCenterWithoutMainWindowKeepsPosition()
{
    QWidget host;
    host.setGeometry(60, 40, 640, 300);
    host.show();
    const BoxAction liesOverHost = [&host](CVelmarMessageBox* running) {
        QCOMPARE(running->geometry().center().x(), host.geometry().center().x());
        running->MsgExit(0);
    };
    InNextBox(liesOverHost);
    CVelmarMessageBox::ShowWindowScreenCenter(&host, 1, MsgIconPop1, QString(), QStringLiteral("c"));
    {
        QWidget mainWindow;
        CVelmarMessageBox::SetMainWindow(&mainWindow);
        QCOMPARE(CVelmarMessageBox::m_pTopWidget.data(), &mainWindow);
    }
    InNextBox(liesOverHost);
    CVelmarMessageBox::ShowWindowScreenCenter(&host, 1, MsgIconPop1, QString(), QStringLiteral("c"));
}

void CVelmarMessageBoxTest::screenCenterAloneIsRaised()
{
    for (const NamedEntry& entry : MaskedEntries()) {
        int raises = 0;
        {
            EventCounter counter(qApp, QEvent::ZOrderChange);
            InNextBox([&counter, &raises](CVelmarMessageBox* running) {
                raises = counter.m_iCount;
                running->MsgExit(0);
            });
            entry.call(nullptr, 12, QStringLiteral("t"), QStringLiteral("c"));
        }
        QVERIFY2((raises > 0) == (QByteArray(entry.szName) == "ShowWindowScreenCenter"), entry.szName);
    }
}

void CVelmarMessageBoxTest::openDirOffersFileOrFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const QString file = QStringLiteral("打开文件位置");
    const QString folder = QStringLiteral("打开文件夹位置");
    QTest::newRow("file") << QCoreApplication::applicationFilePath() << QStringLiteral("t") << file;
    QTest::newRow("folder") << QCoreApplication::applicationDirPath() << QString() << folder;
    QTest::newRow("missing") << QStringLiteral("/no/such/file.nc") << QString() << folder;
    QTest::newRow("empty") << QString() << QString() << folder;
}

void CVelmarMessageBoxTest::openDirOffersFileOrFolder()
{
    QFETCH(const QString, path);
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    InNextBox([title, text](CVelmarMessageBox* running) {
        QCOMPARE(running->ui->m_labelTitle->text(), title.isEmpty() ? QStringLiteral("提示") : title);
        const QList<QPushButton*> row = Row(running);
        QCOMPARE(row.size(), 2);
        QCOMPARE(row.at(0)->text(), text);
        QCOMPARE(row.at(0)->styleSheet(), kPrimarySheet);
        QCOMPARE(row.at(1)->text(), QStringLiteral("确定"));
        row.at(1)->click();
    });
    QCOMPARE(CVelmarMessageBox::ShowWindowAndOpenDir(nullptr, path, QStringLiteral("saved"), MsgIconPop1, title), 8);
}

void CVelmarMessageBoxTest::openDirFallsBackToParentFolder()
{
#ifdef Q_OS_WIN
    QSKIP("Windows always finds its own file manager");
#endif
    UrlCatcher urls;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/no/such/folder");
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 4)->click(); });
    const QString file = QCoreApplication::applicationDirPath() + QStringLiteral("/missing.nc");
    QCOMPARE(CVelmarMessageBox::ShowWindowAndOpenDir(nullptr, file, QStringLiteral("saved"), MsgIconPop1, QString()),
             4);
    QVERIFY(urls.m_listUrl.isEmpty());
    QTRY_COMPARE(urls.m_listUrl.size(), 1);
    QCOMPARE(urls.m_listUrl.at(0), QUrl::fromLocalFile(QCoreApplication::applicationDirPath()));
    qputenv("PATH", path);
}

void CVelmarMessageBoxTest::openDirStartsExplorerAfterItReturned()
{
#ifdef Q_OS_UNIX
    UrlCatcher urls;
    QTemporaryDir folder;
    const QString record = folder.filePath(QStringLiteral("record"));
    QFile explorer(folder.filePath(QStringLiteral("explorer.exe")));
    QVERIFY(explorer.open(QIODevice::WriteOnly));
    explorer.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + record.toUtf8() + ".new'\nmv '" + record.toUtf8() +
                   ".new' '" + record.toUtf8() + "'\n");
    explorer.close();
    QVERIFY(explorer.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ':' + path);
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 4)->click(); });
    QCOMPARE(CVelmarMessageBox::ShowWindowAndOpenDir(nullptr, QStringLiteral("/tmp/a b.nc"), QStringLiteral("saved"),
                                                     MsgIconPop1, QString()),
             4);
    QTRY_VERIFY(QFile::exists(record));
    QFile written(record);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), QByteArray("/select,\n/tmp/a b.nc\n"));
    QVERIFY(urls.m_listUrl.isEmpty());
    qputenv("PATH", path);
#else
    QSKIP("the file manager of this system is not replaced");
#endif
}

void CVelmarMessageBoxTest::openDirAcknowledgedStartsNothing()
{
    UrlCatcher urls;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/no/such/folder");
    InNextBox([](CVelmarMessageBox* running) { ButtonOf(running, 8)->click(); });
    QCOMPARE(CVelmarMessageBox::ShowWindowAndOpenDir(nullptr, QStringLiteral("/tmp"), QStringLiteral("saved"),
                                                     MsgIconPop1, QString()),
             8);
    QCoreApplication::processEvents();
    QVERIFY(urls.m_listUrl.isEmpty());
    qputenv("PATH", path);
}

void CVelmarMessageBoxTest::diskSpaceBoxStoresTickWhateverTheCode_data()
{
    QTest::addColumn<bool>("answered");
    QTest::newRow("answered") << true;
    QTest::newRow("ended otherwise") << false;
}

void CVelmarMessageBoxTest::diskSpaceBoxStoresTickWhateverTheCode()
{
    QFETCH(const bool, answered);
    InNextBox([answered](CVelmarMessageBox* running) {
        QCOMPARE(running->ui->m_labelTitle->text(), QStringLiteral("磁盘空间不足"));
        QCOMPARE(running->m_strContent, QStringLiteral("3 MB"));
        QVERIFY(running->ui->m_labelIcon->styleSheet().contains(QLatin1String("img_pop_5")));
        QCOMPARE(Row(running).size(), 1);
        QCOMPARE(Row(running).at(0)->text(), QStringLiteral("是"));
        QCOMPARE(running->ui->checkBox->text(), QStringLiteral("不再提醒"));
        QVERIFY(!running->ui->checkBox->isChecked());
        running->ui->checkBox->click();
        if (answered) {
            ButtonOf(running, 4)->click();
        } else {
            running->MsgExit(2);
        }
    });
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("3 MB"));
    QVERIFY(DiskSetting());
    // From now on nothing is shown; a box would never be answered here.
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("3 MB"));
}

void CVelmarMessageBoxTest::diskSpaceBoxAsksAgainWithoutTick()
{
    for (int i = 0; i < 2; ++i) {
        bool shown = false;
        InNextBox([&shown](CVelmarMessageBox* running) {
            shown = true;
            ButtonOf(running, 4)->click();
        });
        CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("3 MB"));
        QVERIFY(shown);
        QVERIFY(!DiskSetting());
    }
}

void CVelmarMessageBoxTest::diskSpaceBoxTakesUnusableSettings_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("below a file") << QStringLiteral("file/settings.json");
}

void CVelmarMessageBoxTest::diskSpaceBoxTakesUnusableSettings()
{
    QFETCH(const QString, path);
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    CorvaneTextHelper::instance()->SetSettingsFile(folder.filePath(path));

    bool shown = false;
    InNextBox([&shown](CVelmarMessageBox* running) {
        shown = true;
        running->ui->checkBox->click();
        ButtonOf(running, 4)->click();
    });
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("3 MB"));
    QVERIFY(shown);
    // What cannot be written holds for this process at least; a box would never be answered here.
    CVelmarMessageBox::ShowDiskSpaceWindow(nullptr, QStringLiteral("3 MB"));
    QVERIFY(QFileInfo(folder.filePath(QStringLiteral("folder"))).isDir());
}

void CVelmarMessageBoxTest::boxesEndInReverseOrder()
{
    QStringList order;
    const auto older = MakeBox(0);
    InNextBox([&](CVelmarMessageBox* running) {
        QCOMPARE(running, older.get());
        InNextBox([&](CVelmarMessageBox* newer) {
            QVERIFY(newer != older.get());
            older->MsgExit(5);
            QTimer::singleShot(0, newer, [&order, newer] {
                order.append(QStringLiteral("newer asked"));
                ButtonOf(newer, 8)->click();
            });
        });
        QCOMPARE(CVelmarMessageBox::ShowWindow(running, 12, MsgIconPop1, QString(), QStringLiteral("c"), {}), 8);
        order.append(QStringLiteral("newer ended"));
        QVERIFY(older->isVisible());
        QCOMPARE(RunningBox(), older.get());
    });
    QCOMPARE(older->MsgExec(), 5);
    order.append(QStringLiteral("older ended"));
    QCOMPARE(order, (QStringList{QStringLiteral("newer asked"), QStringLiteral("newer ended"),
                                 QStringLiteral("older ended")}));
}

void CVelmarMessageBoxTest::boxDeletedInItsRunEndsIt_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::boxDeletedInItsRunEndsIt()
{
    QFETCH(const int, entry);
    InNextBox([](CVelmarMessageBox* running) { delete running; });
    QCOMPARE(MaskedEntries().at(entry).call(nullptr, 12, QStringLiteral("t"), QStringLiteral("c")), 2);
}

void CVelmarMessageBoxTest::parentDeletedInItsRunEndsIt_data()
{
    AddEntryRows();
}

void CVelmarMessageBoxTest::parentDeletedInItsRunEndsIt()
{
    QFETCH(const int, entry);
    auto* host = new QWidget;
    host->show();
    InNextBox([host](CVelmarMessageBox* running) {
        running->ui->checkBox->setChecked(true);
        delete host;
    });
    QCOMPARE(MaskedEntries().at(entry).call(host, 12, QStringLiteral("t"), QString(400, QChar(u'c'))), 2);
}

void CVelmarMessageBoxTest::boxDeletedByItsSignalReturnsPressedBit_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("mouse") << false;
    QTest::newRow("Return") << true;
}

void CVelmarMessageBoxTest::boxDeletedByItsSignalReturnsPressedBit()
{
    QFETCH(const bool, byKey);
    auto* host = new QWidget;
    host->show();
    InNextBox([host, byKey](CVelmarMessageBox* running) {
        connect(running, &CVelmarMessageBox::SignalMessageBoxOperation, host, [host] { delete host; });
        if (byKey) {
            SendKeyRelease(running, Qt::Key_Return);
        } else {
            QTest::mouseClick(ButtonOf(running, 4), Qt::LeftButton);
        }
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(host, 4, MsgIconLoading, QStringLiteral("t"), QStringLiteral("c"), {}), 4);
}

void CVelmarMessageBoxTest::boxClosedByHostEndsItsRun()
{
    QPointer<CVelmarMessageBox> box;
    InNextBox([&box](CVelmarMessageBox* running) {
        box = running;
        running->close();
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, 12, MsgIconPop1, QString(), QStringLiteral("c"), {}), 2);
    QVERIFY(!box);
}

void CVelmarMessageBoxTest::msgExecSurvivesDeletion()
{
    auto box = MakeBox(12);
    InNextBox([&box](CVelmarMessageBox*) { box.reset(); });
    QCOMPARE(box->MsgExec(), 2);
}

void CVelmarMessageBoxTest::boxDeletedAfterMsgExitKeepsItsCode()
{
    InNextBox([](CVelmarMessageBox* running) {
        running->MsgExit(kOtherExit);
        delete running;
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, 12, MsgIconPop1, QString(), QStringLiteral("c"), {}), kOtherExit);
}

void CVelmarMessageBoxTest::olderBoxDeletedUnderNewerOne()
{
    // The newer box is a child of the older one and goes with it; both calls return.
    InNextBox([](CVelmarMessageBox* older) {
        InNextBox([older](CVelmarMessageBox* newer) {
            QVERIFY(newer != older);
            delete older;
        });
        QCOMPARE(CVelmarMessageBox::ShowWindow(older, 12, MsgIconPop1, QString(), QStringLiteral("c"), {}), 2);
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, 12, MsgIconPop1, QString(), QStringLiteral("c"), {}), 2);
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarMessageBoxTest)
#include "CVelmarMessageBoxTest.moc"

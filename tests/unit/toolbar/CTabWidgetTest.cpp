#include <CustomControls/toolbar/CTabWidget.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/toolbar/CTabBar.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

class CTabWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newWidgetIsSetUp();
    void sheetIsExact();
    void emptyWidgetPaintsNoTabs();
    void pageIsLightAndStripIsDark();
    void currentTabBearsTheGreenBar();
};

void CTabWidgetTest::newWidgetIsSetUp()
{
    const CTabWidget tabs(nullptr);
    QVERIFY(tabs.testAttribute(Qt::WA_StyledBackground));
    auto* bar = qobject_cast<CTabBar*>(tabs.tabBar());
    QVERIFY(bar);
    QCOMPARE(bar->parentWidget(), static_cast<const QWidget*>(&tabs));
    QVERIFY(!bar->tabsClosable());
    QVERIFY(!bar->usesScrollButtons());
    QVERIFY(!bar->documentMode());
    QVERIFY(bar->expanding());
    QCOMPARE(bar->elideMode(), Qt::ElideNone);
    QCOMPARE(bar->font().pixelSize(), FontCnMedium_16.pixelSize());
    QCOMPARE(bar->font().weight(), FontCnMedium_16.weight());
}

void CTabWidgetTest::sheetIsExact()
{
    const CTabWidget tabs(nullptr);
    // One line as it stands; the arrows that it names never show.
    QCOMPARE(
        tabs.styleSheet(),
        QStringLiteral(
            "QTabWidget{background:#34363B;border:none;}"
            "QTabWidget::pane{background:#EEEEEE;border-top:1px solid #27282e;}"
            "QTabWidget::pane:top{top:3px;}QTabWidget::tab-bar{left:1px;top:4px;}"
            "QTabBar{background:#34363B;color:#676d7a;margin-top:4px;}"
            "QTabBar::tab{height:30px;background:#EEEEEE;color:#262626;border:none;border-bottom:1px solid red;}"
            "QTabBar::tab:selected{color:#188553;background:#EEEEEE;border-top:4px solid #188553;border-radius:0px;}"
            "QTabBar::tab:!selected{color:#eeeeee;border:none; background:transparent;margin-top:6px;}"
            "QToolButton{background:#34363B;border:none;}"
            "QToolButton::left-arrow{background:#34363B;image:url(:/icon/icon/"
            "arrow_l_.png);border:none;border-left:1px solid #f7282e;border-bottom:1px solid #f7282e;}"
            "QToolButton::left-arrow:hover{background:#f0f0f0;}"
            "QToolButton::left-arrow:pressed{background:#f0f0f0;}"
            "QToolButton::left-arrow:disabled{background:#e0e0e0;}"
            "QToolButton::right-arrow{background:#34363B;image:url(:/icon/icon/"
            "arrow_r_.png);border:none;border-bottom:1px solid #f7282e;}"
            "QToolButton::right-arrow:hover{background:#f0f0f0;border-bottom:1px solid #f7282e;}"
            "QToolButton::right-arrow:pressed{background:#f0f0f0;}"
            "QToolButton::right-arrow:disabled{background:#e0e0e0;}"));
}

void CTabWidgetTest::emptyWidgetPaintsNoTabs()
{
    CTabWidget tabs(nullptr);
    tabs.resize(300, 100);
    const QImage image = tabs.grab().toImage();
    QVERIFY(Painted::Extent(image, QColor(24, 133, 83)).isNull());
}

void CTabWidgetTest::pageIsLightAndStripIsDark()
{
    CTabWidget tabs(nullptr);
    tabs.addTab(new QWidget, QStringLiteral("one"));
    tabs.addTab(new QWidget, QStringLiteral("two"));
    tabs.resize(600, 150);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    const QImage image = tabs.grab().toImage();
    COMPARE_COLOR(image, 590, 2, QColor(0x34, 0x36, 0x3B));
    COMPARE_COLOR(image, 300, 120, QColor(0xEE, 0xEE, 0xEE));
}

void CTabWidgetTest::currentTabBearsTheGreenBar()
{
    CTabWidget tabs(nullptr);
    tabs.addTab(new QWidget, QStringLiteral("one"));
    tabs.addTab(new QWidget, QStringLiteral("two"));
    tabs.resize(600, 150);
    tabs.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tabs));
    const QImage image = tabs.grab().toImage();
    const QRect tab = tabs.tabBar()->tabRect(0).translated(tabs.tabBar()->pos());
    const QRect green = Painted::Extent(image.copy(tab.adjusted(0, 0, 0, -20)), QColor(0x18, 0x85, 0x53));
    QVERIFY(green.width() >= tab.width() - 2);
    QCOMPARE(green.height(), 4);
    const QRect other = tabs.tabBar()->tabRect(1).translated(tabs.tabBar()->pos());
    QVERIFY(Painted::Extent(image.copy(other), QColor(0x18, 0x85, 0x53)).isNull());
    COMPARE_COLOR(image, tab.left() + 5, tab.bottom(), QColor(234, 235, 234));
    COMPARE_COLOR(image, other.left() + 5, other.bottom(), QColor(39, 40, 46));
}

CUSTOMCONTROLS_TEST_MAIN(CTabWidgetTest)

#include "CTabWidgetTest.moc"

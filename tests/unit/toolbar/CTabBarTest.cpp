#include <CustomControls/toolbar/CTabBar.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/toolbar/CTabWidget.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QPainter>
#include <QProxyStyle>

namespace {

const QColor kCurrentCaption(24, 133, 83);
const QColor kOtherCaption(238, 238, 238);
const QColor kCurrentLine(234, 235, 234);
const QColor kOtherLine(39, 40, 46);

int BoldWidth(const QString& text)
{
    return QFontMetrics(FontCnBold_14).boundingRect(text).width();
}

// Tabs without a style sheet's shape behind them: only what the bar itself draws.
void DrawNoShape(CTabBar& bar)
{
    bar.setStyleSheet(QStringLiteral("QTabBar::tab{background:rgb(1,2,3);border:none;}"));
}

} // namespace

class CTabBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabIsAsWideAsTheBoldCaption();
    void tabOfNoIndexHasTheMargins();
    void barIsThirtyHigh();
    void expandedTabsStayThirtyHigh();
    void currentTabIsGreenAndMerges();
    void captionStandsTwoBelowTheMiddle();
    void tabsBeyondTheEdgeAreNotPainted();
    void hiddenTabIsNotPainted();
    void emptyBarPaintsNothing();
};

void CTabBarTest::tabIsAsWideAsTheBoldCaption()
{
    CTabBar bar(nullptr);
    bar.setFont(FontCnMedium_16);
    for (const QString& text : {QStringLiteral("开始"), QStringLiteral("A rather long tab"), QString()}) {
        const int index = bar.addTab(text);
        QCOMPARE(bar.tabSizeHint(index), QSize(BoldWidth(text) + 52, 30));
    }
    QFont huge = bar.font();
    huge.setPixelSize(60);
    bar.setFont(huge);
    QCOMPARE(bar.tabSizeHint(0), QSize(BoldWidth(QStringLiteral("开始")) + 52, 30));
}

void CTabBarTest::tabOfNoIndexHasTheMargins()
{
    CTabBar bar(nullptr);
    QCOMPARE(bar.tabSizeHint(0), QSize(BoldWidth(QString()) + 52, 30));
    QCOMPARE(bar.tabSizeHint(-7), QSize(BoldWidth(QString()) + 52, 30));
}

void CTabBarTest::barIsThirtyHigh()
{
    CTabBar bar(nullptr);
    QCOMPARE(bar.sizeHint().height(), 30);
    bar.addTab(QStringLiteral("one"));
    QCOMPARE(bar.sizeHint().height(), 30);
    QCOMPARE(bar.sizeHint().width(), bar.QTabBar::sizeHint().width());
}

void CTabBarTest::expandedTabsStayThirtyHigh()
{
    CTabWidget tabs(nullptr);
    tabs.addTab(new QWidget, QStringLiteral("one"));
    tabs.addTab(new QWidget, QStringLiteral("two"));
    auto* bar = static_cast<CTabBar*>(tabs.tabBar());
    // In a tab widget the style keeps the bar as wide as its tabs; alone in a row they share the width.
    bar->setParent(nullptr);
    bar->resize(600, 30);
    bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(bar));
    QCOMPARE(bar->tabRect(0).height(), 30);
    QCOMPARE(bar->tabRect(1).height(), 30);
    QVERIFY(bar->tabRect(0).width() > bar->tabSizeHint(0).width());
    QCOMPARE(bar->tabRect(0).width() + bar->tabRect(1).width(), 600);
    delete bar;
}

void CTabBarTest::currentTabIsGreenAndMerges()
{
    CTabBar bar(nullptr);
    DrawNoShape(bar);
    for (int i = 0; i < 3; ++i) {
        bar.addTab(Painted::Blocks(2));
    }
    bar.resize(bar.sizeHint());
    for (int current = 0; current < 3; ++current) {
        bar.setCurrentIndex(current);
        const QImage image = Painted::Of(bar);
        for (int i = 0; i < 3; ++i) {
            const QRect tab = bar.tabRect(i);
            const QColor line = i == current ? kCurrentLine : kOtherLine;
            COMPARE_COLOR(image, tab.left() + 1, tab.bottom(), line);
            COMPARE_COLOR(image, tab.center().x(), tab.bottom(), line);
            COMPARE_COLOR(image, tab.right() - 1, tab.bottom(), line);
            COMPARE_COLOR(image, tab.left() + 1, tab.bottom() - 1, QColor(1, 2, 3));
            const QImage one = image.copy(tab.adjusted(0, 0, 0, -1));
            QVERIFY(!Painted::Extent(one, i == current ? kCurrentCaption : kOtherCaption, 0).isNull());
            QVERIFY(Painted::Extent(one, i == current ? kOtherCaption : kCurrentCaption, 0).isNull());
        }
    }
    // Its own colours hold for a disabled bar as well.
    bar.setEnabled(false);
    QVERIFY(!Painted::Extent(Painted::Of(bar), kCurrentCaption, 0).isNull());
}

void CTabBarTest::captionStandsTwoBelowTheMiddle()
{
    CTabBar bar(nullptr);
    DrawNoShape(bar);
    bar.addTab(QStringLiteral("—")); // a stroke in the middle of the line
    bar.resize(bar.sizeHint());
    const QImage image = Painted::Of(bar); // lays the tabs out as well
    const QRect tab = bar.tabRect(0);
    const QRect caption = Painted::Extent(image.copy(tab.adjusted(0, 0, 0, -1)), kCurrentCaption, 30);
    QVERIFY(!caption.isNull());

    QImage expected(tab.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(QColor(1, 2, 3));
    QPainter painter(&expected);
    painter.setFont(FontCnBold_14);
    painter.setPen(kCurrentCaption);
    painter.drawText(QRect(QPoint(0, 0), tab.size()).adjusted(0, 0, 0, 4), Qt::AlignCenter, QStringLiteral("—"));
    painter.end();
    const QRect drawn = Painted::Extent(expected.convertToFormat(QImage::Format_RGB32), kCurrentCaption, 30);
    QCOMPARE(caption, drawn);
    QVERIFY(std::abs(caption.center().x() - tab.width() / 2) <= 2);
}

void CTabBarTest::tabsBeyondTheEdgeAreNotPainted()
{
    class Counting : public QProxyStyle
    {
    public:
        void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const override
        {
            m_shapes += element == CE_TabBarTabShape ? 1 : 0;
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        mutable int m_shapes = 0;
    } style;
    CTabBar bar(nullptr);
    bar.setStyle(&style);
    bar.setUsesScrollButtons(false);
    bar.setElideMode(Qt::ElideNone);
    for (int i = 0; i < 10; ++i) {
        bar.addTab(QStringLiteral("tab"));
    }
    bar.resize(2 * bar.tabSizeHint(0).width() + 20, 30);
    style.m_shapes = 0;
    QVERIFY(!Painted::Of(bar).isNull());
    int reached = 0;
    for (int i = 0; i < 10; ++i) {
        reached += bar.tabRect(i).left() <= bar.width() ? 1 : 0;
    }
    QCOMPARE(style.m_shapes, reached);
    QVERIFY(reached < 10);
}

void CTabBarTest::hiddenTabIsNotPainted()
{
    CTabBar bar(nullptr);
    bar.addTab(Painted::Blocks(2));
    bar.addTab(Painted::Blocks(2));
    bar.setTabVisible(1, false);
    bar.resize(bar.sizeHint());
    QVERIFY(Painted::Extent(Painted::Of(bar), kOtherLine, 0).isNull());
    bar.setTabVisible(1, true);
    bar.resize(bar.sizeHint());
    QVERIFY(!Painted::Extent(Painted::Of(bar), kOtherLine, 0).isNull());
}

void CTabBarTest::emptyBarPaintsNothing()
{
    CTabBar bar(nullptr);
    bar.resize(200, 30);
    const QImage image = Painted::Of(bar);
    QCOMPARE(Painted::Extent(image, Painted::kGround, 0), image.rect());
    QImage ground(image.size(), image.format());
    ground.fill(Painted::kGround);
    QCOMPARE(image, ground);
}

CUSTOMCONTROLS_TEST_MAIN(CTabBarTest)

#include "CTabBarTest.moc"

#include <CustomControls/toolbar/CToolBar.h>

#include <CustomControls/CToolBarStyle.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QTimer>

namespace {

const QColor kTallGround(234, 235, 234);
const QColor kLine(187, 187, 187);
const QColor kCaption(153, 153, 153);
const QColor kGround(10, 20, 30);

// The middle of the group caption, by the extent of its solid blocks; the text of the bar at this place in its row.
int CaptionMiddle(CToolBar& bar)
{
    return Painted::Extent(Painted::Of(bar, kGround), kCaption, 0).center().x();
}

} // namespace

class CToolBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newBarIsPlain();
    void modeGivesTheHeight_data();
    void modeGivesTheHeight();
    void barBringsItsOwnStyle();
    void styleGoesWithTheBar();
    void settersNeitherRepaintNorRelayout();
    void frameTellsThePlaceInTheRow_data();
    void frameTellsThePlaceInTheRow();
    void barWithoutParentIsARowOfItsOwn();
    void tallBarHasAGroundOfItsOwn_data();
    void tallBarHasAGroundOfItsOwn();
    void groupCaptionStandsAtTheBottom();
    void groupCaptionIsCentredInTheBar();
    void partialRepaintsAddUpToTheWhole();
    void fixedWidthNarrowsTheCaptionArea();
    void lastBarCentresItsCaptionUnderItsButtons();
    void lastBarReachesBehindAStack();
    void shrinkingToBlockHeightAsksOnceForANewLayout();
    void otherResizesAskForNothing_data();
    void otherResizesAskForNothing();
    void barMayDieWhileItsLayoutIsPending();
    void contextMenuIsSwallowed();
    void clearingUncheckesAndForgets();
};

void CToolBarTest::newBarIsPlain()
{
    const CToolBar bar(CToolBar::ToolBarModeBlock, nullptr);
    QCOMPARE(bar.m_eMode, CToolBar::ToolBarModeBlock);
    QVERIFY(!bar.m_bGeometryPending);
    QVERIFY(!bar.m_pExtensionBtn);
    QVERIFY(bar.m_listToolBtn.isEmpty());
    QCOMPARE(bar.m_nFixedWidthForPainting, -1);
    QVERIFY(!bar.IsSplitLastWordMode());
    QVERIFY(!CToolBar::m_pBtnChecked);
    QCOMPARE(static_cast<int>(CToolBar::ToolBarModeSlim), 0);
    QCOMPARE(static_cast<int>(CToolBar::ToolBarModeBlock), 1);
}

void CToolBarTest::modeGivesTheHeight_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("height");
    QTest::newRow("slim") << 0 << 41;
    QTest::newRow("block") << 1 << 78;
    QTest::newRow("unknown") << 7 << 41;
}

void CToolBarTest::modeGivesTheHeight()
{
    QFETCH(int, mode);
    CToolBar bar(static_cast<CToolBar::EnumToolBarMode>(mode), nullptr);
    bar.addAction(QStringLiteral("Undo"));
    QTEST(bar.sizeHint().height(), "height");
    QCOMPARE(bar.sizeHint().width(), bar.QToolBar::sizeHint().width());
}

void CToolBarTest::barBringsItsOwnStyle()
{
    const CToolBar one(CToolBar::ToolBarModeSlim, nullptr);
    const CToolBar two(CToolBar::ToolBarModeSlim, nullptr);
    QVERIFY(qobject_cast<CToolBarStyle*>(one.style()));
    QVERIFY(one.style() != two.style());
    QCOMPARE(one.style()->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, &one), 4);
}

void CToolBarTest::styleGoesWithTheBar()
{
    auto* bar = new CToolBarItem(QStringLiteral("Edit"), nullptr);
    bar->addWidget(new CToolButton(bar));
    const QPointer<QStyle> style = bar->m_pStyle;
    QVERIFY(style);
    bar->show();
    delete bar;
    QTRY_VERIFY(style.isNull());
}

void CToolBarTest::settersNeitherRepaintNorRelayout()
{
    class Bar : public CToolBar
    {
    public:
        using CToolBar::CToolBar;
        bool event(QEvent* event) override
        {
            m_events += event->type() == QEvent::Paint || event->type() == QEvent::LayoutRequest ||
                                event->type() == QEvent::UpdateRequest
                            ? 1
                            : 0;
            return CToolBar::event(event);
        }
        int m_events = 0;
    } bar(CToolBar::ToolBarModeBlock, nullptr);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QCoreApplication::processEvents();
    bar.m_events = 0;
    bar.SetFixedWidthForPainting(30);
    bar.SetSplitLastWordMode(true);
    QCoreApplication::processEvents();
    QCOMPARE(bar.m_events, 0);
    QCOMPARE(bar.m_nFixedWidthForPainting, 30);
    QVERIFY(bar.IsSplitLastWordMode());
    bar.SetSplitLastWordMode(false);
    QVERIFY(!bar.IsSplitLastWordMode());
}

void CToolBarTest::frameTellsThePlaceInTheRow_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("left");
    QTest::addColumn<bool>("right");
    QTest::newRow("first") << 0 << false << true;
    QTest::newRow("middle") << 100 << true << true;
    QTest::newRow("last") << 200 << true << false;
    QTest::newRow("beyond the edge") << 201 << true << true;
    QTest::newRow("cut on the left") << -1 << true << true;
}

void CToolBarTest::frameTellsThePlaceInTheRow()
{
    QFETCH(int, x);
    QFETCH(bool, left);
    QFETCH(bool, right);
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setGeometry(x, 0, 100, 78);
    const QImage image = Painted::Of(bar, kGround);
    // The bottom line is there in all of them, from corner to corner.
    COMPARE_COLOR(image, 0, 77, kLine);
    COMPARE_COLOR(image, 50, 77, kLine);
    COMPARE_COLOR(image, 99, 77, kLine);
    // The separators end one above it: 76 is the last of them.
    const QColor leftColor = left ? QColor(255, 255, 255) : kGround;
    const QColor rightColor = right ? kLine : kGround;
    for (const int y : {0, 40, 76}) {
        COMPARE_COLOR(image, 0, y, leftColor);
        COMPARE_COLOR(image, 99, y, rightColor);
    }
    COMPARE_COLOR(image, 1, 40, kGround);
    COMPARE_COLOR(image, 98, 40, kGround);
    COMPARE_COLOR(image, 50, 76, kGround);
}

void CToolBarTest::barWithoutParentIsARowOfItsOwn()
{
    CToolBar bar(CToolBar::ToolBarModeBlock, nullptr);
    bar.setGeometry(30, 40, 100, 78);
    const QImage image = Painted::Of(bar, kGround);
    COMPARE_COLOR(image, 0, 40, kGround);
    COMPARE_COLOR(image, 99, 40, kGround);
    COMPARE_COLOR(image, 50, 77, kLine);
}

void CToolBarTest::tallBarHasAGroundOfItsOwn_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("filled");
    QTest::newRow("78") << 78 << false;
    QTest::newRow("80") << 80 << false;
    QTest::newRow("81") << 81 << true;
    QTest::newRow("120") << 120 << true;
}

void CToolBarTest::tallBarHasAGroundOfItsOwn()
{
    QFETCH(int, height);
    QFETCH(bool, filled);
    QWidget row;
    row.resize(300, height);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setGeometry(100, 0, 100, height);
    const QImage image = Painted::Of(bar, kGround);
    COMPARE_COLOR(image, 50, 5, filled ? kTallGround : kGround);
    COMPARE_COLOR(image, 50, height - 1, kLine);
    // A low bar's separators leave the bottom line alone, a tall one's are drawn over it.
    COMPARE_COLOR(image, 0, height - 1, filled ? QColor(255, 255, 255) : kLine);
    COMPARE_COLOR(image, 0, height - 2, QColor(255, 255, 255));
    COMPARE_COLOR(image, 99, height - 2, kLine);
}

void CToolBarTest::groupCaptionStandsAtTheBottom()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setGeometry(100, 0, 100, 78);
    const QImage without = Painted::Of(bar, kGround);
    bar.setProperty("GroupName", Painted::Blocks(2));
    const QImage with = Painted::Of(bar, kGround);
    const QRect changed = Painted::Difference(without, with);
    QVERIFY(!changed.isNull());
    QVERIFY2(QRect(1, 58, 98, 20).contains(changed), qPrintable(QString::number(changed.top())));
    QVERIFY(!Painted::Extent(with, kCaption, 0).isNull());
}

void CToolBarTest::groupCaptionIsCentredInTheBar()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setProperty("GroupName", Painted::Blocks(2));
    bar.setGeometry(100, 0, 100, 78);
    QVERIFY(std::abs(CaptionMiddle(bar) - 50) <= 1);
    bar.setGeometry(50, 0, 160, 78);
    QVERIFY(std::abs(CaptionMiddle(bar) - 80) <= 1);
}

void CToolBarTest::partialRepaintsAddUpToTheWhole()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setGeometry(100, 0, 60, 78);
    // The long one wraps and reaches far above its area.
    for (const QString& name : {QString(), Painted::Blocks(2), QStringLiteral("a group caption of far too many words"),
                                QString(40, QLatin1Char('W'))}) {
        bar.setProperty("GroupName", name);
        const QImage whole = Painted::Of(bar, kGround);
        QImage parts(bar.size(), QImage::Format_ARGB32_Premultiplied);
        parts.fill(kGround);
        for (int y = 0; y < bar.height(); y += 6) {
            for (int x = 0; x < bar.width(); x += 6) {
                bar.render(&parts, QPoint(x, y), QRegion(x, y, 6, 6), QWidget::RenderFlags());
            }
        }
        QCOMPARE(parts.convertToFormat(QImage::Format_RGB32), whole);
    }
}

void CToolBarTest::fixedWidthNarrowsTheCaptionArea()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setProperty("GroupName", Painted::Blocks(2));
    for (const int x : {100, 200}) { // the last bar as well
        bar.setGeometry(x, 0, 100, 78);
        bar.SetFixedWidthForPainting(60);
        QVERIFY(std::abs(CaptionMiddle(bar) - 31) <= 1);
        bar.SetFixedWidthForPainting(6000);
        QVERIFY(std::abs(CaptionMiddle(bar) - 50) <= 1);
    }
    bar.setGeometry(100, 0, 100, 78);
    bar.SetFixedWidthForPainting(-5);
    QVERIFY(std::abs(CaptionMiddle(bar) - 50) <= 1);
    bar.SetFixedWidthForPainting(0);
    QVERIFY(!Painted::Of(bar, kGround).isNull());
}

void CToolBarTest::lastBarCentresItsCaptionUnderItsButtons()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setProperty("GroupName", Painted::Blocks(2));
    bar.setGeometry(100, 0, 200, 78);
    CToolButton first(&bar);
    CToolButton second(&bar);
    bar.m_listToolBtn = {&second, &first};
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    first.setGeometry(5, 0, 40, 56);
    second.setGeometry(50, 0, 40, 56);
    first.show();
    second.show();
    // From 1, as wide as 90 + 4.
    QVERIFY(std::abs(CaptionMiddle(bar) - (1 + 94 / 2)) <= 1);
    second.hide();
    QVERIFY(std::abs(CaptionMiddle(bar) - (1 + 49 / 2)) <= 1);
    bar.setGeometry(99, 0, 200, 78);
    QVERIFY(std::abs(CaptionMiddle(bar) - 100) <= 1);
}

void CToolBarTest::lastBarReachesBehindAStack()
{
    QWidget row;
    row.resize(300, 78);
    CToolBar bar(CToolBar::ToolBarModeBlock, &row);
    bar.setProperty("GroupName", Painted::Blocks(2));
    bar.setGeometry(100, 0, 200, 78);
    QWidget stack(&bar);
    CToolButtonVertical button(&stack);
    bar.m_listToolBtn = {&button};
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    stack.setGeometry(60, 0, 80, 56);
    button.setGeometry(0, 0, 80, 24);
    stack.show();
    QVERIFY(std::abs(CaptionMiddle(bar) - (1 + 144 / 2)) <= 1);
}

void CToolBarTest::shrinkingToBlockHeightAsksOnceForANewLayout()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* bar = new CToolBar(CToolBar::ToolBarModeBlock, nullptr);
    layout->addWidget(bar);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    class Requests : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_count += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return false;
        }
        int m_count = 0;
    } requests;
    bar->resize(100, 100);
    QCoreApplication::processEvents();
    window.installEventFilter(&requests);
    bar->resize(100, 78);
    QVERIFY(bar->m_bGeometryPending);
    bar->resize(100, 100);
    bar->resize(100, 78);
    QCOMPARE(requests.m_count, 0);
    QTRY_VERIFY(!bar->m_bGeometryPending);
    QTRY_COMPARE(requests.m_count, 1);
}

void CToolBarTest::otherResizesAskForNothing_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("growing") << 70 << 78;
    QTest::newRow("same") << 78 << 78;
    QTest::newRow("to another height") << 100 << 79;
    QTest::newRow("below") << 78 << 77;
}

void CToolBarTest::otherResizesAskForNothing()
{
    QFETCH(int, before);
    QFETCH(int, after);
    CToolBar bar(CToolBar::ToolBarModeSlim, nullptr);
    QResizeEvent event(QSize(100, after), QSize(100, before));
    QCoreApplication::sendEvent(&bar, &event);
    QVERIFY(!bar.m_bGeometryPending);
    QResizeEvent shrink(QSize(100, 78), QSize(100, 79));
    QCoreApplication::sendEvent(&bar, &shrink);
    QVERIFY(bar.m_bGeometryPending);
}

void CToolBarTest::barMayDieWhileItsLayoutIsPending()
{
    auto* bar = new CToolBar(CToolBar::ToolBarModeBlock, nullptr);
    QResizeEvent shrink(QSize(100, 78), QSize(100, 79));
    QCoreApplication::sendEvent(bar, &shrink);
    QVERIFY(bar->m_bGeometryPending);
    delete bar;
    bool over = false;
    QTimer::singleShot(80, this, [&over] { over = true; });
    QTRY_VERIFY(over);
}

void CToolBarTest::contextMenuIsSwallowed()
{
    QMainWindow window;
    auto* bar = new CToolBar(CToolBar::ToolBarModeBlock, &window);
    window.addToolBar(bar);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), bar->mapToGlobal(QPoint(5, 5)));
    event.ignore();
    QVERIFY(QCoreApplication::sendEvent(bar, &event));
    QVERIFY(event.isAccepted());
    QVERIFY(!QApplication::activePopupWidget());
}

void CToolBarTest::clearingUncheckesAndForgets()
{
    CToolBar::ClearCheckedBtn();
    QVERIFY(!CToolBar::m_pBtnChecked);
    CToolButton button(nullptr);
    button.setCheckable(true);
    button.setChecked(true);
    CToolBar::m_pBtnChecked = &button;
    CToolBar::ClearCheckedBtn();
    QVERIFY(!button.isChecked());
    QVERIFY(!CToolBar::m_pBtnChecked);
}

CUSTOMCONTROLS_TEST_MAIN(CToolBarTest)

#include "CToolBarTest.moc"

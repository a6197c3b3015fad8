#include <CustomControls/frameless/PureQtFramelessWindow.h>

#include <tests/support/TestMain.h>

#include <QSignalSpy>

namespace {

// Mouse events of its own making: the window's drag reads the event's global position, whatever the pointer does.
void SendMouse(QWidget* window, QEvent::Type type, const QPoint& local, const QPoint& global,
               Qt::MouseButton button = Qt::LeftButton)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent event(type, local, global, type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace

class PureQtFramelessWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWindowHasItsFlagsAndAttributes();
    void eachPointLiesInItsZone_data();
    void eachPointLiesInItsZone();
    void aMaximisedWindowHasTitleBarsOnly();
    void eachEdgeResizesItsOwnWay_data();
    void eachEdgeResizesItsOwnWay();
    void theMinimumIsOnePixelLargerAtTheLeftAndTop_data();
    void theMinimumIsOnePixelLargerAtTheLeftAndTop();
    void aDragOfTheTitleBarMovesTheWindow();
    void aMaximisedWindowAsksAtEachMove();
    void aPressOfAnotherButtonDragsNothing();
    void eachZoneHasItsCursor_data();
    void eachZoneHasItsCursor();
    void leavingRestoresTheCursorAlsoInADrag();
    void theCursorStaysDuringADrag();
    void doubleClickOnAnAddedBarIsReportedAndSwallowed();
    void doubleClickOnABarOfSetTitleBarIsNotReported();
    void escapeInFullScreenAsksForTheNormalState();
    void addingABarTwiceLeavesOneEntry();
    void removingTakesABarBackHoweverItWasGiven();
    void clearingTakesAllBarsBack();
    void deletedBarsAreForgotten();
    void theWindowMayDieBeforeItsBars();
    void aBarThatWasTakenBackMayDieWithTheWindow();
    void aSlotMayDeleteTheWindowInADrag();
};

void PureQtFramelessWindowTest::aNewWindowHasItsFlagsAndAttributes()
{
    PureQtFramelessWindow window;
    QCOMPARE(int(window.windowFlags() & ~Qt::Window), 0x800F800 & ~int(Qt::Window) & int(window.windowFlags()));
    for (Qt::WindowType flag : {Qt::FramelessWindowHint, Qt::WindowSystemMenuHint, Qt::WindowMinimizeButtonHint,
                                Qt::WindowMaximizeButtonHint, Qt::WindowCloseButtonHint}) {
        QVERIFY(window.windowFlags().testFlag(flag));
    }
    QVERIFY(!window.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!window.testAttribute(Qt::WA_NoSystemBackground));
    QVERIFY(window.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(window.m_iBorderWidth, 8);
    QCOMPARE(int(window.m_eDragState), 0);
    QVERIFY(!window.m_bDragging);
    QVERIFY(!window.m_bOverrideCursor);
}

void PureQtFramelessWindowTest::eachPointLiesInItsZone_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    // 400 by 300, a title bar over the whole width and 40 high: a resize zone wins over it.
    QTest::newRow("top left") << QPoint(8, 8) << 2;
    QTest::newRow("top right") << QPoint(392, 8) << 3;
    QTest::newRow("bottom left") << QPoint(8, 292) << 4;
    QTest::newRow("bottom right") << QPoint(392, 292) << 5;
    QTest::newRow("left") << QPoint(8, 150) << 6;
    QTest::newRow("right") << QPoint(392, 150) << 7;
    QTest::newRow("top") << QPoint(200, 8) << 8;
    QTest::newRow("bottom") << QPoint(200, 292) << 9;
    QTest::newRow("title bar") << QPoint(9, 9) << 1;
    QTest::newRow("title bar, last row") << QPoint(200, 39) << 1;
    QTest::newRow("inside") << QPoint(200, 40) << 0;
    QTest::newRow("inside, beside the right zone") << QPoint(391, 150) << 0;
}

void PureQtFramelessWindowTest::eachPointLiesInItsZone()
{
    QFETCH(QPoint, point);
    QFETCH(int, zone);
    PureQtFramelessWindow window;
    window.resize(400, 300);
    QWidget bar(&window);
    bar.setGeometry(0, 0, 400, 40);
    window.addTitleBar(&bar);
    window.show();
    QCOMPARE(int(window.getWindowState(point)), zone);
}

void PureQtFramelessWindowTest::aMaximisedWindowHasTitleBarsOnly()
{
    PureQtFramelessWindow window;
    QWidget bar(&window);
    window.addTitleBar(&bar);
    window.showMaximized();
    bar.setGeometry(0, 0, 400, 40);
    QCOMPARE(window.getWindowState(QPoint(2, 2)), PureQtFramelessWindow::TitleBar);
    QCOMPARE(window.getWindowState(QPoint(2, 200)), PureQtFramelessWindow::None);
    window.updateCursorShape(QPoint(2, 200));
    QVERIFY(!QGuiApplication::overrideCursor());
    bar.hide();
    QCOMPARE(window.getWindowState(QPoint(2, 2)), PureQtFramelessWindow::None);
}

void PureQtFramelessWindowTest::eachEdgeResizesItsOwnWay_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QRect>("after");
    // From (100, 100, 400, 300), dragged by (10, 20).
    QTest::newRow("top left") << QPoint(2, 2) << QRect(110, 120, 390, 280);
    QTest::newRow("top right") << QPoint(398, 2) << QRect(100, 120, 410, 280);
    QTest::newRow("bottom left") << QPoint(2, 298) << QRect(110, 100, 390, 320);
    QTest::newRow("bottom right") << QPoint(398, 298) << QRect(100, 100, 410, 320);
    QTest::newRow("left") << QPoint(2, 150) << QRect(110, 100, 390, 300);
    QTest::newRow("right") << QPoint(398, 150) << QRect(100, 100, 410, 300);
    QTest::newRow("top") << QPoint(200, 2) << QRect(100, 120, 400, 280);
    QTest::newRow("bottom") << QPoint(200, 298) << QRect(100, 100, 400, 320);
}

void PureQtFramelessWindowTest::eachEdgeResizesItsOwnWay()
{
    QFETCH(QPoint, press);
    QFETCH(QRect, after);
    PureQtFramelessWindow window;
    window.setGeometry(100, 100, 400, 300);
    window.show();
    window.setGeometry(100, 100, 400, 300);
    const QPoint start(500, 500);
    SendMouse(&window, QEvent::MouseButtonPress, press, start);
    SendMouse(&window, QEvent::MouseMove, press, start + QPoint(10, 20));
    QCOMPARE(window.geometry(), after);
    QCOMPARE(window.m_ptDragStart, start + QPoint(10, 20));
    SendMouse(&window, QEvent::MouseButtonRelease, press, start + QPoint(10, 20));
    SendMouse(&window, QEvent::MouseMove, QPoint(200, 150), start + QPoint(50, 50));
    QCOMPARE(window.geometry(), after);
}

void PureQtFramelessWindowTest::theMinimumIsOnePixelLargerAtTheLeftAndTop_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QRect>("after");
    // From (100, 100, 400, 300) with a minimum of 300 by 200, each dragged far inwards.
    QTest::newRow("left") << int(PureQtFramelessWindow::Left) << QRect(QPoint(199, 100), QPoint(499, 399));
    QTest::newRow("right") << int(PureQtFramelessWindow::Right) << QRect(QPoint(100, 100), QPoint(399, 399));
    QTest::newRow("top") << int(PureQtFramelessWindow::Top) << QRect(QPoint(100, 199), QPoint(499, 399));
    QTest::newRow("bottom") << int(PureQtFramelessWindow::Bottom) << QRect(QPoint(100, 100), QPoint(499, 299));
    QTest::newRow("top left") << int(PureQtFramelessWindow::TopLeft) << QRect(QPoint(199, 199), QPoint(499, 399));
    QTest::newRow("top right") << int(PureQtFramelessWindow::TopRight) << QRect(QPoint(100, 199), QPoint(399, 399));
    QTest::newRow("bottom left") << int(PureQtFramelessWindow::BottomLeft) << QRect(QPoint(199, 100), QPoint(499, 299));
    QTest::newRow("bottom right") << int(PureQtFramelessWindow::BottomRight)
                                  << QRect(QPoint(100, 100), QPoint(399, 299));
}

void PureQtFramelessWindowTest::theMinimumIsOnePixelLargerAtTheLeftAndTop()
{
    QFETCH(int, state);
    QFETCH(QRect, after);
    PureQtFramelessWindow window;
    window.setMinimumSize(300, 200);
    window.setGeometry(100, 100, 400, 300);
    window.m_eDragState = PureQtFramelessWindow::WindowState(state);
    window.m_ptDragStart = QPoint(0, 0);
    const bool fromLeft = after.left() != 100;
    const bool fromTop = after.top() != 100;
    QCOMPARE(window.getResizeGeometry(QPoint(fromLeft ? 350 : -350, fromTop ? 250 : -250)), after);
}

void PureQtFramelessWindowTest::aDragOfTheTitleBarMovesTheWindow()
{
    PureQtFramelessWindow window;
    window.setGeometry(100, 100, 400, 300);
    QWidget bar(&window);
    bar.setGeometry(0, 0, 400, 40);
    window.addTitleBar(&bar);
    window.show();
    const QPoint before = window.pos();
    QSignalSpy spy(&window, &PureQtFramelessWindow::windowStateChange);
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(200, 20), QPoint(300, 120));
    SendMouse(&window, QEvent::MouseMove, QPoint(200, 20), QPoint(330, 160));
    QCOMPARE(window.pos(), before + QPoint(30, 40));
    SendMouse(&window, QEvent::MouseMove, QPoint(200, 20), QPoint(331, 161));
    QCOMPARE(window.pos(), before + QPoint(31, 41));
    QCOMPARE(spy.count(), 0);
}

void PureQtFramelessWindowTest::aMaximisedWindowAsksAtEachMove()
{
    PureQtFramelessWindow window;
    QWidget bar(&window);
    window.addTitleBar(&bar);
    window.showMaximized();
    bar.setGeometry(0, 0, 400, 40);
    QSignalSpy spy(&window, &PureQtFramelessWindow::windowStateChange);
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(200, 20), QPoint(200, 20));
    for (int step = 1; step <= 2; ++step) {
        window.setWindowState(Qt::WindowMaximized); // some platforms end the state with the first move
        const QPoint before = window.pos();
        SendMouse(&window, QEvent::MouseMove, QPoint(200, 20), QPoint(200, 20) + step * QPoint(5, 5));
        QCOMPARE(spy.count(), step);
        QCOMPARE(spy.last().first().toBool(), false);
        if (QGuiApplication::platformName() == QLatin1String("offscreen")) { // a real system holds a maximised window
            QCOMPARE(window.pos(), before + QPoint(5, 5));
        }
    }
}

void PureQtFramelessWindowTest::aPressOfAnotherButtonDragsNothing()
{
    PureQtFramelessWindow window;
    window.setGeometry(100, 100, 400, 300);
    window.show();
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(2, 2), QPoint(102, 102), Qt::RightButton);
    QVERIFY(!window.m_bDragging);
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(200, 150), QPoint(300, 250));
    QVERIFY(!window.m_bDragging); // no zone there
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(2, 2), QPoint(102, 102));
    QVERIFY(window.m_bDragging);
    SendMouse(&window, QEvent::MouseButtonRelease, QPoint(2, 2), QPoint(102, 102), Qt::RightButton);
    QVERIFY(window.m_bDragging);
    SendMouse(&window, QEvent::MouseButtonRelease, QPoint(2, 2), QPoint(102, 102));
    QVERIFY(!window.m_bDragging);
}

void PureQtFramelessWindowTest::eachZoneHasItsCursor_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("shape");
    QTest::newRow("top left") << QPoint(2, 2) << int(Qt::SizeFDiagCursor);
    QTest::newRow("top right") << QPoint(398, 2) << int(Qt::SizeBDiagCursor);
    QTest::newRow("bottom left") << QPoint(2, 298) << int(Qt::SizeBDiagCursor);
    QTest::newRow("bottom right") << QPoint(398, 298) << int(Qt::SizeFDiagCursor);
    QTest::newRow("left") << QPoint(2, 150) << int(Qt::SizeHorCursor);
    QTest::newRow("right") << QPoint(398, 150) << int(Qt::SizeHorCursor);
    QTest::newRow("top") << QPoint(200, 2) << int(Qt::SizeVerCursor);
    QTest::newRow("bottom") << QPoint(200, 298) << int(Qt::SizeVerCursor);
    QTest::newRow("title bar") << QPoint(200, 20) << -1;
    QTest::newRow("inside") << QPoint(200, 150) << -1;
}

void PureQtFramelessWindowTest::eachZoneHasItsCursor()
{
    QFETCH(QPoint, point);
    QFETCH(int, shape);
    PureQtFramelessWindow window;
    window.resize(400, 300);
    QWidget bar(&window);
    bar.setGeometry(0, 0, 400, 40);
    window.addTitleBar(&bar);
    window.show();
    window.updateCursorShape(QPoint(2, 2)); // a cursor held before is popped, not piled up
    SendMouse(&window, QEvent::MouseMove, point, point, Qt::NoButton);
    QCOMPARE(QGuiApplication::overrideCursor() ? int(QGuiApplication::overrideCursor()->shape()) : -1, shape);
    QCOMPARE(window.m_bOverrideCursor, shape >= 0);
    window.restoreCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void PureQtFramelessWindowTest::leavingRestoresTheCursorAlsoInADrag()
{
    PureQtFramelessWindow window;
    window.resize(400, 300);
    window.show();
    SendMouse(&window, QEvent::MouseMove, QPoint(2, 150), QPoint(2, 150), Qt::NoButton);
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(2, 150), QPoint(2, 150));
    QVERIFY(QGuiApplication::overrideCursor());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leave);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(window.m_bDragging);
}

void PureQtFramelessWindowTest::theCursorStaysDuringADrag()
{
    PureQtFramelessWindow window;
    window.setGeometry(100, 100, 400, 300);
    window.show();
    SendMouse(&window, QEvent::MouseMove, QPoint(2, 150), QPoint(102, 250), Qt::NoButton);
    SendMouse(&window, QEvent::MouseButtonPress, QPoint(2, 150), QPoint(102, 250));
    SendMouse(&window, QEvent::MouseMove, QPoint(200, 150), QPoint(90, 250));
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
    SendMouse(&window, QEvent::MouseButtonRelease, QPoint(200, 150), QPoint(90, 250));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void PureQtFramelessWindowTest::doubleClickOnAnAddedBarIsReportedAndSwallowed()
{
    class ClickCounter : public QWidget
    {
    public:
        using QWidget::QWidget;
        int doubleClicks = 0;

    protected:
        void mouseDoubleClickEvent(QMouseEvent*) override { ++doubleClicks; }
    };
    PureQtFramelessWindow window;
    ClickCounter bar(&window);
    window.addTitleBar(&bar);
    QSignalSpy spy(&window, &PureQtFramelessWindow::titleDblClick);
    SendMouse(&bar, QEvent::MouseButtonDblClick, QPoint(2, 2), QPoint(2, 2));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(bar.doubleClicks, 0);
}

void PureQtFramelessWindowTest::doubleClickOnABarOfSetTitleBarIsNotReported()
{
    PureQtFramelessWindow window;
    QWidget bar(&window);
    window.setTitleBar(&bar);
    QSignalSpy spy(&window, &PureQtFramelessWindow::titleDblClick);
    SendMouse(&bar, QEvent::MouseButtonDblClick, QPoint(2, 2), QPoint(2, 2));
    QCOMPARE(spy.count(), 0);
    QVERIFY(window.m_listTitleBars.isEmpty());
}

void PureQtFramelessWindowTest::escapeInFullScreenAsksForTheNormalState()
{
    PureQtFramelessWindow window;
    QSignalSpy spy(&window, &PureQtFramelessWindow::windowStateChange);
    window.show();
    QTest::keyRelease(&window, Qt::Key_Escape);
    QCOMPARE(spy.count(), 0);
    window.showFullScreen();
    QTest::keyRelease(&window, Qt::Key_A);
    QCOMPARE(spy.count(), 0);
    QTest::keyRelease(&window, Qt::Key_Escape);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), false);
    QVERIFY(window.isFullScreen());
}

void PureQtFramelessWindowTest::addingABarTwiceLeavesOneEntry()
{
    PureQtFramelessWindow window;
    QWidget bar(&window);
    window.addTitleBar(nullptr);
    window.addTitleBar(&bar);
    window.addTitleBar(&bar);
    QCOMPARE(window.m_listTitleBars, QList<QWidget*>{&bar});
}

void PureQtFramelessWindowTest::removingTakesABarBackHoweverItWasGiven()
{
    PureQtFramelessWindow window;
    QWidget added(&window);
    QWidget set(&window);
    window.addTitleBar(&added);
    window.setTitleBar(&set);
    window.removeTitleBar(nullptr);
    window.removeTitleBar(&added);
    QVERIFY(window.m_listTitleBars.isEmpty());
    QCOMPARE(window.m_pTitleBar, &set);
    window.removeTitleBar(&set);
    QVERIFY(!window.m_pTitleBar);
    window.removeTitleBar(&set);
    QSignalSpy spy(&window, &PureQtFramelessWindow::titleDblClick);
    SendMouse(&added, QEvent::MouseButtonDblClick, QPoint(2, 2), QPoint(2, 2));
    QCOMPARE(spy.count(), 0);
}

void PureQtFramelessWindowTest::clearingTakesAllBarsBack()
{
    PureQtFramelessWindow window;
    QWidget first(&window);
    QWidget second(&window);
    window.addTitleBar(&first);
    window.addTitleBar(&second);
    window.setTitleBar(&second);
    window.clearTitleBars();
    QVERIFY(window.m_listTitleBars.isEmpty());
    QVERIFY(!window.m_pTitleBar);
    window.clearTitleBars();
}

void PureQtFramelessWindowTest::deletedBarsAreForgotten()
{
    PureQtFramelessWindow window;
    window.resize(400, 300);
    auto* added = new QWidget(&window);
    auto* set = new QWidget(&window);
    window.addTitleBar(added);
    window.setTitleBar(set);
    delete added;
    delete set;
    QVERIFY(window.m_listTitleBars.isEmpty());
    QVERIFY(!window.m_pTitleBar);
    QCOMPARE(window.getWindowState(QPoint(100, 100)), PureQtFramelessWindow::None);
    window.clearTitleBars();
}

void PureQtFramelessWindowTest::theWindowMayDieBeforeItsBars()
{
    QWidget outside;
    {
        PureQtFramelessWindow window;
        auto* inside = new QWidget(&window);
        window.addTitleBar(inside);
        window.addTitleBar(&outside);
        window.setTitleBar(inside);
        window.updateCursorShape(QPoint(0, 0));
    }
    QVERIFY(!QGuiApplication::overrideCursor());
    SendMouse(&outside, QEvent::MouseButtonDblClick, QPoint(2, 2), QPoint(2, 2));
}

void PureQtFramelessWindowTest::aBarThatWasTakenBackMayDieWithTheWindow()
{
    auto* window = new PureQtFramelessWindow;
    auto* first = new QWidget(window);
    auto* second = new QWidget(window);
    auto* third = new QWidget(window);
    window->setTitleBar(first);
    window->setTitleBar(second);
    window->addTitleBar(second);
    window->addTitleBar(third);
    window->removeTitleBar(third);
    window->clearTitleBars();
    // As children they die when the window's own part is gone already: none may still be tied to it.
    for (QWidget* bar : {first, second, third}) {
        QVERIFY(!disconnect(bar, &QObject::destroyed, window, nullptr));
    }
    delete window;
}

void PureQtFramelessWindowTest::aSlotMayDeleteTheWindowInADrag()
{
    const QPointer<PureQtFramelessWindow> window(new PureQtFramelessWindow);
    window->resize(400, 300);
    auto* bar = new QWidget(window);
    bar->setGeometry(0, 0, 400, 40);
    window->addTitleBar(bar);
    window->showMaximized();
    QTRY_VERIFY(window->isMaximized());
    connect(window, &PureQtFramelessWindow::windowStateChange, this, [window] { delete window; });
    window->m_bDragging = true;
    window->m_eDragState = PureQtFramelessWindow::TitleBar;
    QMouseEvent move(QEvent::MouseMove, QPointF(100, 20), QPointF(100, 20), Qt::NoButton, Qt::LeftButton, {});
    window->mouseMoveEvent(&move);
    QVERIFY(!window);
}

CUSTOMCONTROLS_TEST_MAIN(PureQtFramelessWindowTest)
#include "PureQtFramelessWindowTest.moc"

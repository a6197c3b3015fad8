#include <CustomControls/frameless/FramelessMainWindow.h>

#include <tests/support/TestMain.h>

#include <QSignalSpy>

class FramelessMainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWindowHasNoSystemFrame();
    void fieldsStartAsTheyShould();
    void settersStoreOnly();
    void everyStateButTheNormalOneCountsAsMaximised();
    void aStateChangeOverwritesTheHostsFlags();
    void aStateChangeOfAnotherObjectIsIgnored();
    void anEarlierTitleBarKeepsItsFilter();
    void aTitleBarMayBeDeletedWhileSet();
    void showingSetsMappedFirst();
    void aForeignMessageIsLeftAlone();
    void titleDblClickIsNeverEmitted();
    void aPressTellsTheHostWhereTheBarIsFree();
    void aSlotMayDeleteTheWindow();
    void aNewHandleKeepsTheBarWorking();
};

void FramelessMainWindowTest::aNewWindowHasNoSystemFrame()
{
    FramelessMainWindow window;
    const Qt::WindowFlags flags = window.windowFlags();
    QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
    QVERIFY(flags.testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowCloseButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowSystemMenuHint));
    QVERIFY(window.testAttribute(Qt::WA_WState_Created));
}

void FramelessMainWindowTest::fieldsStartAsTheyShould()
{
    FramelessMainWindow window;
    QVERIFY(window.moveEnable);
    QVERIFY(window.resizeEnable);
    QVERIFY(!window.titleBar);
    QVERIFY(!window.mousePressed);
    QCOMPARE(window.mousePoint, QPoint(0, 0));
    QVERIFY(window.mouseRect.isNull());
    QCOMPARE(window.pressedArea, QList<bool>(8, false));
    QCOMPARE(window.pressedRect, QList<QRect>(8));
    QCOMPARE(window.pressedCount, 0);
    QVERIFY(!window.flags.testFlag(Qt::FramelessWindowHint));
}

void FramelessMainWindowTest::settersStoreOnly()
{
    FramelessMainWindow window;
    window.setPadding(17);
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    QCOMPARE(window.padding, 17);
    QVERIFY(!window.moveEnable);
    QVERIFY(!window.resizeEnable);
}

void FramelessMainWindowTest::everyStateButTheNormalOneCountsAsMaximised()
{
    FramelessMainWindow window;
    window.show();
    // A system may report one change several times, so only the newest report counts.
    for (const auto& [state, max] : {std::pair(Qt::WindowMaximized, true), std::pair(Qt::WindowNoState, false),
                                     std::pair(Qt::WindowFullScreen, true), std::pair(Qt::WindowMinimized, true)}) {
        QSignalSpy spy(&window, &FramelessMainWindow::windowStateChange);
        window.setWindowState(state);
        QVERIFY(!spy.isEmpty());
        QCOMPARE(spy.last().first().toBool(), max);
    }
}

void FramelessMainWindowTest::aStateChangeOverwritesTheHostsFlags()
{
    FramelessMainWindow window;
    window.setMoveEnable(false);
    window.setResizeEnable(false);
    window.setWindowState(Qt::WindowMaximized);
    QVERIFY(!window.resizeEnable);
    window.setWindowState(Qt::WindowNoState);
    QVERIFY(window.moveEnable);
    QVERIFY(window.resizeEnable);
}

void FramelessMainWindowTest::aStateChangeOfAnotherObjectIsIgnored()
{
    FramelessMainWindow window;
    QWidget bar(&window);
    window.setTitleBar(&bar);
    QSignalSpy spy(&window, &FramelessMainWindow::windowStateChange);
    QEvent event(QEvent::WindowStateChange);
    QCoreApplication::sendEvent(&bar, &event);
    QCOMPARE(spy.count(), 0);
}

void FramelessMainWindowTest::anEarlierTitleBarKeepsItsFilter()
{
    class Watching : public FramelessMainWindow
    {
    public:
        QList<QObject*> seen;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::User) {
                seen.append(watched);
            }
            return FramelessMainWindow::eventFilter(watched, event);
        }
    };
    Watching window;
    QWidget first(&window);
    QWidget second(&window);
    window.setTitleBar(&first);
    window.setTitleBar(&second);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&first, &event);
    QCoreApplication::sendEvent(&second, &event);
    QCOMPARE(window.seen, (QList<QObject*>{&first, &second}));
    QCOMPARE(window.titleBar, &second);
}

void FramelessMainWindowTest::aTitleBarMayBeDeletedWhileSet()
{
    FramelessMainWindow window;
    auto* bar = new QWidget(&window);
    bar->setGeometry(0, 0, 200, 30);
    window.setTitleBar(bar);
    window.show();
    delete bar;
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(50, 10));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(50, 10));
    window.setTitleBar(nullptr);
    QVERIFY(!window.titleBar);
}

void FramelessMainWindowTest::showingSetsMappedFirst()
{
    FramelessMainWindow window;
    QVERIFY(!window.testAttribute(Qt::WA_Mapped));
    window.show();
    QVERIFY(window.testAttribute(Qt::WA_Mapped));
}

void FramelessMainWindowTest::aForeignMessageIsLeftAlone()
{
    FramelessMainWindow window;
    qintptr result = 42;
    int message = 0;
    QVERIFY(!window.PP("NSEvent", &message, &result));
    QVERIFY(!window.PP("xcb_generic_event_t", &message, &result));
    QVERIFY(!window.PP(QByteArray(), nullptr, nullptr));
    QVERIFY(!window.PP("windows_generic_MSG", nullptr, &result));
    QCOMPARE(result, qintptr(42));
}

void FramelessMainWindowTest::titleDblClickIsNeverEmitted()
{
    FramelessMainWindow window;
    QWidget bar(&window);
    bar.setGeometry(0, 0, 300, 30);
    window.setTitleBar(&bar);
    window.resize(300, 200);
    window.show();
    QSignalSpy spy(&window, &FramelessMainWindow::titleDblClick);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(100, 15));
    QCOMPARE(spy.count(), 0);
}

// What follows goes through the input of the toolkit, which Windows never asks for the frame.
#ifdef Q_OS_WIN
#define SKIP_ON_WINDOWS QSKIP("Windows asks for the frame by messages: NativeFrameTest")
#else
#define SKIP_ON_WINDOWS
#endif

void FramelessMainWindowTest::aPressTellsTheHostWhereTheBarIsFree()
{
    SKIP_ON_WINDOWS;
    FramelessMainWindow window;
    QWidget bar(&window);
    bar.setGeometry(0, 0, 300, 30);
    QWidget button(&bar);
    button.setGeometry(200, 5, 40, 20);
    window.setTitleBar(&bar);
    window.resize(300, 200);
    window.show();
    QSignalSpy pressed(&window, &FramelessMainWindow::SignalTitleBarMousePressed);
    const auto click = [&window](const QPoint& point, Qt::MouseButton mouseButton = Qt::LeftButton) {
        QTest::mousePress(window.windowHandle(), mouseButton, {}, point);
        QTest::mouseRelease(window.windowHandle(), mouseButton, {}, point);
    };
    click(QPoint(210, 15));
    click(QPoint(100, 100));
    click(QPoint(100, 15), Qt::RightButton);
    QCOMPARE(pressed.count(), 0);
    click(QPoint(100, 15));
    QCOMPARE(pressed.count(), 1);
    button.hide();
    click(QPoint(210, 15));
    QCOMPARE(pressed.count(), 2);
}

void FramelessMainWindowTest::aSlotMayDeleteTheWindow()
{
    SKIP_ON_WINDOWS;
    auto* window = new FramelessMainWindow;
    auto* bar = new QWidget(window);
    bar->setGeometry(0, 0, 300, 30);
    window->setTitleBar(bar);
    window->resize(300, 200);
    window->show();
    const QPointer<FramelessMainWindow> watched(window);
    connect(window, &FramelessMainWindow::SignalTitleBarMousePressed, this, [window] { delete window; });
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(100, 15), QPointF(100, 15), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window->windowHandle(), &press);
    QVERIFY(!watched);
}

void FramelessMainWindowTest::aNewHandleKeepsTheBarWorking()
{
    SKIP_ON_WINDOWS;
    FramelessMainWindow window;
    QWidget bar(&window);
    bar.setGeometry(0, 0, 300, 30);
    window.setTitleBar(&bar);
    window.resize(300, 200);
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.show();
    QSignalSpy pressed(&window, &FramelessMainWindow::SignalTitleBarMousePressed);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(100, 15));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(100, 15));
    QCOMPARE(pressed.count(), 1);
}

CUSTOMCONTROLS_TEST_MAIN(FramelessMainWindowTest)
#include "FramelessMainWindowTest.moc"

#include <CustomControls/frameless/FramelessDialog.h>
#include <CustomControls/frameless/FramelessMainWindow.h>

#include <tests/support/TestMain.h>

#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

#include <windows.h>

namespace {

HWND HandleOf(QWidget& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

LRESULT Send(QWidget& window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return SendMessageW(HandleOf(window), message, wParam, lParam);
}

// Shows the window where the points of these tests count on it: 400 by 300.
bool ShowInPlace(QWidget& window)
{
    window.setGeometry(200, 200, 400, 300);
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

// A title bar with a button around (120, 20).
class BarWithButton : public QWidget
{
public:
    explicit BarWithButton(QWidget& window)
        : QWidget(&window)
        , button(this)
    {
        setGeometry(0, 0, 400, 40);
        button.setGeometry(100, 10, 60, 20);
    }

    QPushButton button;
};

void PutCursor(const QWidget& window, const QPoint& point)
{
    const QPoint global = window.mapToGlobal(point);
    QCursor::setPos(global);
    QTRY_COMPARE(QCursor::pos(), global);
}

QColor PixelOf(QWidget& window, const QPoint& point)
{
    const HDC dc = GetWindowDC(HandleOf(window));
    const COLORREF colour = GetPixel(dc, point.x(), point.y());
    ReleaseDC(HandleOf(window), dc);
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

// The door of a window, as the toolkit calls it.
template <typename Window>
bool Feed(Window& window, UINT number, qintptr* result, WPARAM wParam = 0)
{
    MSG message = {};
    message.hwnd = HandleOf(window);
    message.message = number;
    message.wParam = wParam;
    return window.nativeEvent("windows_generic_MSG", &message, result);
}

} // namespace

/** The native messages of both twins, sent to real windows. */
class NativeFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowHasTheStylesThatSnappingNeeds();
    void theClientAreaCoversTheWholeWindow();
    void eachZoneAnswersTheHitTest_data();
    void eachZoneAnswersTheHitTest();
    void theHitTestTakesTheCursorAndNotTheMessage();
    void aVisibleButtonOnTheTitleBarStaysClient();
    void aHiddenButtonCountsAsTitleBar();
    void withoutTitleBarOnlyTheEdgesAnswer();
    void disabledResizeLeavesTheCornersAlone();
    void aPressOnTheTitleBarIsTold();
    void aPressOnAButtonIsNotTold();
    void aMaximisedWindowHasMarginsOfFive();
    void aRestoredWindowHasItsOldPlace();
    void movingIsToldByTheMainWindowAlone();
    void crossingScreensResizesTwiceAndKeepsTheFlagPerClass();
    void activationAndKeysAreLeftToTheToolkit_data();
    void activationAndKeysAreLeftToTheToolkit();
    void theFrameIsFilledInEachClassesColour();
    void aFrameUpdateWithARegionIsSafe();
    void everyMessageReturnsAsItShould_data();
    void everyMessageReturnsAsItShould();
    void foreignAndEmptyMessagesAreLeftAlone();
    void aTitleBarMayBeDeletedWhileSet();
    void aSlotMayDeleteTheWindow();
};

void NativeFrameTest::aWindowHasTheStylesThatSnappingNeeds()
{
    FramelessMainWindow window;
    FramelessDialog dialog;
    constexpr LONG kStyles = 0xC50000;
    QCOMPARE(GetWindowLongW(HandleOf(window), GWL_STYLE) & kStyles, kStyles);
    QCOMPARE(GetWindowLongW(HandleOf(dialog), GWL_STYLE) & kStyles, kStyles);
}

void NativeFrameTest::theClientAreaCoversTheWholeWindow()
{
    FramelessMainWindow window;
    window.setGeometry(100, 100, 400, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    RECT proposed = {10, 20, 410, 320};
    QCOMPARE(Send(window, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&proposed)), LRESULT(0));
    QCOMPARE(proposed.left, LONG(10));
    QCOMPARE(proposed.bottom, LONG(320));
}

void NativeFrameTest::eachZoneAnswersTheHitTest_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    QTest::newRow("top left") << QPoint(2, 2) << HTTOPLEFT;
    QTest::newRow("bottom left") << QPoint(2, 298) << HTBOTTOMLEFT;
    QTest::newRow("top right") << QPoint(398, 2) << HTTOPRIGHT;
    QTest::newRow("bottom right") << QPoint(398, 298) << HTBOTTOMRIGHT;
    QTest::newRow("left") << QPoint(2, 150) << HTLEFT;
    QTest::newRow("right") << QPoint(398, 150) << HTRIGHT;
    QTest::newRow("top") << QPoint(200, 2) << HTTOP;
    QTest::newRow("bottom") << QPoint(200, 298) << HTBOTTOM;
    QTest::newRow("caption") << QPoint(200, 20) << HTCAPTION;
}

void NativeFrameTest::eachZoneAnswersTheHitTest()
{
    QFETCH(QPoint, point);
    QFETCH(int, zone);
    FramelessMainWindow window;
    FramelessDialog dialog;
    for (QWidget* each : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&dialog)}) {
        QWidget bar(each);
        bar.setGeometry(0, 0, 400, 40);
        QMetaObject::invokeMethod(each, "setTitleBar", Q_ARG(QWidget*, &bar));
        QVERIFY(ShowInPlace(*each));
        PutCursor(*each, point);
        QCOMPARE(int(Send(*each, WM_NCHITTEST)), zone);
        each->hide();
    }
}

void NativeFrameTest::theHitTestTakesTheCursorAndNotTheMessage()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    PutCursor(window, QPoint(2, 150));
    const QPoint elsewhere = window.mapToGlobal(QPoint(398, 298));
    QCOMPARE(int(Send(window, WM_NCHITTEST, 0, MAKELPARAM(elsewhere.x(), elsewhere.y()))), HTLEFT);
}

void NativeFrameTest::aVisibleButtonOnTheTitleBarStaysClient()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    window.setTitleBar(&bar);
    QVERIFY(ShowInPlace(window));
    PutCursor(window, QPoint(120, 20));
    qintptr result = 7;
    QVERIFY(!Feed(window, WM_NCHITTEST, &result));
    QCOMPARE(result, qintptr(0));
}

void NativeFrameTest::aHiddenButtonCountsAsTitleBar()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    window.setTitleBar(&bar);
    bar.button.hide();
    QVERIFY(ShowInPlace(window));
    PutCursor(window, QPoint(120, 20));
    QCOMPARE(int(Send(window, WM_NCHITTEST)), HTCAPTION);
}

void NativeFrameTest::withoutTitleBarOnlyTheEdgesAnswer()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    qintptr result = 7;
    PutCursor(window, QPoint(200, 20));
    QVERIFY(!Feed(window, WM_NCHITTEST, &result));
    QCOMPARE(result, qintptr(0));
    PutCursor(window, QPoint(2, 150));
    QVERIFY(Feed(window, WM_NCHITTEST, &result));
    QCOMPARE(result, qintptr(HTLEFT));
}

void NativeFrameTest::disabledResizeLeavesTheCornersAlone()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    window.setResizeEnable(false);
    PutCursor(window, QPoint(2, 2));
    qintptr result = 7;
    QVERIFY(!Feed(window, WM_NCHITTEST, &result));
    QCOMPARE(result, qintptr(0));
}

void NativeFrameTest::aPressOnTheTitleBarIsTold()
{
    FramelessMainWindow window;
    FramelessDialog dialog;
    for (QWidget* each : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&dialog)}) {
        QWidget bar(each);
        bar.setGeometry(0, 0, 400, 40);
        QMetaObject::invokeMethod(each, "setTitleBar", Q_ARG(QWidget*, &bar));
        QVERIFY(ShowInPlace(*each));
        PutCursor(*each, QPoint(200, 20));
        QSignalSpy pressed(each, SIGNAL(SignalTitleBarMousePressed()));
        qintptr result = 0;
        // Not sent to the system's own procedure, whose move loop would wait for a real release.
        const bool handled = each == &window ? Feed(window, WM_NCLBUTTONDOWN, &result, HTCAPTION)
                                             : Feed(dialog, WM_NCLBUTTONDOWN, &result, HTCAPTION);
        QVERIFY(!handled);
        QCOMPARE(pressed.count(), 1);
        each->hide();
    }
}

void NativeFrameTest::aPressOnAButtonIsNotTold()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    QSignalSpy pressed(&window, &FramelessMainWindow::SignalTitleBarMousePressed);
    QVERIFY(ShowInPlace(window));
    qintptr result = 0;
    PutCursor(window, QPoint(200, 20));
    Feed(window, WM_NCLBUTTONDOWN, &result, HTCAPTION); // no title bar yet
    window.setTitleBar(&bar);
    PutCursor(window, QPoint(120, 20));
    Feed(window, WM_NCLBUTTONDOWN, &result, HTCLIENT);
    PutCursor(window, QPoint(120, 200));
    Feed(window, WM_NCLBUTTONDOWN, &result, HTCLIENT);
    QCOMPARE(pressed.count(), 0);
}

void NativeFrameTest::aMaximisedWindowHasMarginsOfFive()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    QCOMPARE(window.contentsMargins(), QMargins(0, 0, 0, 0));
    window.showMaximized();
    QTRY_VERIFY(IsZoomed(HandleOf(window)));
    MINMAXINFO info = {};
    Send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    QCOMPARE(window.contentsMargins(), QMargins(5, 5, 5, 5));
    window.showNormal();
    QTRY_VERIFY(!IsZoomed(HandleOf(window)));
    Send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    QCOMPARE(window.contentsMargins(), QMargins(0, 0, 0, 0));
}

void NativeFrameTest::aRestoredWindowHasItsOldPlace()
{
    FramelessMainWindow window;
    FramelessDialog dialog;
    for (QWidget* each : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&dialog)}) {
        QVERIFY(ShowInPlace(*each));
        const QRect place = each->geometry();
        for (int time = 0; time < 2; ++time) {
            each->showMaximized();
            QTRY_VERIFY(IsZoomed(HandleOf(*each)));
            QTRY_VERIFY(each->width() > place.width());
            each->showNormal();
            QTRY_VERIFY(!IsZoomed(HandleOf(*each)));
            QTRY_COMPARE(each->geometry(), place);
        }
        each->hide();
    }
}

void NativeFrameTest::movingIsToldByTheMainWindowAlone()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    QSignalSpy moving(&window, &FramelessMainWindow::SignalMoving);
    RECT place = {200, 200, 600, 500};
    Send(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&place));
    Send(window, WM_MOVING, 0, reinterpret_cast<LPARAM>(&place));
    QCOMPARE(moving.count(), 2);
}

void NativeFrameTest::crossingScreensResizesTwiceAndKeepsTheFlagPerClass()
{
    class SizeRecorder : public QObject
    {
    public:
        QList<int> widths;

        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Resize) {
                widths.append(static_cast<QResizeEvent*>(event)->size().width());
            }
            return false;
        }
    };
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QPoint inside = screen.center() - QPoint(200, 150);
    const QPoint across(screen.right() - 250, inside.y()); // beyond the edge there is no screen, so they differ

    FramelessMainWindow window;
    FramelessDialog dialog;
    const QList<QWidget*> both = {&window, &dialog};
    for (QWidget* each : both) {
        each->setGeometry(QRect(inside, QSize(400, 300)));
        each->show();
        QVERIFY(QTest::qWaitForWindowExposed(each));
    }
    SizeRecorder recorder;
    window.installEventFilter(&recorder);
    qintptr result = 0;

    Feed(window, WM_MOVING, &result);
    QVERIFY(recorder.widths.isEmpty());
    window.move(across);
    QTRY_COMPARE(window.pos(), across);
    const int width = window.width();
    Feed(window, WM_MOVING, &result);
    Feed(window, WM_MOVING, &result); // while it stays across both, each step repeats it
    QCOMPARE(recorder.widths, (QList<int>{width + 1, width, width + 1, width}));

    // The dialogs have a flag of their own: one inside a screen stays as it is.
    dialog.installEventFilter(&recorder);
    recorder.widths.clear();
    Feed(dialog, WM_MOVING, &result);
    QVERIFY(recorder.widths.isEmpty());

    window.move(inside);
    QTRY_COMPARE(window.pos(), inside);
    Feed(window, WM_MOVING, &result);
    QCOMPARE(recorder.widths, (QList<int>{width + 1, width}));
    recorder.widths.clear();
    Feed(window, WM_MOVING, &result);
    QVERIFY(recorder.widths.isEmpty());
}

void NativeFrameTest::activationAndKeysAreLeftToTheToolkit_data()
{
    QTest::addColumn<uint>("message");
    QTest::newRow("WM_NCACTIVATE") << uint(WM_NCACTIVATE);
    QTest::newRow("WM_SYSKEYDOWN") << uint(WM_SYSKEYDOWN);
    QTest::newRow("WM_SYSKEYUP") << uint(WM_SYSKEYUP);
}

void NativeFrameTest::activationAndKeysAreLeftToTheToolkit()
{
    QFETCH(uint, message);
    FramelessMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    Send(window, message, TRUE);
    QVERIFY(window.isVisible());
}

void NativeFrameTest::theFrameIsFilledInEachClassesColour()
{
    // What of the frame lies outside the client area is filled; a window whose client area is made smaller shows it.
    FramelessMainWindow window;
    FramelessDialog dialog;
    struct Case
    {
        QWidget* window;
        QColor colour;
    };
    for (const Case& each : {Case{&window, QColor(26, 26, 26)}, Case{&dialog, QColor(226, 26, 26)}}) {
        each.window->setGeometry(300, 300, 300, 200);
        each.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(each.window));
        // Every handler up to the toolkit's is passed by: the system's own default gives the client area a frame.
        RECT place;
        GetWindowRect(HandleOf(*each.window), &place);
        const HRGN everything = CreateRectRgn(place.left, place.top, place.right, place.bottom);
        qintptr result = 0;
        const auto feed = [&](WPARAM update) {
            return each.window == &window ? Feed(window, WM_NCPAINT, &result, update)
                                          : Feed(dialog, WM_NCPAINT, &result, update);
        };
        QVERIFY(!feed(1));
        QVERIFY(!feed(reinterpret_cast<WPARAM>(everything)));
        DeleteObject(everything);
        RECT client;
        GetClientRect(HandleOf(*each.window), &client);
        const int frameWidth = int(place.right - place.left) - int(client.right - client.left);
        if (frameWidth == 0) {
            continue; // nothing of a frame is left to look at
        }
        QCOMPARE(PixelOf(*each.window, QPoint(0, 0)), each.colour);
    }
}

void NativeFrameTest::aFrameUpdateWithARegionIsSafe()
{
    FramelessMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    Send(window, WM_NCPAINT, 1);
    const HRGN region = CreateRectRgn(0, 0, 10, 10);
    Send(window, WM_NCPAINT, reinterpret_cast<WPARAM>(region));
    DeleteObject(region);
    QVERIFY(window.isVisible());
}

void NativeFrameTest::everyMessageReturnsAsItShould_data()
{
    QTest::addColumn<uint>("message");
    QTest::addColumn<bool>("handled");
    QTest::newRow("WM_NCCALCSIZE") << 131u << true;
    QTest::newRow("WM_SYSKEYDOWN") << 260u << false;
    QTest::newRow("WM_SYSKEYUP") << 261u << false;
    QTest::newRow("WM_NCLBUTTONDOWN") << 161u << false;
    QTest::newRow("WM_GETMINMAXINFO") << 36u << false;
    QTest::newRow("WM_MOVING") << 534u << false;
    QTest::newRow("WM_NCACTIVATE") << 134u << false;
    QTest::newRow("WM_NCPAINT") << 133u << false;
    QTest::newRow("WM_SIZE") << 5u << false;
}

void NativeFrameTest::everyMessageReturnsAsItShould()
{
    QFETCH(uint, message);
    QFETCH(bool, handled);
    FramelessMainWindow window;
    FramelessDialog dialog;
    window.show();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    qintptr result = 0;
    QCOMPARE(Feed(window, message, &result), handled);
    QCOMPARE(Feed(dialog, message, &result), handled);
    MSG native = {};
    native.hwnd = HandleOf(window);
    native.message = message;
    QCOMPARE(window.PP("windows_generic_MSG", &native, &result), handled);
}

void NativeFrameTest::foreignAndEmptyMessagesAreLeftAlone()
{
    FramelessMainWindow window;
    MSG native = {};
    native.hwnd = HandleOf(window);
    native.message = WM_NCCALCSIZE;
    qintptr result = 42;
    QVERIFY(!window.PP("NSEvent", &native, &result));
    QVERIFY(!window.PP("windows_dispatcher_MSG", &native, &result));
    QVERIFY(!window.PP("windows_generic_MSG", nullptr, &result));
    QVERIFY(!window.PP("windows_generic_MSG", &native, nullptr));
    QCOMPARE(result, qintptr(42));
}

void NativeFrameTest::aTitleBarMayBeDeletedWhileSet()
{
    FramelessMainWindow window;
    auto* bar = new QWidget(&window);
    bar->setGeometry(0, 0, 400, 40);
    window.setTitleBar(bar);
    QVERIFY(ShowInPlace(window));
    delete bar;
    PutCursor(window, QPoint(200, 20));
    qintptr result = 7;
    QVERIFY(!Feed(window, WM_NCHITTEST, &result));
    QCOMPARE(result, qintptr(0));
    QVERIFY(!Feed(window, WM_NCLBUTTONDOWN, &result));
}

void NativeFrameTest::aSlotMayDeleteTheWindow()
{
    auto* window = new FramelessMainWindow;
    window->setGeometry(200, 200, 400, 300);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    connect(window, &FramelessMainWindow::SignalMoving, window, [window] { delete window; });
    MSG message = {};
    message.hwnd = HandleOf(*window);
    message.message = WM_MOVING;
    qintptr result = 0;
    QVERIFY(!window->PP("windows_generic_MSG", &message, &result));
}

CUSTOMCONTROLS_TEST_MAIN(NativeFrameTest)
#include "NativeFrameTest.moc"

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

/**
 * What @p ask gives while the cursor lies at @p point of the window. It is asked again when the cursor was elsewhere
 * before or after: where the desktop is a window on another system, that one's word of an earlier move may come late.
 */
template <typename Ask>
auto WithCursorAt(const QWidget& window, const QPoint& point, Ask ask)
{
    const QPoint global = window.mapToGlobal(point);
    decltype(ask()) answer{};
    const bool stayed = QTest::qWaitFor([&] {
        QCursor::setPos(global);
        if (QCursor::pos() != global) {
            return false;
        }
        answer = ask();
        return QCursor::pos() == global;
    });
    if (!stayed) {
        QTest::qFail("the cursor does not stay where it is put", __FILE__, __LINE__);
    }
    return answer;
}

QColor PixelOf(QWidget& window, const QPoint& point)
{
    const HDC dc = GetWindowDC(HandleOf(window));
    const COLORREF colour = GetPixel(dc, point.x(), point.y());
    ReleaseDC(HandleOf(window), dc);
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

/** What a message brought: whether it was handled, and the result. */
using Answer = std::pair<bool, qintptr>;

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

template <typename Window>
Answer HitTestAt(Window& window, const QPoint& point)
{
    return WithCursorAt(window, point, [&window] {
        qintptr result = 7; // what no zone has
        const bool handled = Feed(window, WM_NCHITTEST, &result);
        return Answer(handled, result);
    });
}

/** How often a press there tells the host; none is handled. */
template <typename Window>
int PressesAt(Window& window, const QPoint& point, WPARAM zone)
{
    QSignalSpy pressed(&window, &Window::SignalTitleBarMousePressed);
    return WithCursorAt(window, point, [&] {
        pressed.clear();
        qintptr result = 0;
        // Not sent to the system's own procedure, whose move loop would wait for a real release.
        return Feed(window, WM_NCLBUTTONDOWN, &result, zone) ? -1 : int(pressed.count());
    });
}

/** One of the twins with a frame that the system still draws: its client area is smaller than the window. */
template <typename Base>
class Framed : public Base
{
public:
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override
    {
        const auto* native = static_cast<const MSG*>(message);
        return native->message != WM_NCCALCSIZE && Base::nativeEvent(eventType, message, result);
    }
};

} // namespace

/** The native messages of both twins, sent to real windows. */
class NativeFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowHasTheStylesThatSnappingNeeds();
    void aNewHandleHasTheStylesToo();
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
    void aWindowWithoutSizeAnswers();
    void aWindowWithoutHandleAnswers();
};

void NativeFrameTest::aWindowHasTheStylesThatSnappingNeeds()
{
    FramelessMainWindow window;
    FramelessDialog dialog;
    constexpr LONG kStyles = 0xC50000;
    QCOMPARE(GetWindowLongW(HandleOf(window), GWL_STYLE) & kStyles, kStyles);
    QCOMPARE(GetWindowLongW(HandleOf(dialog), GWL_STYLE) & kStyles, kStyles);
}

void NativeFrameTest::aNewHandleHasTheStylesToo()
{
    FramelessMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    class HandleCounter : public QObject
    {
    public:
        int handles = 0;

        bool eventFilter(QObject*, QEvent* event) override
        {
            handles += event->type() == QEvent::WinIdChange;
            return false;
        }
    };
    HandleCounter counter;
    window.installEventFilter(&counter);
    QWidget host;
    window.setParent(&host);
    window.setParent(nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(counter.handles > 0);
    constexpr LONG kStyles = 0xC50000;
    QCOMPARE(GetWindowLongW(HandleOf(window), GWL_STYLE) & kStyles, kStyles);
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
        QCOMPARE(WithCursorAt(*each, point, [each] { return int(Send(*each, WM_NCHITTEST)); }), zone);
        QCOMPARE(each == &window ? HitTestAt(window, point) : HitTestAt(dialog, point), Answer(true, zone));
        each->hide();
    }
}

void NativeFrameTest::theHitTestTakesTheCursorAndNotTheMessage()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    const QPoint elsewhere = window.mapToGlobal(QPoint(398, 298));
    const auto ask = [&] { return int(Send(window, WM_NCHITTEST, 0, MAKELPARAM(elsewhere.x(), elsewhere.y()))); };
    QCOMPARE(WithCursorAt(window, QPoint(2, 150), ask), HTLEFT);
}

void NativeFrameTest::aVisibleButtonOnTheTitleBarStaysClient()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    window.setTitleBar(&bar);
    QVERIFY(ShowInPlace(window));
    QCOMPARE(HitTestAt(window, QPoint(120, 20)), Answer(false, 0));
    // What is left alone, the system answers by the place in the message.
    const QPoint place = window.mapToGlobal(QPoint(120, 20));
    const auto ask = [&] { return int(Send(window, WM_NCHITTEST, 0, MAKELPARAM(place.x(), place.y()))); };
    QCOMPARE(WithCursorAt(window, QPoint(120, 20), ask), HTCLIENT);
}

void NativeFrameTest::aHiddenButtonCountsAsTitleBar()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    window.setTitleBar(&bar);
    bar.button.hide();
    QVERIFY(ShowInPlace(window));
    QCOMPARE(HitTestAt(window, QPoint(120, 20)), Answer(true, HTCAPTION));
    QCOMPARE(PressesAt(window, QPoint(120, 20), HTCAPTION), 1);
}

void NativeFrameTest::withoutTitleBarOnlyTheEdgesAnswer()
{
    FramelessMainWindow window;
    QVERIFY(ShowInPlace(window));
    QCOMPARE(HitTestAt(window, QPoint(200, 20)), Answer(false, 0));
    QCOMPARE(HitTestAt(window, QPoint(2, 150)), Answer(true, HTLEFT));
}

void NativeFrameTest::disabledResizeLeavesTheCornersAlone()
{
    FramelessMainWindow window;
    FramelessDialog dialog;
    for (QWidget* each : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&dialog)}) {
        QVERIFY(ShowInPlace(*each));
        QMetaObject::invokeMethod(each, "setResizeEnable", Q_ARG(bool, false));
        for (const QPoint& corner : {QPoint(2, 2), QPoint(398, 2), QPoint(2, 298), QPoint(398, 298)}) {
            QCOMPARE(each == &window ? HitTestAt(window, corner) : HitTestAt(dialog, corner), Answer(false, 0));
        }
        each->hide();
    }
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
        const QPoint free(200, 20);
        QCOMPARE(each == &window ? PressesAt(window, free, HTCAPTION) : PressesAt(dialog, free, HTCAPTION), 1);
        each->hide();
    }
}

void NativeFrameTest::aPressOnAButtonIsNotTold()
{
    FramelessMainWindow window;
    BarWithButton bar(window);
    QVERIFY(ShowInPlace(window));
    QCOMPARE(PressesAt(window, QPoint(200, 20), HTCAPTION), 0); // no title bar yet
    window.setTitleBar(&bar);
    QCOMPARE(PressesAt(window, QPoint(120, 20), HTCLIENT), 0);
    QCOMPARE(PressesAt(window, QPoint(120, 200), HTCLIENT), 0);
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
    // As the system has it, the client area covers the whole window and nothing is left to fill: these have a frame.
    Framed<FramelessMainWindow> window;
    Framed<FramelessDialog> dialog;
    struct Case
    {
        QWidget* window;
        QColor colour;
    };
    for (const Case& each : {Case{&window, QColor(26, 26, 26)}, Case{&dialog, QColor(226, 26, 26)}}) {
        each.window->setGeometry(300, 300, 300, 200);
        each.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(each.window));
        const HWND handle = HandleOf(*each.window);
        constexpr UINT kAsItIs = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
        SetWindowPos(handle, nullptr, 0, 0, 0, 0, kAsItIs | SWP_FRAMECHANGED);
        RECT place;
        RECT client;
        GetWindowRect(handle, &place);
        GetClientRect(handle, &client);
        const int width = int(place.right - place.left);
        const int height = int(place.bottom - place.top);
        QVERIFY(client.right < width && client.bottom < height);
        POINT corner = {0, 0};
        ClientToScreen(handle, &corner);
        const QPoint top(width / 2, (corner.y - int(place.top)) / 2);
        const QPoint content(corner.x - int(place.left) + 20, corner.y - int(place.top) + 20);

        const auto feed = [&](WPARAM update) {
            qintptr result = 0;
            return each.window == &window ? Feed(window, WM_NCPAINT, &result, update)
                                          : Feed(dialog, WM_NCPAINT, &result, update);
        };
        const auto clear = [&] {
            const HDC dc = GetWindowDC(handle);
            const RECT all = {0, 0, width, height};
            FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
            ReleaseDC(handle, dc);
        };
        // The whole frame and nothing of the content.
        for (const WPARAM whole : {WPARAM(0), WPARAM(1)}) {
            clear();
            QVERIFY(!feed(whole));
            QCOMPARE(PixelOf(*each.window, top), each.colour);
            QCOMPARE(PixelOf(*each.window, QPoint(0, height - 1)), each.colour);
            QCOMPARE(PixelOf(*each.window, QPoint(width - 1, height / 2)), each.colour);
            QCOMPARE(PixelOf(*each.window, content), QColor(Qt::white));
        }
        // The left half alone; a region is in the screen's coordinates.
        clear();
        const HRGN left = CreateRectRgn(place.left, place.top, place.left + width / 2, place.bottom);
        QVERIFY(!feed(reinterpret_cast<WPARAM>(left)));
        QCOMPARE(PixelOf(*each.window, top - QPoint(width / 4, 0)), each.colour);
        QCOMPARE(PixelOf(*each.window, top + QPoint(width / 4, 0)), QColor(Qt::white));
        QCOMPARE(PixelOf(*each.window, content), QColor(Qt::white));
        // The region is the system's: it is not deleted.
        QVERIFY(OffsetRgn(left, 1, 1) != ERROR);
        DeleteObject(left);
        each.window->hide();
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
    QSignalSpy moving(&window, &FramelessMainWindow::SignalMoving);
    MSG native = {};
    native.hwnd = HandleOf(window);
    qintptr result = 42;
    for (const UINT number : {UINT(WM_NCCALCSIZE), UINT(WM_MOVING)}) {
        native.message = number;
        QVERIFY(!window.PP("NSEvent", &native, &result));
        QVERIFY(!window.PP("windows_dispatcher_MSG", &native, &result));
        QVERIFY(!window.PP("windows_generic_MSG", nullptr, &result));
        QVERIFY(!window.PP("windows_generic_MSG", &native, nullptr));
        QVERIFY(!window.PP(QByteArray(), nullptr, nullptr));
    }
    QCOMPARE(result, qintptr(42));
    QCOMPARE(moving.count(), 0);
}

void NativeFrameTest::aTitleBarMayBeDeletedWhileSet()
{
    FramelessMainWindow window;
    auto* bar = new QWidget(&window);
    bar->setGeometry(0, 0, 400, 40);
    window.setTitleBar(bar);
    QVERIFY(ShowInPlace(window));
    delete bar;
    QCOMPARE(HitTestAt(window, QPoint(200, 20)), Answer(false, 0));
    QCOMPARE(PressesAt(window, QPoint(200, 20), HTCAPTION), 0);
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

void NativeFrameTest::aWindowWithoutSizeAnswers()
{
    FramelessMainWindow window;
    window.setMinimumSize(0, 0);
    window.resize(0, 0);
    window.show();
    for (const UINT number : {UINT(WM_NCCALCSIZE), UINT(WM_NCHITTEST), UINT(WM_GETMINMAXINFO), UINT(WM_MOVING),
                              UINT(WM_NCACTIVATE), UINT(WM_NCPAINT)}) {
        qintptr result = 0;
        Feed(window, number, &result);
    }
    QVERIFY(window.isVisible());
}

void NativeFrameTest::aWindowWithoutHandleAnswers()
{
    FramelessMainWindow window;
    window.destroy();
    QVERIFY(!window.internalWinId());
    MSG message = {};
    for (const UINT number : {UINT(WM_NCCALCSIZE), UINT(WM_NCHITTEST), UINT(WM_NCLBUTTONDOWN), UINT(WM_GETMINMAXINFO),
                              UINT(WM_MOVING), UINT(WM_NCACTIVATE), UINT(WM_NCPAINT)}) {
        message.message = number;
        qintptr result = 0;
        window.PP("windows_generic_MSG", &message, &result);
    }
    QVERIFY(!window.isVisible());
}

CUSTOMCONTROLS_TEST_MAIN(NativeFrameTest)
#include "NativeFrameTest.moc"

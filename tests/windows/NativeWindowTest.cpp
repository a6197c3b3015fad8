#include <CustomControls/platform/ClickThrough.h>
#include <CustomControls/platform/Glass.h>

#include <tests/support/TestMain.h>

#include <dwmapi.h>
#include <windows.h>

namespace {

HWND HandleOf(const QWidget& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

LONG ExtendedStyle(const QWidget& window)
{
    return GetWindowLongW(HandleOf(window), GWL_EXSTYLE);
}

} // namespace

/** Click-through and glass, seen on real windows. */
class NativeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickThroughSetsTheTransparentStyleAlone();
    void clickThroughIsTakenBack();
    void clickThroughMakesTheHandle();
    void clickThroughOfNothingIsIgnored();
    void compositionIsWhatTheSystemSays();
    void glassIsSafeOnEveryWindow_data();
    void glassIsSafeOnEveryWindow();
};

void NativeWindowTest::clickThroughSetsTheTransparentStyleAlone()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const LONG before = ExtendedStyle(window);
    QVERIFY(!(before & WS_EX_TRANSPARENT));
    SetClickThrough(&window, true);
    QCOMPARE(ExtendedStyle(window), before | WS_EX_TRANSPARENT);
    SetClickThrough(&window, true);
    QCOMPARE(ExtendedStyle(window), before | WS_EX_TRANSPARENT);
}

void NativeWindowTest::clickThroughIsTakenBack()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const LONG before = ExtendedStyle(window);
    SetClickThrough(&window, false);
    QCOMPARE(ExtendedStyle(window), before);
    SetClickThrough(&window, true);
    SetClickThrough(&window, false);
    QCOMPARE(ExtendedStyle(window), before);
}

void NativeWindowTest::clickThroughMakesTheHandle()
{
    QWidget window;
    QVERIFY(!window.internalWinId());
    SetClickThrough(&window, true);
    QVERIFY(window.internalWinId());
    QVERIFY(ExtendedStyle(window) & WS_EX_TRANSPARENT);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(ExtendedStyle(window) & WS_EX_TRANSPARENT);
}

void NativeWindowTest::clickThroughOfNothingIsIgnored()
{
    SetClickThrough(nullptr, true);
    SetClickThrough(nullptr, false);
}

void NativeWindowTest::compositionIsWhatTheSystemSays()
{
    BOOL enabled = FALSE;
    const HRESULT result = DwmIsCompositionEnabled(&enabled);
    QCOMPARE(IsCompositionEnabled(), SUCCEEDED(result) && enabled);
}

void NativeWindowTest::glassIsSafeOnEveryWindow_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("translucent");
    QTest::newRow("shown") << true << false;
    QTest::newRow("shown, translucent") << true << true;
    QTest::newRow("hidden") << false << false;
    QTest::newRow("hidden, translucent") << false << true;
}

// Whether the system composes windows or not, these calls must leave a window that lives and paints.
void NativeWindowTest::glassIsSafeOnEveryWindow()
{
    QFETCH(bool, shown);
    QFETCH(bool, translucent);
    QWidget window;
    window.setAttribute(Qt::WA_TranslucentBackground, translucent);
    window.resize(200, 100);
    window.setVisible(shown);
    if (shown) {
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }
    const QImage before = window.grab().toImage();
    BlurBehind(&window);
    ExtendGlass(&window, QMargins(-1, -1, -1, -1));
    ExtendGlass(&window, QMargins());
    BlurBehind(&window);
    QCoreApplication::processEvents();
    QVERIFY(IsWindow(HandleOf(window)));
    QCOMPARE(window.isVisible(), shown);
    QCOMPARE(window.grab().toImage(), before);
}

CUSTOMCONTROLS_TEST_MAIN(NativeWindowTest)
#include "NativeWindowTest.moc"

#include <CustomControls/buttons/CHintToolTip.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>
#include <CustomControls/platform/ClickThrough.h>
#include <CustomControls/platform/Glass.h>

#include <tests/support/TestMain.h>

#include <QLabel>

#include <dwmapi.h>
#include <windows.h>

// The places that the loader fills with the addresses of the composition library's functions.
extern "C" {
extern decltype(&DwmIsCompositionEnabled) __imp_DwmIsCompositionEnabled;
extern decltype(&DwmExtendFrameIntoClientArea) __imp_DwmExtendFrameIntoClientArea;
extern decltype(&DwmEnableBlurBehindWindow) __imp_DwmEnableBlurBehindWindow;
}

namespace {

HWND HandleOf(const QWidget& window)
{
    return reinterpret_cast<HWND>(window.winId());
}

/** The calls of the composition library, as the code under test makes them. */
struct GlassCalls
{
    bool enabled = true;
    HRESULT result = S_OK;
    QList<MARGINS> extended;
    QList<DWM_BLURBEHIND> blurred;
    QList<HWND> windows;
};

GlassCalls* g_pCalls = nullptr;

HRESULT WINAPI RecordedIsEnabled(BOOL* enabled)
{
    *enabled = g_pCalls->enabled;
    return g_pCalls->result;
}

HRESULT WINAPI RecordedExtend(HWND window, const MARGINS* margins)
{
    g_pCalls->extended.append(*margins);
    g_pCalls->windows.append(window);
    return S_OK;
}

HRESULT WINAPI RecordedBlur(HWND window, const DWM_BLURBEHIND* blur)
{
    g_pCalls->blurred.append(*blur);
    g_pCalls->windows.append(window);
    return S_OK;
}

/** Puts a function into the place that the loader filled with another, for as long as it lives. */
class Replaced
{
public:
    template <typename Function>
    Replaced(Function** place, Function* function)
        : m_place(reinterpret_cast<void**>(place))
        , m_pBefore(*m_place)
    {
        Write(reinterpret_cast<void*>(function));
    }
    ~Replaced() { Write(m_pBefore); }
    Q_DISABLE_COPY_MOVE(Replaced)

private:
    void Write(void* function)
    {
        DWORD before = 0;
        VirtualProtect(m_place, sizeof(void*), PAGE_READWRITE, &before);
        *m_place = function;
        VirtualProtect(m_place, sizeof(void*), before, &before);
    }

    void** m_place;
    void* m_pBefore;
};

/** Records the calls of the library while it lives. */
class GlassRecorder
{
public:
    explicit GlassRecorder(GlassCalls* calls);
    ~GlassRecorder() { g_pCalls = nullptr; }
    Q_DISABLE_COPY_MOVE(GlassRecorder)

private:
    Replaced m_isEnabled;
    Replaced m_extend;
    Replaced m_blur;
};

GlassRecorder::GlassRecorder(GlassCalls* calls)
    : m_isEnabled(&__imp_DwmIsCompositionEnabled, &RecordedIsEnabled)
    , m_extend(&__imp_DwmExtendFrameIntoClientArea, &RecordedExtend)
    , m_blur(&__imp_DwmEnableBlurBehindWindow, &RecordedBlur)
{
    g_pCalls = calls;
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
    void aToastLetsTheMouseThrough();
    void aNoteLetsTheMouseThroughWhereItIsTold();
    void aNotesPassthroughWorksAtOnce();
    void aWatermarkLetsTheMouseThrough();
    void aFrostedTipIsASheetOfGlass_data();
    void aFrostedTipIsASheetOfGlass();
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

void NativeWindowTest::aToastLetsTheMouseThrough()
{
    for (const ToastWidget::ToastType type : {ToastWidget::ToastModelEdit, ToastWidget::ToastCustomText}) {
        ToastWidget toast(type, nullptr, QStringLiteral("text"));
        QVERIFY(ExtendedStyle(toast) & WS_EX_TRANSPARENT);
        toast.show();
        QVERIFY(QTest::qWaitForWindowExposed(&toast));
        QVERIFY(ExtendedStyle(toast) & WS_EX_TRANSPARENT);
    }
}

void NativeWindowTest::aNoteLetsTheMouseThroughWhereItIsTold()
{
    CHintToolTip note(nullptr, nullptr);
    note.resize(100, 40);
    note.show();
    QVERIFY(QTest::qWaitForWindowExposed(&note));
    QVERIFY(!(ExtendedStyle(note) & WS_EX_TRANSPARENT));
    note.hide();
    note.m_bTakesMouse = false;
    note.show();
    QVERIFY(ExtendedStyle(note) & WS_EX_TRANSPARENT);
    note.hide();
    note.m_bTakesMouse = true;
    note.show();
    QVERIFY(!(ExtendedStyle(note) & WS_EX_TRANSPARENT));
}

void NativeWindowTest::aNotesPassthroughWorksAtOnce()
{
    CHintToolTip note(nullptr, nullptr);
    note.resize(100, 40);
    note.show();
    QVERIFY(QTest::qWaitForWindowExposed(&note));
    note.applyMousePassthrough(true);
    QVERIFY(ExtendedStyle(note) & WS_EX_TRANSPARENT);
    note.applyMousePassthrough(false);
    QVERIFY(!(ExtendedStyle(note) & WS_EX_TRANSPARENT));
}

void NativeWindowTest::aWatermarkLetsTheMouseThrough()
{
    CWatermarkWidget host;
    host.resize(300, 200);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    host.ShowWatermark();
    QVERIFY(host.m_pLabel);
    QVERIFY(ExtendedStyle(*host.m_pLabel) & WS_EX_TRANSPARENT);
    QVERIFY(!(ExtendedStyle(host) & WS_EX_TRANSPARENT));
}

void NativeWindowTest::aFrostedTipIsASheetOfGlass_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<qlonglong>("result");
    QTest::addColumn<int>("margin");
    QTest::newRow("the system composes") << true << qlonglong(S_OK) << -1;
    QTest::newRow("it does not") << false << qlonglong(S_OK) << 0;
    QTest::newRow("it does not say") << true << qlonglong(E_FAIL) << 0;
}

void NativeWindowTest::aFrostedTipIsASheetOfGlass()
{
    QFETCH(bool, enabled);
    QFETCH(qlonglong, result);
    QFETCH(int, margin);
    GlassCalls calls;
    calls.enabled = enabled;
    calls.result = HRESULT(result);
    const GlassRecorder recorder(&calls);
    CFrostedToolTip tip(QStringLiteral("text"), nullptr);
    QCOMPARE(calls.extended.size(), 1);
    const MARGINS& margins = calls.extended.first();
    QCOMPARE(margins.cxLeftWidth, margin);
    QCOMPARE(margins.cxRightWidth, margin);
    QCOMPARE(margins.cyTopHeight, margin);
    QCOMPARE(margins.cyBottomHeight, margin);
    QCOMPARE(calls.blurred.size(), 1);
    const DWM_BLURBEHIND& blur = calls.blurred.first();
    QCOMPARE(blur.dwFlags, DWORD(DWM_BB_ENABLE));
    QVERIFY(blur.fEnable);
    QVERIFY(!blur.hRgnBlur);
    QVERIFY(!blur.fTransitionOnMaximized);
    QCOMPARE(calls.windows, (QList<HWND>{HandleOf(tip), HandleOf(tip)}));
    QVERIFY(!tip.testAttribute(Qt::WA_NoSystemBackground) || !enabled || result != S_OK);
}

CUSTOMCONTROLS_TEST_MAIN(NativeWindowTest)
#include "NativeWindowTest.moc"

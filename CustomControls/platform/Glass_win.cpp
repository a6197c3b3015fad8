#include <CustomControls/platform/Glass.h>

#include <QWidget>

#include <dwmapi.h>
#include <windows.h>

bool IsCompositionEnabled()
{
    BOOL enabled = FALSE;
    return SUCCEEDED(DwmIsCompositionEnabled(&enabled)) && enabled;
}

void ExtendGlass(QWidget* window, const QMargins& margins)
{
    if (const HWND hwnd = reinterpret_cast<HWND>(window->winId())) {
        const MARGINS native = {margins.left(), margins.right(), margins.top(), margins.bottom()};
        DwmExtendFrameIntoClientArea(hwnd, &native);
    }
}

void BlurBehind(QWidget* window)
{
    if (const HWND hwnd = reinterpret_cast<HWND>(window->winId())) {
        DWM_BLURBEHIND blur = {};
        blur.dwFlags = DWM_BB_ENABLE;
        blur.fEnable = TRUE;
        DwmEnableBlurBehindWindow(hwnd, &blur);
    }
}

void CutToContent(QWidget*, const QPixmap&) {}

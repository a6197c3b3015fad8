#include <CustomControls/platform/ClickThrough.h>

#include <QWidget>

#include <windows.h>

void SetClickThrough(QWidget* window, bool through)
{
    if (!window) {
        return;
    }
    const HWND hwnd = reinterpret_cast<HWND>(window->winId());
    const LONG style = GetWindowLongW(hwnd, GWL_EXSTYLE);
    SetWindowLongW(hwnd, GWL_EXSTYLE, through ? style | WS_EX_TRANSPARENT : style & ~WS_EX_TRANSPARENT);
}

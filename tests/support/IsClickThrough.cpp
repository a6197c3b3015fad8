#include <tests/support/IsClickThrough.h>

#include <QWidget>
#include <QWindow>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

bool IsClickThrough(const QWidget& window)
{
#ifdef Q_OS_WIN
    return GetWindowLongW(reinterpret_cast<HWND>(window.winId()), GWL_EXSTYLE) & WS_EX_TRANSPARENT;
#else
    return window.windowHandle()->flags().testFlag(Qt::WindowTransparentForInput);
#endif
}

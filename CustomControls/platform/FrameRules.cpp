#include <CustomControls/platform/FrameRules.h>

#include <QGuiApplication>
#include <QWidget>

namespace {
constexpr int kEdge = 5;
constexpr QPoint kStraddleReach(200, 200);
} // namespace

Qt::WindowFlags FramelessFlags(Qt::WindowFlags flags)
{
    flags &= ~(Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint |
               Qt::WindowCloseButtonHint);
    return flags | Qt::WindowMinimizeButtonHint;
}

FrameZone FrameZoneAt(const QPoint& point, const QSize& size, bool resizeEnable, const QWidget* titleBar)
{
    if (resizeEnable) {
        const bool left = point.x() < kEdge;
        const bool right = point.x() > size.width() - kEdge;
        const bool top = point.y() < kEdge;
        const bool bottom = point.y() > size.height() - kEdge;
        if (left && top) {
            return FrameZoneTopLeft;
        }
        if (left && bottom) {
            return FrameZoneBottomLeft;
        }
        if (right && top) {
            return FrameZoneTopRight;
        }
        if (right && bottom) {
            return FrameZoneBottomRight;
        }
        if (left) {
            return FrameZoneLeft;
        }
        if (right) {
            return FrameZoneRight;
        }
        if (top) {
            return FrameZoneTop;
        }
        if (bottom) {
            return FrameZoneBottom;
        }
    }
    return OnFreeTitleBar(point, titleBar) ? FrameZoneCaption : FrameZoneNone;
}

bool OnFreeTitleBar(const QPoint& point, const QWidget* titleBar)
{
    // The point is the window's and the rectangle the bar's own: a title bar stands at the window's top left corner.
    if (!titleBar || !titleBar->rect().contains(point)) {
        return false;
    }
    const QWidget* child = titleBar->childAt(point);
    return !child || !child->isVisible();
}

bool StraddlesScreens(const QRect& geometry)
{
    const QPoint centre = geometry.center();
    return QGuiApplication::screenAt(centre + kStraddleReach) != QGuiApplication::screenAt(centre - kStraddleReach);
}

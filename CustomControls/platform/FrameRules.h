#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

class QWidget;

/** @p flags without the buttons of a system frame but the one to minimise, which a task bar asks for. */
Qt::WindowFlags FramelessFlags(Qt::WindowFlags flags);

/** The part of a frameless window under a point. The values are the answers that Windows expects to a hit test. */
enum FrameZone
{
    FrameZoneNone = 0,
    FrameZoneCaption = 2,
    FrameZoneLeft = 10,
    FrameZoneRight = 11,
    FrameZoneTop = 12,
    FrameZoneTopLeft = 13,
    FrameZoneTopRight = 14,
    FrameZoneBottom = 15,
    FrameZoneBottomLeft = 16,
    FrameZoneBottomRight = 17
};

/**
 * The zone under @p point, in window coordinates. Edges come first, five pixels deep, and only while @p resizeEnable
 * holds; then the free part of @p titleBar (may be null), which is taken to lie at the window's top left corner.
 */
FrameZone FrameZoneAt(const QPoint& point, const QSize& size, bool resizeEnable, const QWidget* titleBar);

/** True when @p point, in window coordinates, lies on @p titleBar (may be null) and on no visible child of it. */
bool OnFreeTitleBar(const QPoint& point, const QWidget* titleBar);

/** True when a window of this geometry reaches from one screen well into another. */
bool StraddlesScreens(const QRect& geometry);

#pragma once

#include <QColor>
#include <QImage>
#include <QTest>
#include <QWidget>

#include <cmath>

/** Looking at what a widget paints, over a ground that it leaves alone. */
namespace Painted {

inline const QColor kGround(255, 255, 255);

/** The widget alone, without the background that the toolkit would put under it. */
inline QImage Of(QWidget& widget, const QColor& ground = kGround)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image.convertToFormat(QImage::Format_RGB32);
}

/** @p color with its alpha over @p ground. */
inline QColor Over(const QColor& color, const QColor& ground = kGround)
{
    const auto mix = [&](int top, int bottom) {
        return static_cast<int>(std::lround(bottom + (top - bottom) * color.alphaF()));
    };
    return {mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue())};
}

inline bool Near(const QColor& left, const QColor& right, int tolerance = 2)
{
    return std::abs(left.red() - right.red()) <= tolerance && std::abs(left.green() - right.green()) <= tolerance &&
           std::abs(left.blue() - right.blue()) <= tolerance;
}

/** The smallest rectangle that holds every pixel of this colour. */
inline QRect Extent(const QImage& image, const QColor& color, int tolerance = 2)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (Near(image.pixelColor(x, y), color, tolerance)) {
                extent |= QRect(x, y, 1, 1);
            }
        }
    }
    return extent;
}

/** The smallest rectangle that holds every pixel that differs. */
inline QRect Difference(const QImage& left, const QImage& right)
{
    QRect extent;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y)) {
                extent |= QRect(x, y, 1, 1);
            }
        }
    }
    return extent;
}

/** A caption of solid blocks, which shows its colour unmixed. */
inline QString Blocks(int count)
{
    return QString(count, QChar(0x2588));
}

} // namespace Painted

#define COMPARE_COLOR(image, x, y, expected)                                                                           \
    QVERIFY2(Painted::Near((image).pixelColor(x, y), expected),                                                        \
             qPrintable(QStringLiteral("%1,%2 is %3, not %4")                                                          \
                            .arg(x)                                                                                    \
                            .arg(y)                                                                                    \
                            .arg((image).pixelColor(x, y).name(), QColor(expected).name())))

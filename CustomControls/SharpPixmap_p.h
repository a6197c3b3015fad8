#pragma once

#include <QIcon>
#include <QPixmap>

/**
 * An icon's picture at a size in logical pixels, in its normal mode and off.
 *
 * Between whole ratios the toolkit takes the file that is nearest to the screen's, which up to 1.5 is the plain one,
 * and enlarges it. Here the next larger twin is made smaller instead, for it has the detail.
 */
QPixmap SharpPixmap(const QIcon& icon, const QSize& size);

/**
 * The picture of a file at the size of the plain file, from the twin beside it that suits the screen: a pixmap by
 * itself only ever reads the file that it is told.
 */
QPixmap SharpPixmap(const QString& path);

#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QFont>
#include <QString>

/**
 * The product's fonts: FontCn_N is the regular cut, FontCnMedium_N the medium one and FontCnBold_N the bold one, N
 * being the pixel size. They are built when the library is loaded, so a control may copy them in its constructor;
 * nobody changes them.
 */
extern CORVANEBASE_EXPORT QFont FontCn_12;
extern CORVANEBASE_EXPORT QFont FontCn_13;
extern CORVANEBASE_EXPORT QFont FontCn_14;
extern CORVANEBASE_EXPORT QFont FontCn_15;
extern CORVANEBASE_EXPORT QFont FontCn_16;
extern CORVANEBASE_EXPORT QFont FontCn_20;
extern CORVANEBASE_EXPORT QFont FontCnMedium_10;
extern CORVANEBASE_EXPORT QFont FontCnMedium_11;
extern CORVANEBASE_EXPORT QFont FontCnMedium_13;
extern CORVANEBASE_EXPORT QFont FontCnMedium_14;
extern CORVANEBASE_EXPORT QFont FontCnMedium_15;
extern CORVANEBASE_EXPORT QFont FontCnMedium_16;
extern CORVANEBASE_EXPORT QFont FontCnMedium_18;
extern CORVANEBASE_EXPORT QFont FontCnBold_14;
extern CORVANEBASE_EXPORT QFont FontCnBold_16;
extern CORVANEBASE_EXPORT QFont FontCnBold_28;
extern CORVANEBASE_EXPORT QFont FontCnBold_30;

/**
 * The product's font at a pixel size and a weight.
 *
 * @param pixelSize in logical pixels, 1 or more; anything smaller counts as 1
 * @param weight    a QFont weight, 1 to 1000; the controls ask for 400 and 600. A value outside is moved to the nearer
 * end
 */
CORVANEBASE_EXPORT QFont GetFontWidthPxSizeAndWeight(int pixelSize, int weight);

/**
 * The whole number nearest to @p value that stays whole when it is multiplied by a device pixel ratio, so that a widget
 * of that size ends on a physical pixel: a multiple of q where the ratio is the fraction p/q. Of two that are equally
 * near the larger one wins, and a positive value never becomes 0.
 *
 * @param value a size in logical pixels
 * @param ratio the ratio as text, as QString::number(ratio, 'g', 6) writes it; so "1.33333" is four thirds. A text that
 * is no positive number, or a ratio whose q is above 1000, leaves @p value as it is
 */
CORVANEBASE_EXPORT int ClosestInteger(int value, const QString& ratio);

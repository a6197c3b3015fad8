#include <CorvaneBase/CorvaneFonts.h>

#include <QStringList>

#include <cmath>
#include <limits>

namespace {

// The first family that the system has is taken. Each system's own sans-serif with simplified Chinese comes first, then
// the free ones, so that Chinese and Latin text share one design wherever the product runs.
QFont ProductFont(int pixelSize, int weight)
{
    const QStringList families = {QStringLiteral("Microsoft YaHei UI"),
                                  QStringLiteral("Microsoft YaHei"), // Windows
                                  QStringLiteral("PingFang SC"),
                                  QStringLiteral("Hiragino Sans GB"), // macOS
                                  QStringLiteral("Noto Sans CJK SC"),
                                  QStringLiteral("Noto Sans SC"), // Linux
                                  QStringLiteral("Source Han Sans SC"),
                                  QStringLiteral("Source Han Sans CN"),
                                  QStringLiteral("WenQuanYi Micro Hei"),
                                  QStringLiteral("WenQuanYi Zen Hei"),
                                  QStringLiteral("SimSun"),
                                  QStringLiteral("sans-serif")};
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qMax(1, pixelSize));
    font.setWeight(QFont::Weight(qBound(1, weight, 1000)));
    return font;
}

// The smallest whole number that makes the ratio whole, 0 where that is beyond any sensible size. The ratio comes with
// six significant digits, so 1.33333 stands for four thirds: whatever lies within half a unit of the last digit counts.
int Denominator(double ratio)
{
    constexpr int kLargest = 1000;
    const double halfUnit = 0.5000001 * std::pow(10.0, std::floor(std::log10(ratio)) - 5.0);
    for (int denominator = 1; denominator <= kLargest; ++denominator) {
        const double nearest = std::round(ratio * denominator) / denominator;
        if (std::abs(ratio - nearest) <= halfUnit) {
            return denominator;
        }
    }
    return 0;
}

} // namespace

QFont FontCn_12 = ProductFont(12, QFont::Normal);
QFont FontCn_13 = ProductFont(13, QFont::Normal);
QFont FontCn_14 = ProductFont(14, QFont::Normal);
QFont FontCn_15 = ProductFont(15, QFont::Normal);
QFont FontCn_16 = ProductFont(16, QFont::Normal);
QFont FontCn_20 = ProductFont(20, QFont::Normal);
QFont FontCnMedium_10 = ProductFont(10, QFont::Medium);
QFont FontCnMedium_11 = ProductFont(11, QFont::Medium);
QFont FontCnMedium_13 = ProductFont(13, QFont::Medium);
QFont FontCnMedium_14 = ProductFont(14, QFont::Medium);
QFont FontCnMedium_15 = ProductFont(15, QFont::Medium);
QFont FontCnMedium_16 = ProductFont(16, QFont::Medium);
QFont FontCnMedium_18 = ProductFont(18, QFont::Medium);
QFont FontCnBold_14 = ProductFont(14, QFont::Bold);
QFont FontCnBold_16 = ProductFont(16, QFont::Bold);
QFont FontCnBold_28 = ProductFont(28, QFont::Bold);
QFont FontCnBold_30 = ProductFont(30, QFont::Bold);

QFont GetFontWidthPxSizeAndWeight(int pixelSize, int weight)
{
    return ProductFont(pixelSize, weight);
}

int ClosestInteger(int value, const QString& ratio)
{
    bool ok = false;
    const double factor = ratio.toDouble(&ok);
    if (!ok || !std::isfinite(factor) || factor <= 0.0) {
        return value;
    }
    const int step = Denominator(factor);
    if (step == 0) {
        return value;
    }
    const qint64 above = qint64(std::floor(double(value) / step)) * step + step;
    const qint64 below = above - step;
    // A size that is there must not shrink to nothing, and none may leave the range.
    const bool belowFits = below >= std::numeric_limits<int>::min() && (below > 0 || value <= 0);
    const bool aboveFits = above <= std::numeric_limits<int>::max();
    if (below == value || !aboveFits) {
        return belowFits ? int(below) : value;
    }
    return belowFits && value - below < above - value ? int(below) : int(above);
}

#include <CorvaneBase/CorvaneFonts.h>

#include <QStringList>

#include <cmath>

namespace {

// The first family that the system has is taken. Each system's own sans-serif with simplified Chinese comes first, then
// the free ones, so that Chinese and Latin text share one design wherever the product runs.
QFont ProductFont(int pixelSize, int weight)
{
    const QStringList families = {
        QStringLiteral("Microsoft YaHei UI"), QStringLiteral("Microsoft YaHei"), // Windows
        QStringLiteral("PingFang SC"), QStringLiteral("Hiragino Sans GB"),       // macOS
        QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Sans SC"),      // Linux
        QStringLiteral("Source Han Sans SC"), QStringLiteral("Source Han Sans CN"),
        QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("WenQuanYi Zen Hei"),
        QStringLiteral("SimSun"), QStringLiteral("sans-serif")};
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qMax(1, pixelSize));
    font.setWeight(QFont::Weight(qBound(1, weight, 1000)));
    return font;
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

QFont GetFontWidthPxSizeAndWeight(int pixelSize, int weight) { return ProductFont(pixelSize, weight); }

int ClosestInteger(int value, const QString& ratio)
{
    bool ok = false;
    const double factor = ratio.toDouble(&ok);
    if (!ok || !std::isfinite(factor) || factor <= 0.0) {
        return value;
    }
    const auto isWhole = [factor](int size) {
        const double scaled = size * factor;
        return std::abs(scaled - std::round(scaled)) < 1e-6;
    };
    // Six significant digits give a whole multiple within a million at the latest; a size that far off is of no use.
    constexpr int kReach = 1000;
    for (int distance = 0; distance <= kReach; ++distance) {
        if (isWhole(value + distance)) {
            return value + distance;
        }
        if (isWhole(value - distance) && value - distance > 0) {
            return value - distance;
        }
    }
    return value;
}

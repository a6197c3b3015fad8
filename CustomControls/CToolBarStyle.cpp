#include <CustomControls/CToolBarStyle.h>

namespace {

constexpr int kHandleExtent = 9;
constexpr int kItemSpacing = 2;
constexpr int kItemMargin = 4;

} // namespace

CToolBarStyle::CToolBarStyle(QProxyStyle* base)
    : CCustomAppStyle(base)
{}

int CToolBarStyle::pixelMetric(QStyle::PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int wrapped = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case QStyle::PM_ToolBarHandleExtent:
        return kHandleExtent;
    case QStyle::PM_ToolBarItemSpacing:
        return kItemSpacing;
    case QStyle::PM_ToolBarItemMargin:
        return kItemMargin;
    default:
        return wrapped;
    }
}

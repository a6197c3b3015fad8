#include <CustomControls/CCustomAppStyle.h>

namespace {

constexpr int kToolTipWakeUpMs = 200;

} // namespace

CCustomAppStyle::CCustomAppStyle(QProxyStyle* base)
    : QProxyStyle(base)
{}

int CCustomAppStyle::styleHint(QStyle::StyleHint hint, const QStyleOption* option, const QWidget* widget,
                               QStyleHintReturn* returnData) const
{
    if (hint == QStyle::SH_ToolTip_WakeUpDelay) {
        return kToolTipWakeUpMs;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

#include <CustomControls/feedback/CFrostedToolTipAccessible.h>

#include <CustomControls/feedback/CFrostedToolTip.h>

#include <QLabel>

CFrostedToolTipAccessible::CFrostedToolTipAccessible(CFrostedToolTip* toolTip)
    : AccessibleControl(toolTip, QAccessible::ToolTip)
{}

QString CFrostedToolTipAccessible::Caption() const
{
    const auto* label = widget()->findChild<QLabel*>();
    return label ? label->text() : QString();
}

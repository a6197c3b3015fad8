#include <CustomControls/feedback/ToastWidgetAccessible.h>

#include "ui_ToastWidget.h"

#include <CustomControls/feedback/ToastWidget.h>

ToastWidgetAccessible::ToastWidgetAccessible(ToastWidget* toast)
    : AccessibleControl(toast, QAccessible::AlertMessage)
{}

QString ToastWidgetAccessible::Caption() const
{
    return static_cast<ToastWidget*>(object())->ui->nameLabel->text();
}

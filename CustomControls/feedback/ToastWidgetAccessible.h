#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class ToastWidget;

/** A toast is an alert: its words are its name. */
class ToastWidgetAccessible : public AccessibleControl
{
public:
    explicit ToastWidgetAccessible(ToastWidget* toast);

protected:
    QString Caption() const override;
};

#pragma once

#include <CustomControls/accessibility/AccessibleDialog.h>

class CProgressWidget;

/** A progress dialog: its title is its name, what is being done its description. */
class CProgressWidgetAccessible : public AccessibleDialog
{
public:
    explicit CProgressWidgetAccessible(CProgressWidget* dialog);

protected:
    QString Heading() const override;
    QString Message() const override;
};

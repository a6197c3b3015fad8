#pragma once

#include <CustomControls/accessibility/AccessibleDialog.h>

class CFixedSizePopWidget;

/** A pop-up: its window title is its name. */
class CFixedSizePopWidgetAccessible : public AccessibleDialog
{
public:
    explicit CFixedSizePopWidgetAccessible(CFixedSizePopWidget* popUp);

protected:
    QString Heading() const override;
};

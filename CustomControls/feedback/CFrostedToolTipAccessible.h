#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CFrostedToolTip;

/** A tool tip: its words are its name. */
class CFrostedToolTipAccessible : public AccessibleControl
{
public:
    explicit CFrostedToolTipAccessible(CFrostedToolTip* toolTip);

protected:
    QString Caption() const override;
};

#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CHintToolTip;

/** A floating note: its words are its name. */
class CHintToolTipAccessible : public AccessibleControl
{
public:
    explicit CHintToolTipAccessible(CHintToolTip* toolTip);

protected:
    QString Caption() const override;
};

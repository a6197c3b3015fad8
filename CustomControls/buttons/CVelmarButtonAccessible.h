#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CVelmarButton;

/** The themed button: its labels are part of it, and its press is SignalClicked. */
class CVelmarButtonAccessible : public AccessibleButton
{
public:
    explicit CVelmarButtonAccessible(CVelmarButton* button);

    /** A button that can be chosen tells whether it is; to choose it stays with the host. */
    QAccessible::State state() const override;

protected:
    QString Caption() const override;
    void Click() override;
};

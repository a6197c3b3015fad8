#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CUnitButton;

/** A tile with a value and its unit: both together are its name. */
class CUnitButtonAccessible : public AccessibleButton
{
public:
    explicit CUnitButtonAccessible(CUnitButton* button);

protected:
    QString Caption() const override;
};

#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CIconButton;

/** A button with an icon and a text of its own. */
class CIconButtonAccessible : public AccessibleButton
{
public:
    explicit CIconButtonAccessible(CIconButton* button);

protected:
    QString Caption() const override;
};

#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CSelectButton;

/** A tile that is checked or not, with a caption of its own. */
class CSelectButtonAccessible : public AccessibleButton
{
public:
    explicit CSelectButtonAccessible(CSelectButton* button);

protected:
    QString Caption() const override;
};

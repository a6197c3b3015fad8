#pragma once

#include <CustomControls/accessibility/AccessibleDialog.h>

class CVelmarSelectBox;

/** A pop-up with a title bar: its title is its name, its hint the description. */
class CVelmarSelectBoxAccessible : public AccessibleDialog
{
public:
    explicit CVelmarSelectBoxAccessible(CVelmarSelectBox* box);

protected:
    QString Heading() const override;
    QString Message() const override;
};

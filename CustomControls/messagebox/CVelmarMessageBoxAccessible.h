#pragma once

#include <CustomControls/accessibility/AccessibleDialog.h>

class CVelmarMessageBox;

/** A message box: its title is its name, what it says its description. */
class CVelmarMessageBoxAccessible : public AccessibleDialog
{
public:
    explicit CVelmarMessageBoxAccessible(CVelmarMessageBox* box);

protected:
    QString Heading() const override;
    QString Message() const override;
};

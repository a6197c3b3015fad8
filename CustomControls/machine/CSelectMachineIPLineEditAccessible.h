#pragma once

#include <CustomControls/accessibility/AccessibleDialog.h>

class CSelectMachineIPLineEdit;

/** The pop-up of one field: the field's label is its name. */
class CSelectMachineIPLineEditAccessible : public AccessibleDialog
{
public:
    explicit CSelectMachineIPLineEditAccessible(CSelectMachineIPLineEdit* popUp);

protected:
    QString Heading() const override;
};

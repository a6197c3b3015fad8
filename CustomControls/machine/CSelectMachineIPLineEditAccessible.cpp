#include <CustomControls/machine/CSelectMachineIPLineEditAccessible.h>

#include "ui_CSelectMachineIPLineEdit.h"

#include <CustomControls/machine/CSelectMachineIPLineEdit.h>

CSelectMachineIPLineEditAccessible::CSelectMachineIPLineEditAccessible(CSelectMachineIPLineEdit* popUp)
    : AccessibleDialog(popUp)
{}

QString CSelectMachineIPLineEditAccessible::Heading() const
{
    return static_cast<CSelectMachineIPLineEdit*>(object())->ui->titleLabel->text();
}

#include <CustomControls/machine/CVelmarSelectBoxAccessible.h>

#include "ui_CVelmarSelectBox.h"

#include <CustomControls/machine/CVelmarSelectBox.h>

CVelmarSelectBoxAccessible::CVelmarSelectBoxAccessible(CVelmarSelectBox* box)
    : AccessibleDialog(box)
{}

QString CVelmarSelectBoxAccessible::Heading() const
{
    return static_cast<CVelmarSelectBox*>(object())->ui->m_labelBoxName->text();
}

QString CVelmarSelectBoxAccessible::Message() const
{
    const QLabel* hint = static_cast<CVelmarSelectBox*>(object())->ui->m_labelHint;
    return hint->isHidden() ? QString() : hint->text();
}

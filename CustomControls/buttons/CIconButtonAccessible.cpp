#include <CustomControls/buttons/CIconButtonAccessible.h>

#include <CustomControls/buttons/CIconButton.h>

CIconButtonAccessible::CIconButtonAccessible(CIconButton* button)
    : AccessibleButton(button)
{}

QString CIconButtonAccessible::Caption() const
{
    return static_cast<CIconButton*>(object())->m_strText;
}

#include <CustomControls/buttons/CSelectButtonAccessible.h>

#include <CustomControls/buttons/CSelectButton.h>

CSelectButtonAccessible::CSelectButtonAccessible(CSelectButton* button)
    : AccessibleButton(button)
{}

QString CSelectButtonAccessible::Caption() const
{
    return static_cast<CSelectButton*>(object())->m_strText;
}

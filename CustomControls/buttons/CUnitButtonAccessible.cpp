#include <CustomControls/buttons/CUnitButtonAccessible.h>

#include <CustomControls/buttons/CUnitButton.h>

CUnitButtonAccessible::CUnitButtonAccessible(CUnitButton* button)
    : AccessibleButton(button)
{}

QString CUnitButtonAccessible::Caption() const
{
    return static_cast<CUnitButton*>(object())->m_strText + QLatin1Char(' ') +
           static_cast<CUnitButton*>(object())->m_strUnit;
}

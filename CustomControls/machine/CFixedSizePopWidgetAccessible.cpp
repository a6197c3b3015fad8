#include <CustomControls/machine/CFixedSizePopWidgetAccessible.h>

#include <CustomControls/machine/CFixedSizePopWidget.h>

CFixedSizePopWidgetAccessible::CFixedSizePopWidgetAccessible(CFixedSizePopWidget* popUp)
    : AccessibleDialog(popUp)
{}

QString CFixedSizePopWidgetAccessible::Heading() const
{
    return widget()->windowTitle();
}

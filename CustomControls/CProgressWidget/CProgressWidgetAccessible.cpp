#include <CustomControls/CProgressWidget/CProgressWidgetAccessible.h>

#include <CustomControls/CProgressWidget/CProgressWidget.h>

CProgressWidgetAccessible::CProgressWidgetAccessible(CProgressWidget* dialog)
    : AccessibleDialog(dialog)
{}

QString CProgressWidgetAccessible::Heading() const
{
    return static_cast<CProgressWidget*>(object())->getTitle();
}

QString CProgressWidgetAccessible::Message() const
{
    return static_cast<CProgressWidget*>(object())->getTextRef();
}

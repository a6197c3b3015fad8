#include <CustomControls/messagebox/CVelmarMessageBoxAccessible.h>

#include <CustomControls/messagebox/CVelmarMessageBox.h>

CVelmarMessageBoxAccessible::CVelmarMessageBoxAccessible(CVelmarMessageBox* box)
    : AccessibleDialog(box)
{}

QString CVelmarMessageBoxAccessible::Heading() const
{
    return static_cast<CVelmarMessageBox*>(object())->windowTitle();
}

QString CVelmarMessageBoxAccessible::Message() const
{
    return static_cast<CVelmarMessageBox*>(object())->m_strContent;
}

#include <CustomControls/menus/CVelmarMenuAccessible.h>

#include <CustomControls/menus/CVelmarMenu.h>

CVelmarMenuAccessible::CVelmarMenuAccessible(CVelmarMenu* menu)
    : AccessibleControl(menu, QAccessible::PopupMenu)
{}

QString CVelmarMenuAccessible::Caption() const
{
    return {};
}

QList<QWidget*> CVelmarMenuAccessible::Parts() const
{
    return static_cast<CVelmarMenu*>(object())->Rows();
}

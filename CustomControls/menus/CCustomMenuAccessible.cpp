#include <CustomControls/menus/CCustomMenuAccessible.h>

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

CCustomMenuAccessible::CCustomMenuAccessible(CCustomMenu* menu)
    : AccessibleControl(menu, QAccessible::PopupMenu)
{}

QString CCustomMenuAccessible::Caption() const
{
    auto* menu = static_cast<CCustomMenu*>(object());
    if (const CCustomMenu* parent = menu->m_pParentMenu) {
        for (CCustomMenuItem* row : parent->m_listButtons) {
            if (parent->GetCustomMenu(row) == menu) {
                return row->text();
            }
        }
    }
    return {};
}

QList<QWidget*> CCustomMenuAccessible::Parts() const
{
    const auto* menu = static_cast<CCustomMenu*>(object());
    QList<QWidget*> parts;
    for (CCustomMenuItem* row : menu->m_listButtons) {
        parts.append(row);
    }
    return parts;
}

#include <CustomControls/menus/CVelmarMenuItemAccessible.h>

#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>
#include <CustomControls/menus/MenuHelpers_p.h>

CVelmarMenuItemAccessible::CVelmarMenuItemAccessible(CVelmarMenuItem* item)
    : AccessibleControl(item, QAccessible::MenuItem)
{}

QString CVelmarMenuItemAccessible::text(QAccessible::Text type) const
{
    if (type == QAccessible::Accelerator && object()) {
        return static_cast<CVelmarMenuItem*>(object())->ShortcutText();
    }
    return AccessibleControl::text(type);
}

QAccessible::State CVelmarMenuItemAccessible::state() const
{
    QAccessible::State state = AccessibleControl::state();
    if (auto* item = qobject_cast<CVelmarMenuItem*>(object())) {
        const CVelmarMenu* menu = MenuHelpers::MenuOf<CVelmarMenu>(item);
        state.hasPopup = item->m_bHasSubMenu;
        state.focusable = item->isEnabled();
        state.focused = menu && menu->m_pKeyRow == item && menu->isVisible();
    }
    return state;
}

QAccessibleInterface* CVelmarMenuItemAccessible::parent() const
{
    CVelmarMenu* menu = widget() ? MenuHelpers::MenuOf<CVelmarMenu>(widget()) : nullptr;
    return menu ? QAccessible::queryAccessibleInterface(menu) : AccessibleControl::parent();
}

QStringList CVelmarMenuItemAccessible::actionNames() const
{
    // A row that leads on reports no click, so there is nothing to press.
    const auto* item = qobject_cast<CVelmarMenuItem*>(object());
    return item && item->isEnabled() && !item->m_bHasSubMenu ? QStringList(pressAction()) : QStringList();
}

void CVelmarMenuItemAccessible::doAction(const QString& action)
{
    if (actionNames().contains(action)) {
        static_cast<CVelmarMenuItem*>(object())->Click();
    }
}

QString CVelmarMenuItemAccessible::Caption() const
{
    return static_cast<CVelmarMenuItem*>(object())->text();
}

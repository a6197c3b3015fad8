#include <CustomControls/menus/CCustomMenuItemAccessible.h>

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/MenuHelpers_p.h>
#include <CustomControls/menus/MenuKeyboard.h>

CCustomMenuItemAccessible::CCustomMenuItemAccessible(CCustomMenuItem* item)
    : AccessibleControl(item, QAccessible::MenuItem)
{}

QString CCustomMenuItemAccessible::text(QAccessible::Text type) const
{
    if (type == QAccessible::Accelerator && object()) {
        // The text views' menus hold the path of a picture there.
        const QString shortcut = static_cast<CCustomMenuItem*>(object())->ShortcutText();
        return shortcut.startsWith(QLatin1Char(':')) ? QString() : shortcut;
    }
    return AccessibleControl::text(type);
}

QAccessible::State CCustomMenuItemAccessible::state() const
{
    QAccessible::State state = AccessibleControl::state();
    if (const auto* item = qobject_cast<CCustomMenuItem*>(object())) {
        state.checkable = item->IsStateButton();
        state.checked = state.checkable && item->GetBtnState();
        state.hasPopup = item->m_bHasSubMenu;
        state.focusable = item->isEnabled();
        state.focused = MenuKeyboard::IsAt(item);
    }
    return state;
}

QAccessibleInterface* CCustomMenuItemAccessible::parent() const
{
    const auto* item = qobject_cast<CCustomMenuItem*>(object());
    CCustomMenu* menu = item ? MenuHelpers::MenuOf<CCustomMenu>(item) : nullptr;
    return menu ? QAccessible::queryAccessibleInterface(menu) : AccessibleControl::parent();
}

QStringList CCustomMenuItemAccessible::actionNames() const
{
    const auto* item = qobject_cast<CCustomMenuItem*>(object());
    if (!item || !item->isEnabled()) {
        return {};
    }
    return {item->m_bHasSubMenu ? showMenuAction() : item->IsStateButton() ? toggleAction() : pressAction()};
}

void CCustomMenuItemAccessible::doAction(const QString& action)
{
    if (actionNames().contains(action)) {
        MenuKeyboard::Activate(static_cast<CCustomMenuItem*>(object()));
    }
}

QString CCustomMenuItemAccessible::Caption() const
{
    return static_cast<CCustomMenuItem*>(object())->text();
}

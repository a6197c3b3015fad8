#include <CustomControls/menus/MenuKeyboard.h>

#include <CustomControls/accessibility/AccessibleControl.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/MenuHelpers_p.h>

#include <QKeyEvent>
#include <QPointer>

#include <utility>

namespace {

// One that its host has not hidden; whether its menu shows is another matter.
bool CanBeReached(const CCustomMenuItem* row)
{
    return row->isEnabled() && row->isVisibleTo(row->parentWidget());
}

} // namespace

MenuKeyboard::Outcome MenuKeyboard::Press(CCustomMenu* menu, const QKeyEvent* event)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return Ignored;
    }
    CCustomMenu* reached = Reached(menu);
    switch (event->key()) {
    case Qt::Key_Down:
        Step(reached, 1);
        return Taken;
    case Qt::Key_Up:
        Step(reached, -1);
        return Taken;
    case Qt::Key_Home:
        ChooseFirst(reached);
        return Taken;
    case Qt::Key_End:
        ChooseFrom(reached, int(reached->m_listButtons.size()) - 1, -1);
        return Taken;
    case Qt::Key_Right:
        if (reached->m_pCurrentItem && reached->m_pCurrentItem->m_bHasSubMenu) {
            Activate(reached->m_pCurrentItem);
            return Taken;
        }
        return Ignored;
    case Qt::Key_Left:
        return reached != menu && CloseSubMenu(reached) ? Taken : Ignored;
    case Qt::Key_Escape:
        return reached != menu && CloseSubMenu(reached) ? Taken : Leaves;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!reached->m_pCurrentItem) {
            return Ignored;
        }
        if (!event->isAutoRepeat()) {
            Activate(reached->m_pCurrentItem);
        }
        return Taken;
    default:
        return Ignored;
    }
}

void MenuKeyboard::ChooseFirst(CCustomMenu* menu)
{
    ChooseFrom(menu, 0, 1);
}

void MenuKeyboard::Activate(CCustomMenuItem* item)
{
    if (!item->isEnabled()) {
        return;
    }
    CCustomMenu* menu = MenuHelpers::MenuOf<CCustomMenu>(item);
    CCustomMenu* subMenu = menu ? menu->GetCustomMenu(item) : nullptr;
    if (subMenu) {
        const QPointer<CCustomMenu> opening(subMenu);
        menu->OpenSubMenu(item, subMenu);
        if (opening && opening->isVisible()) {
            ChooseFirst(opening);
        }
    } else if (!item->m_bHasSubMenu) {
        Q_EMIT item->SignalMenuItemClicked();
    }
}

bool MenuKeyboard::IsAt(const CCustomMenuItem* item)
{
    const CCustomMenu* menu = MenuHelpers::MenuOf<CCustomMenu>(item);
    return menu && menu->m_pCurrentItem == item && menu->isVisible();
}

// False when the row or its menu did not survive it.
bool MenuKeyboard::Choose(CCustomMenuItem* item)
{
    const QPointer<CCustomMenu> menu(MenuHelpers::MenuOf<CCustomMenu>(item));
    const QPointer<CCustomMenuItem> row(item);
    // As when the pointer enters another row: what an earlier one has opened goes.
    if (menu && menu->m_pOpenSubMenu && menu->m_pOpenSubMenu != menu->GetCustomMenu(item)) {
        std::exchange(menu->m_pOpenSubMenu, nullptr)->hide();
    }
    if (row) {
        row->SetChooseFocus(true);
    }
    if (!row || !menu) {
        return false;
    }
    TellEvent(row, QAccessible::Focus);
    return true;
}

bool MenuKeyboard::Step(CCustomMenu* menu, int step)
{
    const int count = int(menu->m_listButtons.size());
    const int current = int(menu->m_listButtons.indexOf(menu->m_pCurrentItem));
    const int first = current < 0 ? (step > 0 ? 0 : count - 1) : current + step;
    return ChooseFrom(menu, first, step);
}

// The first row from there on that can be reached; behind the last one comes the first.
bool MenuKeyboard::ChooseFrom(CCustomMenu* menu, int first, int step)
{
    const int count = int(menu->m_listButtons.size());
    for (int i = 0; i < count; ++i) {
        CCustomMenuItem* row = menu->m_listButtons.at(((first + i * step) % count + count) % count);
        if (CanBeReached(row)) {
            return Choose(row);
        }
    }
    return false;
}

bool MenuKeyboard::CloseSubMenu(CCustomMenu* subMenu)
{
    CCustomMenu* menu = subMenu->m_pParentMenu;
    CCustomMenuItem* row = menu ? menu->m_hashSubMenus.key(subMenu) : nullptr;
    if (!row || !menu->m_listButtons.contains(row)) {
        return false;
    }
    const QPointer<CCustomMenuItem> item(row);
    menu->CloseSubMenu(row, subMenu);
    if (item) {
        Choose(item);
    }
    return true;
}

// The keys follow a row with the choose focus; a sub-menu that the pointer has opened is not theirs.
CCustomMenu* MenuKeyboard::Reached(CCustomMenu* menu)
{
    while (menu->m_pOpenSubMenu && menu->m_pOpenSubMenu->isVisible() && menu->m_pOpenSubMenu->m_pCurrentItem) {
        menu = menu->m_pOpenSubMenu;
    }
    return menu;
}

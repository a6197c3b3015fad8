#include <CustomControls/toolbar/CToolButtonAccessible.h>

#include <CustomControls/toolbar/CToolButton.h>

#include <QMenu>

CToolButtonAccessible::CToolButtonAccessible(CToolButton* button)
    : AccessibleButton(button)
{}

QAccessible::Role CToolButtonAccessible::role() const
{
    const auto* button = qobject_cast<CToolButton*>(object());
    if (!button || !button->menu()) {
        return AccessibleButton::role();
    }
    return OpensMenuOnly() ? QAccessible::ButtonMenu : QAccessible::ButtonDropDown;
}

QAccessible::State CToolButtonAccessible::state() const
{
    QAccessible::State state = AccessibleButton::state();
    if (const auto* button = qobject_cast<CToolButton*>(object())) {
        state.hasPopup = button->menu() != nullptr;
    }
    return state;
}

QStringList CToolButtonAccessible::actionNames() const
{
    QStringList names = AccessibleButton::actionNames();
    const auto* button = qobject_cast<CToolButton*>(object());
    if (button && button->isEnabled() && button->menu()) {
        if (OpensMenuOnly()) {
            names.removeAll(pressAction());
            names.removeAll(toggleAction());
        }
        names.prepend(showMenuAction());
    }
    return names;
}

void CToolButtonAccessible::doAction(const QString& action)
{
    if (!actionNames().contains(action)) {
        return;
    }
    if (action != showMenuAction()) {
        AccessibleButton::doAction(action);
        return;
    }
    // Not within this call: the menu stays open in a loop of its own.
    QMetaObject::invokeMethod(static_cast<CToolButton*>(object()), &QToolButton::showMenu, Qt::QueuedConnection);
}

QString CToolButtonAccessible::Caption() const
{
    return SpokenCaption(static_cast<CToolButton*>(object())->text());
}

QList<QWidget*> CToolButtonAccessible::Parts() const
{
    QMenu* menu = static_cast<CToolButton*>(object())->menu();
    return menu ? QList<QWidget*>{menu} : QList<QWidget*>();
}

bool CToolButtonAccessible::OpensMenuOnly() const
{
    return static_cast<CToolButton*>(object())->popupMode() == QToolButton::InstantPopup;
}

#include <CustomControls/accessibility/AccessibleButton.h>

#include <QAbstractButton>
#include <QKeySequence>

AccessibleButton::AccessibleButton(QAbstractButton* button)
    : AccessibleControl(button, QAccessible::Button)
{}

QAccessible::Role AccessibleButton::role() const
{
    const QAbstractButton* button = Button();
    if (!button || !button->isCheckable()) {
        return QAccessible::Button;
    }
    return button->autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state = AccessibleControl::state();
    if (const QAbstractButton* button = Button()) {
        state.pressed = button->isDown();
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
    }
    return state;
}

QStringList AccessibleButton::actionNames() const
{
    const QAbstractButton* button = Button();
    if (!button || !button->isEnabled()) {
        return {};
    }
    return QStringList(button->isCheckable() ? toggleAction() : pressAction()) + AccessibleControl::actionNames();
}

void AccessibleButton::doAction(const QString& action)
{
    const QAbstractButton* button = Button();
    if (!button || !button->isEnabled()) {
        return;
    }
    if (action == pressAction() || action == toggleAction()) {
        Click();
    } else {
        AccessibleControl::doAction(action);
    }
}

QStringList AccessibleButton::keyBindingsForAction(const QString& action) const
{
    const QAbstractButton* button = Button();
    if (button && (action == pressAction() || action == toggleAction()) && !button->shortcut().isEmpty()) {
        return {button->shortcut().toString()};
    }
    return {};
}

QAbstractButton* AccessibleButton::Button() const
{
    return qobject_cast<QAbstractButton*>(object());
}

QString AccessibleButton::Caption() const
{
    return SpokenCaption(Button()->text());
}

void AccessibleButton::Click()
{
    Button()->click();
}

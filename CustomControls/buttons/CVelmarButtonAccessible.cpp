#include <CustomControls/buttons/CVelmarButtonAccessible.h>

#include <CustomControls/buttons/CVelmarButton.h>

CVelmarButtonAccessible::CVelmarButtonAccessible(CVelmarButton* button)
    : AccessibleButton(button)
{}

QAccessible::State CVelmarButtonAccessible::state() const
{
    QAccessible::State state = AccessibleButton::state();
    if (auto* button = qobject_cast<CVelmarButton*>(object())) {
        state.checkable = button->CanBeChosen();
        state.checked = state.checkable && button->GetChooseFocusState();
    }
    return state;
}

QString CVelmarButtonAccessible::Caption() const
{
    // A text that was never set is no name, and neither is it shown by a button of icons alone.
    auto* button = static_cast<CVelmarButton*>(object());
    return button->HasOwnText() ? button->GetButtonText() : QString();
}

void CVelmarButtonAccessible::Click()
{
    Q_EMIT static_cast<CVelmarButton*>(object())->SignalClicked();
}

#include <CustomControls/menus/CComboBoxAccessible.h>

#include <CustomControls/menus/CComboBox.h>

#include <QComboBox>

CComboBoxAccessible::CComboBoxAccessible(CComboBox* box)
    : AccessibleControl(box, QAccessible::ComboBox)
{}

QString CComboBoxAccessible::text(QAccessible::Text type) const
{
    const auto* box = qobject_cast<QComboBox*>(object());
    if (!box) {
        return {};
    }
    if (type == QAccessible::Value) {
        return box->currentText();
    }
    const QString text = AccessibleControl::text(type);
    // Better the entry than nothing, where neither host nor label has named the box.
    return type == QAccessible::Name && text.isEmpty() ? box->currentText() : text;
}

QAccessible::State CComboBoxAccessible::state() const
{
    QAccessible::State state = AccessibleControl::state();
    if (const auto* box = qobject_cast<CComboBox*>(object())) {
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = box->IsListOpen();
        state.collapsed = !state.expanded;
    }
    return state;
}

QStringList CComboBoxAccessible::actionNames() const
{
    return widget() && widget()->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
}

void CComboBoxAccessible::doAction(const QString& action)
{
    if (!actionNames().contains(action)) {
        return;
    }
    auto* box = static_cast<CComboBox*>(object());
    if (box->IsListOpen()) {
        box->hidePopup();
    } else {
        box->showPopup();
    }
}

QString CComboBoxAccessible::Caption() const
{
    return {};
}

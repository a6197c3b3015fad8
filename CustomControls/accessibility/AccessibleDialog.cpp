#include <CustomControls/accessibility/AccessibleDialog.h>

#include <CustomControls/accessibility/AccessibleControl.h>

AccessibleDialog::AccessibleDialog(QWidget* dialog)
    : QAccessibleWidget(dialog, QAccessible::Dialog)
{}

QString AccessibleDialog::text(QAccessible::Text type) const
{
    const QWidget* dialog = widget();
    if (!dialog) {
        return {};
    }
    if (type == QAccessible::Name && dialog->accessibleName().isEmpty()) {
        const QString heading = SpokenText(Heading());
        return heading.isEmpty() ? SpokenText(Message()) : heading;
    }
    if (type == QAccessible::Description && dialog->accessibleDescription().isEmpty()) {
        return SpokenText(Message());
    }
    return QAccessibleWidget::text(type);
}

QAccessible::State AccessibleDialog::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (const QWidget* dialog = widget()) {
        state.modal = dialog->isModal();
    }
    return state;
}

QString AccessibleDialog::Message() const
{
    return {};
}

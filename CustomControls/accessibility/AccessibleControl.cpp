#include <CustomControls/accessibility/AccessibleControl.h>

#include <QTextDocumentFragment>

namespace {

QString WithoutMnemonic(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&')) {
            ++i; // two of them stand for one
            if (i >= text.size()) {
                break;
            }
        }
        plain += text.at(i);
    }
    return plain;
}

void (*s_listener)(QAccessibleEvent*) = nullptr;

bool IsHeard()
{
    return s_listener || QAccessible::isActive();
}

void Tell(QAccessibleEvent* event)
{
    if (s_listener) {
        s_listener(event);
    }
    QAccessible::updateAccessibility(event);
}

} // namespace

AccessibleControl::AccessibleControl(QWidget* control, QAccessible::Role role)
    : QAccessibleWidget(control, role)
{}

QString AccessibleControl::text(QAccessible::Text type) const
{
    const QWidget* control = widget();
    if (!control) {
        return {};
    }
    if (type == QAccessible::Name) {
        if (!control->accessibleName().isEmpty()) {
            return control->accessibleName();
        }
        QString caption = SpokenText(Caption());
        if (!caption.isEmpty()) {
            return caption;
        }
        const QString inherited = QAccessibleWidget::text(QAccessible::Name);
        return inherited.isEmpty() ? SpokenText(control->toolTip()) : inherited;
    }
    if (type == QAccessible::Description) {
        if (!control->accessibleDescription().isEmpty()) {
            return control->accessibleDescription();
        }
        const QString detail = SpokenText(Detail());
        const QString description = detail.isEmpty() ? SpokenText(control->toolTip()) : detail;
        return description == text(QAccessible::Name) ? QString() : description;
    }
    return QAccessibleWidget::text(type);
}

QAccessibleInterface* AccessibleControl::child(int index) const
{
    return widget() ? QAccessible::queryAccessibleInterface(Parts().value(index)) : nullptr;
}

QAccessibleInterface* AccessibleControl::childAt(int x, int y) const
{
    if (!widget()) {
        return nullptr;
    }
    const QList<QWidget*> parts = Parts();
    for (QWidget* part : parts) {
        QAccessibleInterface* child = QAccessible::queryAccessibleInterface(part);
        if (child && part->isVisible() && child->rect().contains(x, y)) {
            return child;
        }
    }
    return nullptr;
}

QAccessibleInterface* AccessibleControl::focusChild() const
{
    if (!widget()) {
        return nullptr;
    }
    const QList<QWidget*> parts = Parts();
    for (QWidget* part : parts) {
        QAccessibleInterface* child = QAccessible::queryAccessibleInterface(part);
        if (child && child->state().focused) {
            return child;
        }
    }
    return nullptr;
}

int AccessibleControl::childCount() const
{
    return widget() ? int(Parts().size()) : 0;
}

int AccessibleControl::indexOfChild(const QAccessibleInterface* child) const
{
    return widget() && child ? int(Parts().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
}

QString AccessibleControl::Detail() const
{
    return {};
}

QList<QWidget*> AccessibleControl::Parts() const
{
    return {};
}

QString SpokenText(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText().simplified()
                                     : text.simplified();
}

QString SpokenCaption(const QString& text)
{
    return SpokenText(WithoutMnemonic(text));
}

void SetTellListener(void (*listener)(QAccessibleEvent*))
{
    s_listener = listener;
}

void TellNameChanged(QWidget* control)
{
    TellEvent(control, QAccessible::NameChanged);
}

void TellCheckedChanged(QWidget* control)
{
    if (IsHeard()) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(control, changed);
        Tell(&event);
    }
}

void TellEvent(QWidget* control, QAccessible::Event type)
{
    if (IsHeard()) {
        QAccessibleEvent event(control, type);
        Tell(&event);
    }
}

#pragma once

#include <QAccessibleWidget>
#include <QWidget>

/**
 * What assistive technology sees of a control.
 *
 * Its name is the one that the host has set (QWidget::accessibleName), else what the control shows, else a label's that
 * has it as its buddy, else its tool tip. Whatever the control is built from (labels, mostly) is not told a second
 * time: it has no children unless a subclass names some.
 */
class AccessibleControl : public QAccessibleWidget
{
public:
    AccessibleControl(QWidget* control, QAccessible::Role role);

    QString text(QAccessible::Text type) const override;

    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

protected:
    /** The words that the control shows. */
    virtual QString Caption() const = 0;
    /** What it tells beside its name, of itself. */
    virtual QString Detail() const;
    /** The widgets that are told as children, in their order. */
    virtual QList<QWidget*> Parts() const;
};

/** Words as they are read out: in one line and without markup. */
QString SpokenText(const QString& text);
/** The same of a text in which an ampersand marks a key. */
QString SpokenCaption(const QString& text);

/** Hears what is told of the controls even while no assistive technology is active, as tests need it; null for nobody.
 */
void SetTellListener(void (*listener)(QAccessibleEvent*));

/** Tells that what is told of a control as its name has changed. Costs nothing while nobody listens. */
void TellNameChanged(QWidget* control);
/** Tells that a control was checked or chosen, or is not any more. */
void TellCheckedChanged(QWidget* control);
/** Tells of an event without further content. */
void TellEvent(QWidget* control, QAccessible::Event event);

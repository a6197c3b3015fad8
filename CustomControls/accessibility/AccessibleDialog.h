#pragma once

#include <QAccessibleWidget>
#include <QWidget>

/**
 * A window that asks or tells something. Everything in it is told in its own right; its name is the host's, else its
 * heading, and its description is what it says.
 */
class AccessibleDialog : public QAccessibleWidget
{
public:
    explicit AccessibleDialog(QWidget* dialog);

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;

protected:
    virtual QString Heading() const = 0;
    virtual QString Message() const;
};

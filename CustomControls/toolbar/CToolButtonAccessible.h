#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CToolButton;

/** A tool of a tool bar: its caption in one line is its name; one with a menu opens it. */
class CToolButtonAccessible : public AccessibleButton
{
public:
    explicit CToolButtonAccessible(CToolButton* button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString Caption() const override;
    /** The menu. */
    QList<QWidget*> Parts() const override;

private:
    bool OpensMenuOnly() const;
};

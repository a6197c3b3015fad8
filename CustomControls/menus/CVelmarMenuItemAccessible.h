#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CVelmarMenuItem;

/** A row with icon and shortcut. To press it does what a click does. */
class CVelmarMenuItemAccessible : public AccessibleControl
{
public:
    explicit CVelmarMenuItemAccessible(CVelmarMenuItem* item);

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    /** The menu, not the panel on which the row lies. */
    QAccessibleInterface* parent() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString Caption() const override;
};

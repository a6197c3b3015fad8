#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CCustomMenuItem;

/** A row of a menu. To press it does what a click does; on a row that leads on it opens the sub-menu. */
class CCustomMenuItemAccessible : public AccessibleControl
{
public:
    explicit CCustomMenuItemAccessible(CCustomMenuItem* item);

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    /** The menu, not the panel on which the row lies. */
    QAccessibleInterface* parent() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString Caption() const override;
};

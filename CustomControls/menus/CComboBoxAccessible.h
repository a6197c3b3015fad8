#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CComboBox;

/**
 * The combo box with a list of its own: its value is the current entry, and its action opens and closes the list. The
 * list is told as a menu of its own while it is open; the toolkit's pop-up, which never opens, is not told.
 */
class CComboBoxAccessible : public AccessibleControl
{
public:
    explicit CComboBoxAccessible(CComboBox* box);

    QString text(QAccessible::Text type) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString Caption() const override;
};

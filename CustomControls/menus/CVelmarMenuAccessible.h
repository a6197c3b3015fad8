#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CVelmarMenu;

/** The flat menu and the list of a combo box: its buttons and rows are its children, from top to bottom. */
class CVelmarMenuAccessible : public AccessibleControl
{
public:
    explicit CVelmarMenuAccessible(CVelmarMenu* menu);

protected:
    QString Caption() const override;
    QList<QWidget*> Parts() const override;
};

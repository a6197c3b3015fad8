#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class CCustomMenu;

/** A menu: its rows are its children, whatever panel they lie on. */
class CCustomMenuAccessible : public AccessibleControl
{
public:
    explicit CCustomMenuAccessible(CCustomMenu* menu);

protected:
    /** A sub-menu is named by the row that opens it. */
    QString Caption() const override;
    QList<QWidget*> Parts() const override;
};

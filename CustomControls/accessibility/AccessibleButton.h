#pragma once

#include <CustomControls/accessibility/AccessibleControl.h>

class QAbstractButton;

/** A button that paints itself: its role, its states and a press that does what a click does, once. */
class AccessibleButton : public AccessibleControl
{
public:
    explicit AccessibleButton(QAbstractButton* button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& action) const override;

protected:
    QAbstractButton* Button() const;
    /** The toolkit's own text, without the mark of its key. */
    QString Caption() const override;
    /** Whoever hears of the click may delete the button, and this interface with it. */
    virtual void Click();
};

#pragma once

#include <CustomControls/accessibility/AccessibleButton.h>

class CHintButton;

/** A button with a note: the note is what it tells, and its name where it bears no words. A press shows it as well. */
class CHintButtonAccessible : public AccessibleButton
{
public:
    explicit CHintButtonAccessible(CHintButton* button);

protected:
    QString Caption() const override;
    QString Detail() const override;
    void Click() override;
};

#pragma once

#include <CustomControls/buttons/CHintToolTip.h>

class QLabel;

/**
 * A note that shows a text on a white card with a thin border. Short texts stay on one line; longer ones wrap so that
 * the note is never wider than 370 pixels. CHintButton::SetToolTipText() makes one by itself and owns it.
 *
 * A note that the host makes belongs to its parent, as any widget; given to a button by CHintButton::SetToolTip() it
 * stays the host's, and either may be deleted before the other.
 *
 * @code
 * auto* note = new CHintTextToolTip(button, window);
 * note->setText(tr("主轴转速过高"));
 * button->SetToolTip(note);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CHintTextToolTip : public CHintToolTip
{
    Q_OBJECT

public:
    /** Arguments as those of CHintToolTip. */
    CHintTextToolTip(QWidget* ownerButton, QWidget* parent);

    /** Shows @p text and fits the note to it, also while it is shown. An empty text leaves an empty card. */
    void setText(const QString& text) override;

private:
    QLabel* m_pLabel = nullptr;
};

#include <CustomControls/buttons/CHintButtonAccessible.h>

#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintToolTip.h>

#include <QPointer>

CHintButtonAccessible::CHintButtonAccessible(CHintButton* button)
    : AccessibleButton(button)
{}

QString CHintButtonAccessible::Caption() const
{
    const auto* button = static_cast<CHintButton*>(object());
    // Not what it shows, which may be wrapped in the middle of a word or cut.
    const QString caption = SpokenCaption(button->m_strRawText.isEmpty() ? button->text() : button->m_strRawText);
    return caption.isEmpty() ? Detail() : caption;
}

QString CHintButtonAccessible::Detail() const
{
    const auto* button = static_cast<CHintButton*>(object());
    QAccessibleInterface* note = QAccessible::queryAccessibleInterface(button->m_pToolTip);
    return note ? note->text(QAccessible::Name) : QString();
}

void CHintButtonAccessible::Click()
{
    const QPointer<CHintButton> button = static_cast<CHintButton*>(object());
    button->ShowToolTipBeside();
    if (button) {
        button->click();
    }
}

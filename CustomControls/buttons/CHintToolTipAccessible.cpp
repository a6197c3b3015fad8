#include <CustomControls/buttons/CHintToolTipAccessible.h>

#include <CustomControls/buttons/CHintToolTip.h>

#include <QLabel>
#include <QTextEdit>

CHintToolTipAccessible::CHintToolTipAccessible(CHintToolTip* toolTip)
    : AccessibleControl(toolTip, QAccessible::ToolTip)
{}

QString CHintToolTipAccessible::Caption() const
{
    // A host's note holds what the host has put into it.
    QStringList words;
    const QList<QWidget*> parts = widget()->findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        if (const auto* label = qobject_cast<const QLabel*>(part)) {
            words.append(SpokenText(label->text()));
        } else if (const auto* text = qobject_cast<const QTextEdit*>(part)) {
            words.append(text->toPlainText());
        }
    }
    words.removeAll(QString());
    return words.join(QLatin1Char(' '));
}

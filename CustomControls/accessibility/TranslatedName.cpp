#include <CustomControls/accessibility/TranslatedName.h>

#include <QEvent>
#include <QWidget>

namespace {

/** Belongs to the control that it names. */
class NameTranslator : public QObject
{
public:
    NameTranslator(QWidget* control, QString (*name)())
        : QObject(control)
        , m_pControl(control)
        , m_name(name)
        , m_strGiven(name())
    {
        control->setAccessibleName(m_strGiven);
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange && watched == m_pControl &&
            m_pControl->accessibleName() == m_strGiven) {
            m_strGiven = m_name();
            m_pControl->setAccessibleName(m_strGiven);
        }
        return false;
    }

private:
    QWidget* const m_pControl;
    QString (*const m_name)();
    QString m_strGiven;
};

} // namespace

void SetTranslatedName(QWidget* control, QString (*name)())
{
    new NameTranslator(control, name);
}

#include "CustomControlsTranslation.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

bool LoadCustomControlsTranslation(const QLocale& locale)
{
    static QPointer<QTranslator> s_pTranslator;
    delete s_pTranslator;
    if (!QCoreApplication::instance()) {
        return false;
    }
    if (locale.language() == QLocale::Chinese) {
        return true;
    }

    // A static library's resources are linked only where something asks for them.
    Q_INIT_RESOURCE(CustomControlsTranslations);
    s_pTranslator = new QTranslator(QCoreApplication::instance());
    const QLocale known = locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
    if (s_pTranslator->load(known, QStringLiteral("CustomControls"), QStringLiteral("_"),
                            QStringLiteral(":/customcontrols/translations"))) {
        return QCoreApplication::installTranslator(s_pTranslator);
    }
    delete s_pTranslator;
    return false;
}

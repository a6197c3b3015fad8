#include "GalleryLanguage.h"

#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/CustomControlsTranslation.h>

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

namespace {
/** The gallery's English, loaded once; the application is its owner. */
QTranslator* English()
{
    static QPointer<QTranslator> s_pEnglish;
    if (!s_pEnglish) {
        s_pEnglish = new QTranslator(QCoreApplication::instance());
        if (!s_pEnglish->load(QStringLiteral(":/gallery/translations/gallery_en.qm"))) {
            qWarning("the gallery's English texts are missing");
        }
    }
    return s_pEnglish;
}
} // namespace

void GalleryLanguage::Use(bool chinese)
{
    // First, so that what answers the event below already lays itself out for the new language.
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
    LoadCustomControlsTranslation(QLocale(chinese ? QLocale::Chinese : QLocale::English));
    QCoreApplication::removeTranslator(English());
    if (!chinese) {
        QCoreApplication::installTranslator(English());
    }
}

bool GalleryLanguage::IsChinese()
{
    return CorvaneTextHelper::instance()->AppInChineseEnvironment();
}

QString GalleryLanguage::InEnglish(const char* context, const char* text)
{
    const QString english = English()->translate(context, text);
    return english.isEmpty() ? QString::fromUtf8(text) : english;
}

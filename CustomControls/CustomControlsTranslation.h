#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QLocale>

/**
 * Puts the library's own texts into the language of @p locale, for every control that is built from now on; those that
 * stand keep theirs. The texts are Chinese by themselves; English comes with the library. A host calls it once after
 * its QApplication is there, and again when its user changes the language:
 *
 * @code
 * QApplication application(argc, argv);
 * LoadCustomControlsTranslation(QLocale::system());
 * @endcode
 *
 * The translation belongs to the application and takes the place of the one that an earlier call brought; the toolkit
 * sends QEvent::LanguageChange. Translators of the host are left alone. How much room a control gives its texts is
 * another matter: that is CorvaneTextHelper::SetAppInChineseEnvironment.
 *
 * @param locale a Chinese one restores the Chinese texts; the C locale counts as English
 * @return false when there is no translation into that language, or no application: the texts are Chinese then
 */
CUSTOMCONTROLS_EXPORT bool LoadCustomControlsTranslation(const QLocale& locale);

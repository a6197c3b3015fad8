#pragma once

#include <QString>

/**
 * The language that the whole program speaks: the library's texts, the gallery's own, and the room that controls give
 * them. GUI thread only.
 */
namespace GalleryLanguage {

/**
 * Changes to Chinese or English. Every window then gets QEvent::LanguageChange, and what it builds from there on speaks
 * the new language; library controls take their texts when they are built, so the window builds them anew.
 */
void Use(bool chinese);

bool IsChinese();

/** What a Chinese text reads in English, whatever language is in use; the text itself when it has no translation. */
QString InEnglish(const char* context, const char* text);

} // namespace GalleryLanguage

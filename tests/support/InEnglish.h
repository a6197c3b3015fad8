#pragma once

#include <CustomControls/CustomControlsTranslation.h>

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>

/** The application speaks English from here to the end of the scope, as if its user had just changed the language. */
class InEnglish
{
public:
    InEnglish() { Speak(QLocale::English); }
    ~InEnglish() { Speak(QLocale::Chinese); }
    Q_DISABLE_COPY_MOVE(InEnglish)

private:
    static void Speak(QLocale::Language language)
    {
        LoadCustomControlsTranslation(QLocale(language));
        // The toolkit posts it to the windows; from there it goes down to all that is in them.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    }
};

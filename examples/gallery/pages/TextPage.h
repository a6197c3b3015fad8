#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

/** A text editor and a text browser with the house's context menus. */
class TextPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TextPage(const GalleryOptions& options);

private:
    void AddNotes();
    void AddManual();
    void ShowClipboard();

    QLabel* m_pOutcome;
};

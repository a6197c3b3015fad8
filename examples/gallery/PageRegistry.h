#pragma once

#include <QList>
#include <QString>

class GalleryPage;
struct GalleryOptions;

/** One page of the gallery, as the page list shows it. */
struct PageEntry
{
    QString strName;    ///< what --page takes
    QString strTitle;   ///< in the page list and as heading
    QString strPurpose; ///< the line under the heading
    GalleryPage* (*create)(const GalleryOptions& options);
};

/** The pages in the order of the list. Built when it is first asked for, in the language that is then installed. */
const QList<PageEntry>& GalleryPages();

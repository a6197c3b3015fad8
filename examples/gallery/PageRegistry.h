#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class GalleryPage;
struct GalleryOptions;

/** One page of the gallery, as the page list shows it. */
struct PageEntry
{
    QString strName;      ///< what --page takes
    QString strSource;    ///< its file, from the gallery\'s folder
    const char* pTitle;   ///< in Chinese
    const char* pPurpose; ///< in Chinese
    QStringList classes;  ///< the library's classes that the page shows
    QStringList keywords; ///< what else a user may look for, in both languages
    GalleryPage* (*create)(const GalleryOptions& options);

    /** In the page list and as heading, in the language in use. */
    QString Title() const;
    /** The line under the heading, in the language in use. */
    QString Purpose() const;
    /** Whether each word of @p search occurs in the title (of either language), a class or a keyword. */
    bool Matches(const QString& search) const;
};

/** The pages in the order of the list. */
const QList<PageEntry>& GalleryPages();

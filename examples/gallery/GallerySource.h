#pragma once

#include <QList>
#include <QString>

/**
 * The gallery's own lines, as they were when it was built. An example's lines stand between two markers that are alike,
 * "//! [name]"; a name may be marked in several places and files, for an example that takes a class of its own.
 */
namespace GallerySource {

struct Part
{
    QString strFile;  ///< from the gallery's folder
    QString strLines; ///< without the markers and the indent that all of them have
};

/** The parts of the example in the order of their files; none for an unknown name. */
QList<Part> Find(const QString& example);

} // namespace GallerySource

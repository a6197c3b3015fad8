#pragma once

#include <QPushButton>

/**
 * A large button with a picture, a title and a line of detail; the pages use it where an example is a dialog that a
 * click opens.
 */
class GalleryTile : public QPushButton
{
    Q_OBJECT

public:
    /** @param picture a resource path, may be empty; @param objectName by which the tour finds the tile */
    GalleryTile(const QString& objectName, const QString& picture, const QString& title, const QString& detail,
                QWidget* parent = nullptr);
};

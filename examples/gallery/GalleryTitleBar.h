#pragma once

#include <QWidget>

/** The band at the top of the window: the product's mark, its name, and what the user looks at. */
class GalleryTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryTitleBar(QWidget* parent = nullptr);
};

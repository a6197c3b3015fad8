#pragma once

#include <QWidget>

/** A small floating panel of jog keys that docks to an edge of the screen, as a host keeps one at hand. */
class JogPalette : public QWidget
{
    Q_OBJECT

public:
    explicit JogPalette(QWidget* parent);

    /** Shows the panel at the place of a 3 by 3 grid over the screen: column and row from 0 to 2. */
    void DockAt(int column, int row);
};

#pragma once

#include <CustomControls/frameless/PureQtFramelessWindow.h>

/**
 * The machine's axes in large figures, on a small window that the user puts where there is room. It is the same on
 * every system: it moves and resizes by itself.
 */
class PositionPanel : public PureQtFramelessWindow
{
    Q_OBJECT

public:
    PositionPanel();

protected:
    void paintEvent(QPaintEvent* event) override;
};

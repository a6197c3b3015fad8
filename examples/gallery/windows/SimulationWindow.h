#pragma once

#include <CustomControls/frameless/FramelessMainWindow.h>

class QLabel;
class QSlider;
class ToolpathView;

/**
 * Shows how a pocket is cut: a window of its own beside the main one, which the user snaps to a side of the screen,
 * maximises, or moves to a second screen.
 */
class SimulationWindow : public FramelessMainWindow
{
    Q_OBJECT

public:
    explicit SimulationWindow(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void ShowProgress(int percent);

    ToolpathView* m_pView;
    QSlider* m_pProgress;
    QLabel* m_pText;
};

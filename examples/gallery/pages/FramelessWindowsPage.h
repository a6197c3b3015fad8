#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <QPointer>

class PositionPanel;
class QLabel;

/** The three kinds of windows without a system frame, each doing what it is made for. */
class FramelessWindowsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FramelessWindowsPage(const GalleryOptions& options);
    ~FramelessWindowsPage() override;

private:
    void OpenSimulation();
    void OpenTool();
    void OpenPosition();
    void AddPopUps();
    void OpenStock();
    void OpenRename();

    QLabel* m_pOutcome;
    QString m_strJob;
    QPointer<PositionPanel> m_pPanel; // has no parent: as a child it would be no window
};

#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class MachineDiscovery;
class QCheckBox;

/** CSelectMachineBox with the host's side of it: discovery, connection, and the machine that is connected now. */
class MachinePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MachinePage(const GalleryOptions& options);

private:
    void OpenPanel(bool forCalibration);
    void ShowMachine();

    MachineDiscovery* m_pDiscovery;
    QCheckBox* m_pUsbOnly;
    QLabel* m_pOutcome;
    QPushButton* m_pDisconnect = nullptr;
};

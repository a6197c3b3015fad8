#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class CSelectMachineBox;
class MachineDiscovery;
class MachineQuery;

/**
 * The host's side of a machine selection panel: it answers SignalMachineSelected. The machine is asked for its serial
 * number; when it tells the one that is expected (any, for an address typed by hand that no announcement has named) it
 * becomes the current machine and the panel closes, otherwise the panel becomes usable again and a box says why.
 *
 * The panel may close at any time, even while a machine is being asked; the answer is then dropped.
 *
 * @code
 * auto* panel = new CSelectMachineBox(this);
 * new MachineConnector(panel, discovery); // lives as long as the panel
 * panel->show();
 * @endcode
 */
class MachineConnector : public QObject
{
    Q_OBJECT

public:
    MachineConnector(CSelectMachineBox* panel, const MachineDiscovery* discovery);

private:
    void Connect(const QString& ip, const QString& serial);
    void HandleAnswer(const QString& ip, const QString& expected, const QString& serial, const QString& reason);

    QPointer<CSelectMachineBox> m_pPanel;
    QPointer<const MachineDiscovery> m_pDiscovery;
    QPointer<MachineQuery> m_pQuery;
};

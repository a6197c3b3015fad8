#include "MachineConnector.h"

#include "MachineDiscovery.h"
#include "MachineQuery.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

MachineConnector::MachineConnector(CSelectMachineBox* panel, const MachineDiscovery* discovery)
    : QObject(panel)
    , m_pPanel(panel)
    , m_pDiscovery(discovery)
{
    connect(panel, &CSelectMachineBox::SignalMachineSelected, this, &MachineConnector::Connect);
}

//! [machine-panel]
void MachineConnector::Connect(const QString& ip, const QString& serial)
{
    // A panel waits for its answer before it can ask again; should it ask again all the same, the newer question
    // counts.
    delete m_pQuery;
    m_pQuery = new MachineQuery(this);
    connect(
        m_pQuery, &MachineQuery::SignalFinished, this,
        [this, ip, serial](const QString& found, const QString& reason) { HandleAnswer(ip, serial, found, reason); });
    m_pQuery->Start(ip, m_pDiscovery ? m_pDiscovery->MachinePort(ip) : MachineDiscovery::DefaultMachinePort);
}
//! [machine-panel]

//! [machine-panel]
void MachineConnector::HandleAnswer(const QString& ip, const QString& expected, const QString& serial,
                                    const QString& reason)
{
    QString problem = reason;
    if (problem.isEmpty() && !expected.isEmpty() && expected != serial) {
        problem = tr("该地址上的机床序列号是 %1，不是所选的 %2。").arg(serial, expected);
    }
    if (!m_pPanel) {
        return;
    }
    if (problem.isEmpty()) {
        CDebugLog::AddLog(QStringLiteral("machine connected at %1, serial ends in %2").arg(ip, serial.right(3)));
        CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(true, ip, serial);
        m_pPanel->OnConnectResult(true);
        return;
    }
    CDebugLog::AddLog(QStringLiteral("machine at %1 refused: %2").arg(ip, problem));
    m_pPanel->OnConnectResult(false);
    // The last act here: while the box is open the panel, and this object with it, may go.
    CVelmarMessageBox::ShowWindow(m_pPanel, MsgBtnOk, MsgIconPop3, tr("连接失败"), problem, {});
}
//! [machine-panel]

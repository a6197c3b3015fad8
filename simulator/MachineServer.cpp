#include <simulator/MachineServer.h>

#include <simulator/ExchangeLog.h>
#include <simulator/MachineConnection.h>

#include <QNetworkProxy>
#include <QTcpSocket>

MachineServer::MachineServer(const QString& serial, const Fault& fault, int idleLimitMs, QObject* parent)
    : QTcpServer(parent)
    , m_strSerial(serial)
    , m_fault(fault)
    , m_iIdleLimitMs(idleLimitMs)
{
    setProxy(QNetworkProxy::NoProxy);
    // Hosts that come all at once must not wait for the system to let them try again.
    setListenBacklogSize(kConnectionLimit);
    connect(this, &QTcpServer::newConnection, this, &MachineServer::Accept);
}

void MachineServer::Accept()
{
    while (QTcpSocket* socket = nextPendingConnection()) {
        if (m_iConnections >= kConnectionLimit) {
            ExchangeLog::Line(
                QStringLiteral("machine %1 | turned away: too many connections").arg(ExchangeLog::Peer(*socket)));
            delete socket;
            continue;
        }
        ++m_iConnections;
        auto* connection = new MachineConnection(socket, m_strSerial, m_fault, m_iIdleLimitMs, this);
        connect(connection, &QObject::destroyed, this, [this] { --m_iConnections; });
    }
}

#include <simulator/MachineServer.h>

#include <simulator/ExchangeLog.h>
#include <simulator/MachineConnection.h>

#include <QNetworkProxy>
#include <QTcpSocket>

MachineServer::MachineServer(const QString& serial, const Fault& fault, int idleLimitMs, QObject* parent)
    : QObject(parent)
    , m_strSerial(serial)
    , m_fault(fault)
    , m_iIdleLimitMs(idleLimitMs)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    // Hosts that come all at once must not wait for the system to let them try again.
    m_server.setListenBacklogSize(kConnectionLimit);
    connect(&m_server, &QTcpServer::newConnection, this, &MachineServer::Accept);
}

bool MachineServer::Listen(const QHostAddress& address, quint16 port)
{
    return m_server.listen(address, port);
}

quint16 MachineServer::Port() const
{
    return m_server.serverPort();
}

QString MachineServer::ErrorText() const
{
    return m_server.errorString();
}

void MachineServer::Accept()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
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

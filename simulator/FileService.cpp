#include <simulator/FileService.h>

#include <simulator/FileSession.h>

#include <QNetworkProxy>
#include <QTcpSocket>

FileService::FileService(int idleLimitMs, QObject* parent)
    : QObject(parent)
    , m_iIdleLimitMs(idleLimitMs)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &FileService::Accept);
}

bool FileService::Listen(const QHostAddress& address, quint16 port)
{
    return m_server.listen(address, port);
}

quint16 FileService::Port() const
{
    return m_server.serverPort();
}

QString FileService::ErrorText() const
{
    return m_server.errorString();
}

void FileService::Accept()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        if (m_iSessions >= kSessionLimit) {
            delete socket;
            continue;
        }
        ++m_iSessions;
        connect(new FileSession(socket, m_iIdleLimitMs, this), &QObject::destroyed, this, [this] { --m_iSessions; });
    }
}

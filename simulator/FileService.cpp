#include <simulator/FileService.h>

#include <simulator/FileSession.h>

#include <QNetworkProxy>
#include <QTcpSocket>

FileService::FileService(int idleLimitMs, QObject* parent)
    : QTcpServer(parent)
    , m_iIdleLimitMs(idleLimitMs)
{
    setProxy(QNetworkProxy::NoProxy);
    connect(this, &QTcpServer::newConnection, this, &FileService::Accept);
}

void FileService::Accept()
{
    while (QTcpSocket* socket = nextPendingConnection()) {
        if (m_iSessions >= kSessionLimit) {
            delete socket;
            continue;
        }
        ++m_iSessions;
        connect(new FileSession(socket, m_iIdleLimitMs, this), &QObject::destroyed, this, [this] { --m_iSessions; });
    }
}

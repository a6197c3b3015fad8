#include <simulator/FileSession.h>

#include <simulator/ExchangeLog.h>

#include <QTcpSocket>

namespace {

constexpr qsizetype kLineLimit = 512;
const QByteArray kGreeting = QByteArrayLiteral("220 Velmar file service ready\r\n");
const QByteArray kFarewell = QByteArrayLiteral("221 Goodbye\r\n");

} // namespace

FileSession::FileSession(QTcpSocket* socket, int idleLimitMs, QObject* parent)
    : QObject(parent)
    , m_pSocket(socket)
    , m_strPeer(ExchangeLog::Peer(*socket))
{
    m_pSocket->setParent(this);
    m_pSocket->setReadBufferSize(kLineLimit);
    connect(m_pSocket, &QTcpSocket::readyRead, this, &FileSession::Read);
    connect(m_pSocket, &QTcpSocket::disconnected, this, [this] { End(ExchangeLog::EndedByHost(*m_pSocket)); });
    connect(&m_timerIdle, &QTimer::timeout, this, [this] { End(QStringLiteral("idle for too long")); });
    m_timerIdle.setSingleShot(true);
    m_timerIdle.start(idleLimitMs);
    m_pSocket->write(kGreeting);
    Read();
}

FileSession::~FileSession()
{
    End(QStringLiteral("the simulator stopped"));
}

QByteArray FileSession::Reply(const QByteArray& command)
{
    const QByteArray verb = command.trimmed().split(' ').first().toUpper();
    if (verb == "QUIT") {
        return kFarewell;
    }
    return verb == "NOOP" ? QByteArrayLiteral("200 OK\r\n") : QByteArrayLiteral("502 This machine keeps no files\r\n");
}

void FileSession::Read()
{
    while (!m_bEnded && m_pSocket->bytesAvailable() > 0) {
        m_buffer += m_pSocket->readAll();
        for (qsizetype end = m_buffer.indexOf('\n'); end >= 0 && !m_bEnded; end = m_buffer.indexOf('\n')) {
            const QByteArray reply = Reply(m_buffer.left(end));
            m_buffer.remove(0, end + 1);
            ++m_iCommands;
            m_pSocket->write(reply);
            if (reply == kFarewell) {
                End(QStringLiteral("QUIT"));
            }
        }
        if (m_buffer.size() > kLineLimit) {
            End(QStringLiteral("a command without an end"));
        }
    }
}

void FileSession::End(const QString& how)
{
    if (m_bEnded) {
        return;
    }
    m_bEnded = true;
    m_timerIdle.stop();
    ExchangeLog::Line(
        QStringLiteral("file service %1 | %2 commands | ended: %3").arg(m_strPeer).arg(m_iCommands).arg(how));
    m_pSocket->disconnectFromHost();
    if (m_pSocket->state() == QAbstractSocket::UnconnectedState) {
        deleteLater();
    } else {
        // The farewell may still be on its way.
        connect(m_pSocket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    }
}

#include "MachineQuery.h"

#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>

namespace {
constexpr int TimeoutMs = 5000;
constexpr int AnswerLimit = 64 * 1024;
} // namespace

MachineQuery::MachineQuery(QObject* parent)
    : QObject(parent)
{
    // A proxy of the computer is never the way to a machine on the local network.
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.setReadBufferSize(AnswerLimit);
    m_timeout.setSingleShot(true);
    connect(&m_socket, &QTcpSocket::connected, this, &MachineQuery::SendRequest);
    connect(&m_socket, &QTcpSocket::readyRead, this, &MachineQuery::ReadAnswer);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &MachineQuery::HandleError);
    connect(&m_timeout, &QTimer::timeout, this, [this] { Finish(QString(), tr("机床在 5 秒内没有应答。")); });
}

void MachineQuery::Start(const QString& ip, quint16 port)
{
    const QHostAddress address(ip);
    if (address.protocol() != QAbstractSocket::IPv4Protocol) {
        // A name would have to be looked up on the network: only an address is contacted.
        QTimer::singleShot(0, this, [this, ip] { Finish(QString(), tr("“%1”不是有效的地址。").arg(ip)); });
        return;
    }
    m_timeout.start(TimeoutMs);
    m_socket.connectToHost(address, port);
}

void MachineQuery::SendRequest()
{
    const QJsonObject request{{QStringLiteral("action"), QStringLiteral("GET_SN_FROM_3255")}};
    m_socket.write(QJsonDocument(request).toJson(QJsonDocument::Indented));
}

void MachineQuery::ReadAnswer()
{
    if (m_bFinished) {
        return;
    }
    m_answer += m_socket.read(AnswerLimit - m_answer.size() + 1);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(m_answer, &error);
    if (document.isObject()) {
        const QJsonObject answer = document.object();
        const QString serial = answer.value(QStringLiteral("data")).toString();
        if (answer.value(QStringLiteral("errorCode")).toInt() != 0) {
            Finish(QString(), tr("机床报告错误：%1").arg(answer.value(QStringLiteral("msg")).toString()));
        } else if (serial.isEmpty()) {
            Finish(QString(), tr("机床没有给出序列号。"));
        } else {
            Finish(serial, QString());
        }
        return;
    }
    // What does not begin as an object can never become one; anything else may still be on its way.
    const QByteArray begin = m_answer.trimmed();
    if (m_answer.size() > AnswerLimit || (!begin.isEmpty() && !begin.startsWith('{')) ||
        error.error == QJsonParseError::GarbageAtEnd || error.error == QJsonParseError::IllegalUTF8String) {
        Finish(QString(), tr("机床的应答无法识别。"));
    }
}

void MachineQuery::HandleError(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::RemoteHostClosedError:
        ReadAnswer();
        Finish(QString(), tr("机床没有答完就断开了连接。"));
        break;
    case QAbstractSocket::ConnectionRefusedError:
        Finish(QString(), tr("该地址上没有机床在等待连接。"));
        break;
    default:
        Finish(QString(), tr("网络错误：%1").arg(m_socket.errorString()));
    }
}

void MachineQuery::Finish(const QString& serial, const QString& reason)
{
    if (m_bFinished) {
        return;
    }
    m_bFinished = true;
    m_timeout.stop();
    m_socket.abort();
    deleteLater();
    Q_EMIT SignalFinished(serial, reason);
}

#include "MachineDiscovery.h"

#include <QHostAddress>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QStringList>

namespace {
constexpr qint64 DatagramLimit = 1024;
constexpr int FieldCount = 6;
constexpr int FieldSerial = 1;
constexpr int FieldIp = 3;
constexpr int FieldPort = 4;
constexpr int MachineLimit = 1000;
constexpr auto Prefix = "VELMAR";
} // namespace

MachineDiscovery::MachineDiscovery(quint16 port, QObject* parent)
    : QObject(parent)
    , m_iPort(port)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    connect(&m_socket, &QUdpSocket::readyRead, this, &MachineDiscovery::ReadDatagrams);
}

bool MachineDiscovery::Start(QString* reason)
{
    if (m_socket.state() == QAbstractSocket::BoundState) {
        return true;
    }
    if (m_socket.bind(QHostAddress(QHostAddress::LocalHost), m_iPort)) {
        return true;
    }
    if (reason) {
        *reason = tr("无法在端口 %1 上监听：%2").arg(m_iPort).arg(m_socket.errorString());
    }
    return false;
}

void MachineDiscovery::Stop()
{
    m_socket.close();
}

void MachineDiscovery::Clear()
{
    m_hashIpToPort.clear();
}

quint16 MachineDiscovery::MachinePort(const QString& ip) const
{
    return m_hashIpToPort.value(ip, DefaultMachinePort);
}

std::optional<QString> MachineDiscovery::ParseAnnouncement(const QByteArray& datagram)
{
    if (datagram.size() > DatagramLimit) {
        return std::nullopt;
    }
    const QString text = QString::fromUtf8(datagram);
    if (text.contains(QChar::ReplacementCharacter)) {
        return std::nullopt;
    }
    const QStringList fields = text.split(QLatin1Char('*'));
    bool isPort = false;
    const uint port = fields.value(FieldPort).toUInt(&isPort);
    if (fields.size() < FieldCount || fields.first() != QLatin1String(Prefix) || fields.at(FieldSerial).isEmpty() ||
        QHostAddress(fields.at(FieldIp)).protocol() != QAbstractSocket::IPv4Protocol || !isPort || port == 0 ||
        port > 0xffff) {
        return std::nullopt;
    }
    return text;
}

void MachineDiscovery::ReadDatagrams()
{
    while (m_socket.hasPendingDatagrams()) {
        // One byte more than an announcement can have, so that a longer one is told from one of just that length.
        const QNetworkDatagram datagram = m_socket.receiveDatagram(DatagramLimit + 1);
        if (!datagram.senderAddress().isLoopback()) {
            continue;
        }
        const std::optional<QString> text = ParseAnnouncement(datagram.data());
        if (!text) {
            continue;
        }
        const QStringList fields = text->split(QLatin1Char('*'));
        const QString ip = fields.at(FieldIp);
        if (m_hashIpToPort.size() < MachineLimit || m_hashIpToPort.contains(ip)) {
            m_hashIpToPort.insert(ip, quint16(fields.at(FieldPort).toUInt()));
            Q_EMIT SignalMachineFound(*text);
        }
    }
}

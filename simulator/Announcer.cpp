#include <simulator/Announcer.h>

#include <QNetworkProxy>

namespace {

constexpr int kPeriodMs = 1000;

} // namespace

Announcer::Announcer(const QByteArray& announcement, quint16 port, QObject* parent)
    : QObject(parent)
    , m_announcement(announcement)
    , m_iPort(port)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_timer.setInterval(kPeriodMs);
    connect(&m_timer, &QTimer::timeout, this, &Announcer::Announce);
}

void Announcer::Start()
{
    Announce();
    m_timer.start();
}

void Announcer::Announce()
{
    // That nobody listens is no error: a host may come later.
    m_socket.writeDatagram(m_announcement, QHostAddress::LocalHost, m_iPort);
}

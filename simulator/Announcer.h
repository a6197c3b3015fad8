#pragma once

#include <QHostAddress>
#include <QObject>
#include <QTimer>
#include <QUdpSocket>

/**
 * Tells of the machine by UDP on loopback, at once and then once a second. Nothing leaves this computer: a host that
 * listens there finds simulated machines, and nobody else is bothered.
 */
class Announcer : public QObject
{
    Q_OBJECT

public:
    Announcer(const QByteArray& announcement, quint16 port, QObject* parent = nullptr);

    void Start();

private:
    void Announce();

    QByteArray m_announcement;
    quint16 m_iPort;
    QUdpSocket m_socket;
    QTimer m_timer;
};

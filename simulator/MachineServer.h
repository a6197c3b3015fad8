#pragma once

#include <simulator/Fault.h>

#include <QObject>
#include <QTcpServer>

/** The machine's TCP port: tells its serial number to any number of hosts at once, or fails as its fault has it. */
class MachineServer : public QObject
{
    Q_OBJECT

public:
    /** Connections at one time. One more is closed at once, so that a flood cannot use up the process's files. */
    static constexpr int kConnectionLimit = 500;

    MachineServer(const QString& serial, const Fault& fault, int idleLimitMs, QObject* parent = nullptr);

    /** @param port 0 takes a free one */
    bool Listen(const QHostAddress& address, quint16 port);
    quint16 Port() const;
    QString ErrorText() const;

private:
    void Accept();

    QTcpServer m_server;
    QString m_strSerial;
    Fault m_fault;
    int m_iIdleLimitMs;
    int m_iConnections = 0;
};

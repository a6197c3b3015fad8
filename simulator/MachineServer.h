#pragma once

#include <simulator/Fault.h>

#include <QTcpServer>

/** The machine's TCP port: tells its serial number to any number of hosts at once, or fails as its fault has it. */
class MachineServer : public QTcpServer
{
    Q_OBJECT

public:
    /** Connections at one time. One more is closed at once, so that a flood cannot use up the process's files. */
    static constexpr int kConnectionLimit = 500;

    MachineServer(const QString& serial, const Fault& fault, int idleLimitMs, QObject* parent = nullptr);

private:
    void Accept();

    QString m_strSerial;
    Fault m_fault;
    int m_iIdleLimitMs;
    int m_iConnections = 0;
};

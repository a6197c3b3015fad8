#pragma once

#include <simulator/Fault.h>
#include <simulator/RequestReader.h>

#include <QObject>
#include <QTimer>

class QTcpSocket;

/**
 * One host on the machine's port: reads its request, answers as the fault has it, waits for the host to leave, deletes
 * itself and logs how it went.
 */
class MachineConnection : public QObject
{
    Q_OBJECT

public:
    /**
     * @param socket the accepted connection; owned from here on
     * @param idleLimitMs how long a host may take with its request, and how long it may stay after the answer
     */
    MachineConnection(QTcpSocket* socket, const QString& serial, const Fault& fault, int idleLimitMs, QObject* parent);
    ~MachineConnection() override;

private:
    void Read();
    void StartAnswer();
    void Send(const QByteArray& piece);
    void SendNextByte();
    void SendHugeBlock();
    void End(const QString& how);

    QTcpSocket* m_pSocket;
    QString m_strPeer;
    QString m_strSerial;
    Fault m_fault;
    int m_iIdleLimitMs;
    RequestReader m_reader;
    QTimer m_timerIdle;
    QTimer m_timerFault;
    QByteArray m_answer; ///< the whole answer; a piece of it for Huge
    qint64 m_iSent = 0;  ///< bytes handed to the socket
    qint64 m_iReceived = 0;
    bool m_bAnswering = false;
    bool m_bEnded = false;
};

#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTcpSocket>
#include <QTimer>

/**
 * Asks one machine for its serial number over TCP, and deletes itself behind the answer. Unlike the panel's own query
 * it gathers an answer that arrives in pieces.
 */
class MachineQuery : public QObject
{
    Q_OBJECT

public:
    explicit MachineQuery(QObject* parent = nullptr);

    /** Begins; exactly one SignalFinished follows, from the event loop and never from this call. */
    void Start(const QString& ip, quint16 port);

Q_SIGNALS:
    /** @param serial empty on failure; @param reason why it failed, in words for the user */
    void SignalFinished(const QString& serial, const QString& reason);

private:
    void SendRequest();
    void ReadAnswer();
    void HandleError(QAbstractSocket::SocketError error);
    void Finish(const QString& serial, const QString& reason);

    QTcpSocket m_socket;
    QTimer m_timeout;
    QByteArray m_answer;
    bool m_bFinished = false;
};

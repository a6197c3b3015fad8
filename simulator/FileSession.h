#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QTcpSocket;

/** One host on the file service: greets it, answers its commands until QUIT, deletes itself and logs how it went. */
class FileSession : public QObject
{
    Q_OBJECT

public:
    /** @param socket the accepted connection; owned from here on */
    FileSession(QTcpSocket* socket, int idleLimitMs, QObject* parent);
    ~FileSession() override;

    /** The reply to one command line, without its line end. */
    static QByteArray Reply(const QByteArray& command);

private:
    void Read();
    void End(const QString& how);

    QTcpSocket* m_pSocket;
    QString m_strPeer;
    QTimer m_timerIdle;
    QByteArray m_buffer;
    int m_iCommands = 0;
    bool m_bEnded = false;
};

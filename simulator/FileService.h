#pragma once

#include <QObject>
#include <QTcpServer>

/** The machine's file service, as far as a host tries it: a greeting and a farewell. */
class FileService : public QObject
{
    Q_OBJECT

public:
    /** Sessions at one time; one more is closed at once. */
    static constexpr int kSessionLimit = 500;

    explicit FileService(int idleLimitMs, QObject* parent = nullptr);

    bool Listen(const QHostAddress& address, quint16 port);
    quint16 Port() const;
    QString ErrorText() const;

private:
    void Accept();

    QTcpServer m_server;
    int m_iIdleLimitMs;
    int m_iSessions = 0;
};

#pragma once

#include <QTcpServer>

/** The machine's file service, as far as a host tries it: a greeting and a farewell. */
class FileService : public QTcpServer
{
    Q_OBJECT

public:
    /** Sessions at one time; one more is closed at once. */
    static constexpr int kSessionLimit = 500;

    explicit FileService(int idleLimitMs, QObject* parent = nullptr);

private:
    void Accept();

    int m_iIdleLimitMs;
    int m_iSessions = 0;
};

#pragma once

#include <QObject>

/**
 * Turns the system's wish that the process end (SIGINT, SIGTERM; Ctrl+C or a closed console on Windows) into a Qt
 * signal on the thread that made it. One per process.
 */
class StopSignal : public QObject
{
    Q_OBJECT

public:
    explicit StopSignal(QObject* parent = nullptr);
    ~StopSignal() override;

Q_SIGNALS:
    void SignalStop();
};

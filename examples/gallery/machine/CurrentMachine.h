#pragma once

#include <QObject>
#include <QString>

/**
 * The machine that the program is connected to, for whoever asks later than it was told. The application owns the one
 * object of it, which listens from its first use on: the status line makes it before any machine can be connected.
 */
class CurrentMachine : public QObject
{
    Q_OBJECT

public:
    static CurrentMachine* instance();

    bool IsConnected() const { return m_bConnected; }
    QString Address() const { return m_strAddress; }
    QString Serial() const { return m_strSerial; }

Q_SIGNALS:
    void SignalChanged();

private:
    explicit CurrentMachine(QObject* parent);

    bool m_bConnected = false;
    QString m_strAddress;
    QString m_strSerial;
};

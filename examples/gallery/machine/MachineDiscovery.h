#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QUdpSocket>

#include <optional>

/**
 * The host's way of finding machines: they announce themselves by UDP, and each announcement is a machine text,
 *
 *     VELMAR*<serial number>*<model>*<ip>*<tcp port>*<interface>
 *
 * which CSelectMachineBox::SetMachineInfo takes as it stands. Only this computer is listened to (127.0.0.1), which is
 * where machine-simulator announces; what is longer than an announcement can be, or does not read as one, is dropped.
 *
 * @code
 * auto* discovery = new MachineDiscovery(45002, this);
 * connect(discovery, &MachineDiscovery::SignalMachineFound, panel,
 *         [panel](const QString& text) { panel->SetMachineInfo(text, false); });
 * QString reason;
 * if (!discovery->Start(&reason)) { ... }
 * @endcode
 */
class MachineDiscovery : public QObject
{
    Q_OBJECT

public:
    /** The port at which a machine answers when its announcement has not told another one. */
    static constexpr quint16 DefaultMachinePort = 5002;

    explicit MachineDiscovery(quint16 port, QObject* parent = nullptr);

    /** Begins to listen; false with a reason when the port is taken. Listening already is success. */
    bool Start(QString* reason);

    /** Stops listening. What was learned about ports stays. */
    void Stop();

    /** Forgets what was learned, and listens on. */
    void Clear();

    /** The TCP port that the machine at @p ip has announced, or DefaultMachinePort. */
    quint16 MachinePort(const QString& ip) const;

    /** The text of a well-formed announcement, or nothing. */
    static std::optional<QString> ParseAnnouncement(const QByteArray& datagram);

Q_SIGNALS:
    /** A machine has announced itself; comes again with every announcement. */
    void SignalMachineFound(const QString& text);

private:
    void ReadDatagrams();

    quint16 m_iPort;
    QUdpSocket m_socket;
    QHash<QString, quint16> m_hashIpToPort;
};

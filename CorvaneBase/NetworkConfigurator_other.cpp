#include <CorvaneBase/NetworkConfigurator_p.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QNetworkInterface>
#include <QStandardPaths>
#include <QThread>

#ifdef Q_OS_LINUX
#include <arpa/inet.h>
#include <linux/ethtool.h>
#include <linux/if_packet.h>
#include <linux/sockios.h>
#include <net/ethernet.h>
#include <net/if.h>
#include <netinet/if_ether.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#endif

namespace NetworkConfiguratorDetail {

namespace {

#ifdef Q_OS_LINUX

class Socket
{
public:
    Socket(int domain, int type, int protocol)
        : m_iHandle(::socket(domain, type | SOCK_CLOEXEC, protocol))
    {}
    ~Socket()
    {
        if (m_iHandle >= 0) {
            ::close(m_iHandle);
        }
    }
    Q_DISABLE_COPY_MOVE(Socket)
    int Handle() const { return m_iHandle; }

private:
    int m_iHandle;
};

QByteArray Driver(const QString& name)
{
    const Socket socket(AF_INET, SOCK_DGRAM, 0);
    ethtool_drvinfo info = {};
    info.cmd = ETHTOOL_GDRVINFO;
    ifreq request = {};
    qstrncpy(request.ifr_name, name.toLocal8Bit().constData(), IFNAMSIZ);
    request.ifr_data = reinterpret_cast<char*>(&info);
    return ::ioctl(socket.Handle(), SIOCETHTOOL, &request) == 0 ? QByteArray(info.driver) : QByteArray();
}

bool IsWired(const QNetworkInterface& adapter)
{
    const QString folder = QStringLiteral("/sys/class/net/%1/").arg(adapter.name());
    const auto exists = [&folder](const char* entry) { return QFileInfo::exists(folder + QLatin1String(entry)); };
    const auto content = [&folder](const char* entry) {
        QFile file(folder + QLatin1String(entry));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    if (content("type") != QByteArrayLiteral("1") || content("carrier") != QByteArrayLiteral("1")) {
        return false;
    }
    // An end of a bridge belongs to the bridge; a bond or a bridge is made of adapters that are looked at themselves.
    for (const char* entry : {"wireless", "phy80211", "bridge", "brport", "bonding", "master", "tun_flags"}) {
        if (exists(entry)) {
            return false;
        }
    }
    // No device behind it: made by software, of which only a pair of virtual plugs acts as a cable.
    return exists("device") || Driver(adapter.name()) == QByteArrayLiteral("veth");
}

// Asks by an address probe (RFC 5227), since the computer has no address from which it could ask otherwise.
bool AnswersAddressProbe(const Adapter& adapter, const QHostAddress& address)
{
    constexpr int kWaitMs = 250;
    const Socket socket(AF_PACKET, SOCK_DGRAM | SOCK_NONBLOCK, htons(ETH_P_ARP));
    const unsigned index = ::if_nametoindex(adapter.strName.toLocal8Bit().constData());
    const QByteArray hardware = QByteArray::fromHex(adapter.strHardwareAddress.toLatin1());
    if (socket.Handle() < 0 || index == 0 || hardware.size() != ETH_ALEN) {
        return false;
    }
    sockaddr_ll link = {};
    link.sll_family = AF_PACKET;
    link.sll_protocol = htons(ETH_P_ARP);
    link.sll_ifindex = int(index);
    if (::bind(socket.Handle(), reinterpret_cast<const sockaddr*>(&link), sizeof link) != 0) {
        return false;
    }
    const in_addr_t target = htonl(address.toIPv4Address());
    ether_arp probe = {};
    probe.ea_hdr = {htons(ARPHRD_ETHER), htons(ETHERTYPE_IP), ETH_ALEN, sizeof target, htons(ARPOP_REQUEST)};
    std::memcpy(probe.arp_sha, hardware.constData(), ETH_ALEN);
    std::memcpy(probe.arp_tpa, &target, sizeof target);
    link.sll_halen = ETH_ALEN;
    std::memset(link.sll_addr, 0xff, ETH_ALEN);
    ::sendto(socket.Handle(), &probe, sizeof probe, 0, reinterpret_cast<const sockaddr*>(&link), sizeof link);

    QElapsedTimer clock;
    clock.start();
    for (qint64 left = kWaitMs; left > 0; left = kWaitMs - clock.elapsed()) {
        pollfd waiting = {socket.Handle(), POLLIN, 0};
        if (::poll(&waiting, 1, int(left)) <= 0) {
            continue;
        }
        ether_arp reply = {};
        const ssize_t size = ::recv(socket.Handle(), &reply, sizeof reply, 0);
        if (size >= ssize_t(sizeof reply) && std::memcmp(reply.arp_spa, &target, sizeof target) == 0) {
            return true;
        }
    }
    return false;
}

#else

bool IsWired(const QNetworkInterface& adapter)
{
    return adapter.type() == QNetworkInterface::Ethernet;
}

bool AnswersAddressProbe(const Adapter&, const QHostAddress&)
{
    return false;
}

#endif

Change ToChange(const ProgramRun& run)
{
    if (run.bFinished && run.iExitCode == 0) {
        return {};
    }
    for (const char* words : {"not permitted", "permission", "not authorized", "insufficient privileges"}) {
        if (run.strOutput.contains(QLatin1String(words), Qt::CaseInsensitive)) {
            return {NetworkConfigurator::StatusNoRight, run.strOutput};
        }
    }
    return {NetworkConfigurator::StatusConfigurationFailed, run.strOutput};
}

class UnixSystem : public System
{
public:
    QList<Adapter> WiredAdapters() override
    {
        return RunningAdapters(IsWired, [](const QNetworkInterface& adapter) { return adapter.name(); });
    }

    bool IsTaken(const Adapter& adapter, const QHostAddress& address) override
    {
        return QNetworkInterface::allAddresses().contains(address) || AnswersAddressProbe(adapter, address);
    }

    Change AddAddress(const Adapter& adapter, const QHostAddress& address, int prefix) override
    {
        return Apply(adapter, address, prefix, QStringLiteral("add"), QLatin1Char('+'));
    }

    Change RemoveAddress(const Adapter& adapter, const QHostAddress& address, int prefix) override
    {
        return Apply(adapter, address, prefix, QStringLiteral("del"), QLatin1Char('-'));
    }

    bool MachineAnswers(const QHostAddress& own) override { return ProbeMachine(own); }
    void Pause(int milliseconds) override { QThread::msleep(ulong(milliseconds)); }
    QString ToolNames() const override { return QStringLiteral("ip, nmcli"); }

private:
    // `ip` needs a right that a desktop user seldom has; the network service behind `nmcli` may grant it to them.
    Change Apply(const Adapter& adapter, const QHostAddress& address, int prefix, const QString& verb, QChar sign) const
    {
        const QString network = QStringLiteral("%1/%2").arg(address.toString()).arg(prefix);
        Change change{NetworkConfigurator::StatusNoTool, {}};
        const QString ip = QStandardPaths::findExecutable(QStringLiteral("ip"));
        if (!ip.isEmpty()) {
            change = ToChange(
                RunProgram(ip, {QStringLiteral("address"), verb, network, QStringLiteral("dev"), adapter.strName}));
        }
        const QString nmcli = QStandardPaths::findExecutable(QStringLiteral("nmcli"));
        const bool needsOther =
            change.status == NetworkConfigurator::StatusNoTool || change.status == NetworkConfigurator::StatusNoRight;
        if (needsOther && !nmcli.isEmpty()) {
            const Change other =
                ToChange(RunProgram(nmcli, {QStringLiteral("device"), QStringLiteral("modify"), adapter.strName,
                                            sign + QStringLiteral("ipv4.addresses"), network}));
            // A service that is not running says nothing about the right that `ip` asked for.
            if (other.status == NetworkConfigurator::StatusReady ||
                change.status == NetworkConfigurator::StatusNoTool) {
                change = other;
            }
        }
        return change;
    }
};

} // namespace

std::unique_ptr<System> MakeSystem()
{
    return std::make_unique<UnixSystem>();
}

} // namespace NetworkConfiguratorDetail

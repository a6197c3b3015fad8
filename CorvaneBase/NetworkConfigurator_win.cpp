// The system's sockets come before all else: the toolkit's headers may bring in <windows.h>, with its older ones.
// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
#include <windows.h>
#include <iphlpapi.h>
#include <netioapi.h>
// clang-format on

#include <CorvaneBase/NetworkConfigurator_p.h>

#include <QNetworkInterface>
#include <QStandardPaths>
#include <QThread>

namespace NetworkConfiguratorDetail {

namespace {

constexpr const char* kMask = "255.255.255.0";

bool IsWired(const QNetworkInterface& adapter)
{
    MIB_IF_ROW2 row = {};
    row.InterfaceIndex = NET_IFINDEX(adapter.index());
    if (GetIfEntry2(&row) != NO_ERROR) {
        return false;
    }
    // A virtual switch or a tunnel also calls itself Ethernet, but has no hardware behind it.
    const bool isCable =
        row.PhysicalMediumType == NdisPhysicalMedium802_3 || row.PhysicalMediumType == NdisPhysicalMediumUnspecified;
    return row.Type == IF_TYPE_ETHERNET_CSMACD && isCable && row.InterfaceAndOperStatusFlags.HardwareInterface &&
           row.MediaConnectState != MediaConnectStateDisconnected;
}

bool HasRight()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return false;
    }
    TOKEN_ELEVATION elevation = {};
    DWORD size = sizeof elevation;
    const bool known = GetTokenInformation(token, TokenElevation, &elevation, size, &size);
    CloseHandle(token);
    return known && elevation.TokenIsElevated;
}

class WindowsSystem : public System
{
public:
    QList<Adapter> WiredAdapters() override
    {
        // The configuration program takes the index in the place of a name, whatever script the name is written in.
        return RunningAdapters(IsWired,
                               [](const QNetworkInterface& adapter) { return QString::number(adapter.index()); });
    }

    bool IsTaken(const Adapter&, const QHostAddress& address) override
    {
        // The system itself probes an address that is added, and leaves a duplicate out of use.
        return QNetworkInterface::allAddresses().contains(address);
    }

    // Only the running configuration changes: after a restart the adapter is as the user set it.
    Change AddAddress(const Adapter& adapter, const QHostAddress& address, int) override
    {
        const Change change =
            Apply({QStringLiteral("add"), QStringLiteral("address"), QStringLiteral("name=") + adapter.strName,
                   QStringLiteral("address=") + address.toString(), QStringLiteral("mask=") + QLatin1String(kMask),
                   QStringLiteral("store=active")});
        // The new address stays tentative, and cannot be bound to, until the system has probed it.
        constexpr int kTentativeMs = 3000;
        constexpr int kStepMs = 100;
        for (int waited = 0; change.status == NetworkConfigurator::StatusReady && waited < kTentativeMs;
             waited += kStepMs) {
            if (QNetworkInterface::allAddresses().contains(address)) {
                break;
            }
            Pause(kStepMs);
        }
        return change;
    }

    Change RemoveAddress(const Adapter& adapter, const QHostAddress& address, int) override
    {
        return Apply({QStringLiteral("delete"), QStringLiteral("address"), QStringLiteral("name=") + adapter.strName,
                      QStringLiteral("address=") + address.toString(), QStringLiteral("store=active")});
    }

    bool MachineAnswers(const QHostAddress& own) override { return ProbeMachine(own); }
    void Pause(int milliseconds) override { QThread::msleep(ulong(milliseconds)); }
    QString ToolNames() const override { return QStringLiteral("netsh"); }

private:
    Change Apply(const QStringList& command) const
    {
        const QString netsh = QStandardPaths::findExecutable(QStringLiteral("netsh"));
        if (netsh.isEmpty()) {
            return {NetworkConfigurator::StatusNoTool, {}};
        }
        const ProgramRun run =
            RunProgram(netsh, QStringList{QStringLiteral("interface"), QStringLiteral("ipv4")} + command);
        if (run.bFinished && run.iExitCode == 0) {
            return {};
        }
        // The program's words are in the user's language, so the right is asked for itself.
        return {HasRight() ? NetworkConfigurator::StatusConfigurationFailed : NetworkConfigurator::StatusNoRight,
                run.strOutput};
    }
};

} // namespace

std::unique_ptr<System> MakeSystem()
{
    return std::make_unique<WindowsSystem>();
}

} // namespace NetworkConfiguratorDetail

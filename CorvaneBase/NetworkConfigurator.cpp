#include <CorvaneBase/NetworkConfigurator.h>

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/NetworkConfigurator_p.h>
#include <CorvaneBase/ThreadSafety_p.h>

#include <QCoreApplication>
#include <QMutex>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTcpSocket>

#include <algorithm>

namespace {

constexpr quint32 kNetwork = 0xC0A80700; // 192.168.7.0
constexpr int kPrefix = 24;
constexpr int kMachineHost = 2;
constexpr int kRoundPauseMs = 1000;
constexpr int kAddressTrials = 8;
constexpr int kProgramMs = 5000;
constexpr int kKillMs = 1000;
constexpr int kFirstPortMs = 1500;
constexpr int kSecondPortMs = 500;
constexpr quint16 kFilePort = 21;
constexpr quint16 kQueryPort = 5002;

CheckedMutex<QMutex> g_providerMutex;
std::function<NetworkConfigurator::Result(int)> g_provider CORVANE_GUARDED_BY(g_providerMutex);

/** What the user reads. */
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NetworkConfigurator)
};

QHostAddress HostAddress(int host)
{
    return QHostAddress(kNetwork + quint32(host));
}

} // namespace

namespace NetworkConfiguratorDetail {

QHostAddress MachineAddress()
{
    return HostAddress(kMachineHost);
}

QHostAddress ReadyAddress(const Adapter& adapter)
{
    for (const AdapterAddress& entry : adapter.listAddresses) {
        const int prefix = entry.iPrefix < 0 ? kPrefix : entry.iPrefix;
        if (entry.address != MachineAddress() && entry.address.isInSubnet(QHostAddress(kNetwork), kPrefix) &&
            MachineAddress().isInSubnet(entry.address, prefix)) {
            return entry.address;
        }
    }
    return {};
}

bool OccupiesMachineAddress(const Adapter& adapter)
{
    return std::any_of(adapter.listAddresses.begin(), adapter.listAddresses.end(),
                       [](const AdapterAddress& entry) { return entry.address == MachineAddress(); });
}

QHostAddress FreeAddress(const std::function<bool(const QHostAddress&)>& isTaken)
{
    constexpr int kFirst = 100;
    for (int host = kFirst; host < kFirst + kAddressTrials; ++host) {
        const QHostAddress address = HostAddress(host);
        if (!isTaken(address)) {
            return address;
        }
    }
    return {};
}

QList<Adapter> InOrderOfPromise(QList<Adapter> adapters)
{
    const auto isWithoutAddress = [](const Adapter& adapter) {
        return std::all_of(adapter.listAddresses.begin(), adapter.listAddresses.end(),
                           [](const AdapterAddress& entry) { return entry.address.isLinkLocal(); });
    };
    std::stable_partition(adapters.begin(), adapters.end(), isWithoutAddress);
    return adapters;
}

namespace {

using Result = NetworkConfigurator::Result;

Result Failure(NetworkConfigurator::Status status, const QString& detail)
{
    Result result;
    result.iStatus = status;
    result.strDetail = detail;
    return result;
}

Result Ready(const Adapter& adapter, const QHostAddress& address)
{
    Result result;
    result.iStatus = NetworkConfigurator::StatusReady;
    result.strAdapter = adapter.strTitle;
    result.strAddress = address.toString();
    result.strDetail = Texts::tr("网卡“%1”已就绪，本机地址 %2").arg(result.strAdapter, result.strAddress);
    return result;
}

Result RefusedChange(System& system, const Adapter& adapter, const Change& change)
{
    switch (change.status) {
    case NetworkConfigurator::StatusNoRight:
        return Failure(change.status, Texts::tr("没有修改网卡设置的权限，请以管理员身份运行本软件后重试"));
    case NetworkConfigurator::StatusNoTool:
        return Failure(change.status, Texts::tr("系统缺少网卡配置工具（%1），请安装后重试").arg(system.ToolNames()));
    default:
        return Failure(NetworkConfigurator::StatusConfigurationFailed,
                       Texts::tr("无法设置网卡“%1”的地址：%2").arg(adapter.strTitle, change.strReason));
    }
}

Result NoAnswer()
{
    return Failure(NetworkConfigurator::StatusNoAnswer,
                   Texts::tr("机床没有应答，请检查数据线是否插好、机床是否已开机"));
}

/** Gives the adapter an address, and takes it back where no machine answers to it. */
Result TryAdapter(System& system, const Adapter& adapter)
{
    const QHostAddress address =
        FreeAddress([&](const QHostAddress& candidate) { return system.IsTaken(adapter, candidate); });
    if (address.isNull()) {
        return RefusedChange(system, adapter,
                             {NetworkConfigurator::StatusConfigurationFailed, Texts::tr("没有空闲的地址")});
    }
    const Change added = system.AddAddress(adapter, address, kPrefix);
    if (added.status != NetworkConfigurator::StatusReady) {
        return RefusedChange(system, adapter, added);
    }
    if (system.MachineAnswers(address)) {
        return Ready(adapter, address);
    }
    const Change removed = system.RemoveAddress(adapter, address, kPrefix);
    if (removed.status != NetworkConfigurator::StatusReady) {
        CDebugLog::AddLog(QStringLiteral("NetworkConfigurator: address %1 stays on %2: %3")
                              .arg(address.toString(), adapter.strName, removed.strReason));
    }
    return NoAnswer();
}

Result SearchOnce(System& system, const QList<Adapter>& adapters)
{
    for (const Adapter& adapter : adapters) {
        if (OccupiesMachineAddress(adapter)) {
            return Failure(NetworkConfigurator::StatusConfigurationFailed,
                           Texts::tr("网卡“%1”占用了机床的地址 %2，请先修改该网卡的地址")
                               .arg(adapter.strTitle, MachineAddress().toString()));
        }
    }
    for (const Adapter& adapter : adapters) {
        const QHostAddress address = ReadyAddress(adapter);
        if (!address.isNull()) {
            return Ready(adapter, address);
        }
    }
    Result failure = Failure(NetworkConfigurator::StatusNoAdapter,
                             Texts::tr("未找到已连接的有线网卡，请确认机床已开机，并已用数据线连接到电脑"));
    for (const Adapter& adapter : InOrderOfPromise(adapters)) {
        Result result = TryAdapter(system, adapter);
        switch (result.iStatus) {
        case NetworkConfigurator::StatusReady:
        case NetworkConfigurator::StatusNoRight:
        case NetworkConfigurator::StatusNoTool:
            return result; // no other adapter would fare better
        default:
            break;
        }
        // A silent machine is the likelier cause than an adapter that could not be changed.
        if (failure.iStatus != NetworkConfigurator::StatusNoAnswer) {
            failure = result;
        }
    }
    return failure;
}

} // namespace

Result Search(System& system, int rounds)
{
    Result result;
    for (int round = 0; round < qMax(1, rounds); ++round) {
        if (round > 0) {
            system.Pause(kRoundPauseMs);
        }
        const QList<Adapter> adapters = system.WiredAdapters();
        result = SearchOnce(system, adapters);
        for (const Adapter& adapter : adapters) {
            const QString address =
                adapter.listAddresses.isEmpty() ? QString() : adapter.listAddresses.first().address.toString();
            result.listAdapters.append({adapter.strTitle, adapter.strHardwareAddress, address});
        }
        // Waiting brings a cable or a machine that is starting up, but no right and no program.
        if (result.iStatus == NetworkConfigurator::StatusReady ||
            result.iStatus == NetworkConfigurator::StatusNoRight ||
            result.iStatus == NetworkConfigurator::StatusNoTool) {
            break;
        }
    }
    return result;
}

bool ProbeMachine(const QHostAddress& own)
{
    const auto connectTo = [&own](QTcpSocket& socket, quint16 port) {
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.bind(own);
        socket.connectToHost(MachineAddress(), port);
    };
    const auto answered = [](QTcpSocket& socket, int milliseconds) {
        return socket.state() == QAbstractSocket::ConnectedState || socket.waitForConnected(milliseconds) ||
               socket.error() == QAbstractSocket::ConnectionRefusedError;
    };
    // Both attempts run at the same time; only the waits follow one another.
    QTcpSocket files;
    QTcpSocket queries;
    connectTo(files, kFilePort);
    connectTo(queries, kQueryPort);
    return answered(files, kFirstPortMs) || answered(queries, kSecondPortMs);
}

QList<Adapter> RunningAdapters(bool (*isWired)(const QNetworkInterface&), QString (*name)(const QNetworkInterface&))
{
    QList<Adapter> adapters;
    const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& entry : all) {
        const QNetworkInterface::InterfaceFlags flags = entry.flags();
        const bool isUp = flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
        if (!isUp || flags.testFlag(QNetworkInterface::IsLoopBack) || !isWired(entry)) {
            continue;
        }
        Adapter adapter{name(entry), entry.humanReadableName(), entry.hardwareAddress(), {}};
        const QList<QNetworkAddressEntry> addresses = entry.addressEntries();
        for (const QNetworkAddressEntry& address : addresses) {
            if (address.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                adapter.listAddresses.append({address.ip(), address.prefixLength()});
            }
        }
        adapters.append(adapter);
    }
    return adapters;
}

ProgramRun RunProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C")); // its words are compared
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice()); // it must not wait for a password
    process.start(program, arguments);
    ProgramRun run;
    if (process.waitForFinished(kProgramMs)) {
        run.bFinished = process.exitStatus() == QProcess::NormalExit;
        run.iExitCode = process.exitCode();
    } else if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(kKillMs);
    }
    run.strOutput = QString::fromLocal8Bit(process.readAll()).trimmed();
    return run;
}

} // namespace NetworkConfiguratorDetail

NetworkConfigurator::Result NetworkConfigurator::autoDiscoverAndConfigureCnc(int n)
{
    std::function<Result(int)> provider;
    {
        const CheckedLocker lock(g_providerMutex);
        provider = g_provider;
    }
    if (provider) {
        return provider(n);
    }
    const std::unique_ptr<NetworkConfiguratorDetail::System> system = NetworkConfiguratorDetail::MakeSystem();
    return NetworkConfiguratorDetail::Search(*system, n);
}

void NetworkConfigurator::SetProvider(std::function<Result(int)> provider)
{
    const CheckedLocker lock(g_providerMutex);
    g_provider = std::move(provider);
}

#pragma once

#include <CorvaneBase/NetworkConfigurator.h>

#include <QHostAddress>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QNetworkInterface;

/**
 * What NetworkConfigurator decides, apart from what it does to the system: so the decisions can be tested without an
 * adapter, and each system brings only its own calls.
 */
namespace NetworkConfiguratorDetail {

/** An IPv4 address of an adapter with the length of its network prefix, -1 when that is unknown. */
struct AdapterAddress
{
    QHostAddress address;
    int iPrefix = -1;
};

/** A wired adapter that is up. */
struct Adapter
{
    QString strName;  ///< as the system's configuration program takes it
    QString strTitle; ///< as the user knows it
    QString strHardwareAddress;
    QList<AdapterAddress> listAddresses;
};

/** How an attempt to change an adapter ended. */
struct Change
{
    NetworkConfigurator::Status status = NetworkConfigurator::StatusReady; ///< StatusReady when it was made
    QString strReason;                                                     ///< the system's own words otherwise
};

/** The system's side. Each operation is called on the thread of the search and returns within seconds. */
class System
{
public:
    virtual ~System() = default;
    /** The wired adapters that are up; no wireless, virtual or loopback ones. */
    virtual QList<Adapter> WiredAdapters() = 0;
    /** True when another host on the adapter's network is known to use @p address. */
    virtual bool IsTaken(const Adapter& adapter, const QHostAddress& address) = 0;
    virtual Change AddAddress(const Adapter& adapter, const QHostAddress& address, int prefix) = 0;
    virtual Change RemoveAddress(const Adapter& adapter, const QHostAddress& address, int prefix) = 0;
    /** True when a host at the machine's address answers to the computer's @p own address. */
    virtual bool MachineAnswers(const QHostAddress& own) = 0;
    virtual void Pause(int milliseconds) = 0;
    /** Names the programs of which one is needed, for the user. */
    virtual QString ToolNames() const = 0;
};

/** The machine's fixed address, 192.168.7.2. */
QHostAddress MachineAddress();

/** The adapter's address from which the machine is reached directly, null when it has none. */
QHostAddress ReadyAddress(const Adapter& adapter);

/** True when one of the adapters has the machine's own address, so that no machine can be reached. */
bool OccupiesMachineAddress(const Adapter& adapter);

/**
 * The first address from 192.168.7.100 to .107 that @p isTaken does not hold for, null when there is none. Few hosts
 * share a cable with a machine, and asking takes time.
 */
QHostAddress FreeAddress(const std::function<bool(const QHostAddress&)>& isTaken);

/** Adapters without an address of their own first: a machine gives none away. Otherwise the order stays. */
QList<Adapter> InOrderOfPromise(QList<Adapter> adapters);

/** The whole search. */
NetworkConfigurator::Result Search(System& system, int rounds);

/** True when a TCP port of the machine accepts or refuses a connection from @p own. Blocks for two seconds at most. */
bool ProbeMachine(const QHostAddress& own);

/**
 * The adapters that run, @p isWired holds for and that are no loopback, with their IPv4 addresses. @p name gives what
 * the system's configuration program takes for each.
 */
QList<Adapter> RunningAdapters(bool (*isWired)(const QNetworkInterface&), QString (*name)(const QNetworkInterface&));

/** What came of running a program to its end. */
struct ProgramRun
{
    bool bFinished = false; ///< it was started and ended by itself in time
    int iExitCode = -1;
    QString strOutput; ///< what it wrote, errors included
};

/** Runs a program without a shell, and ends it after five seconds. Needs no event loop. */
ProgramRun RunProgram(const QString& program, const QStringList& arguments);

/** The computer's own system. */
std::unique_ptr<System> MakeSystem();

} // namespace NetworkConfiguratorDetail

#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QList>
#include <QString>

#include <array>
#include <functional>

/**
 * Brings the computer into the network of a machine that hangs on its USB Type-C cable: such a machine shows up as a
 * wired adapter, stands at 192.168.7.2 and gives no addresses away.
 *
 * Runs on a worker thread and may take several seconds for each round. Both operations are static: nobody makes or owns
 * a configurator. A provider that a host sets is kept to the end of the program, or until the next one is set.
 *
 * @code
 * NetworkConfigurator::SetProvider([](int rounds) { // on a worker thread
 *     return AskTheNetworkService(rounds);          // the host's own, giving a NetworkConfigurator::Result
 * });
 * @endcode
 */
class CORVANEBASE_EXPORT NetworkConfigurator
{
public:
    /** Why autoDiscoverAndConfigureCnc ended as it did. */
    enum Status
    {
        StatusReady = 0,              ///< the computer has an address in the machine's network
        StatusNoAdapter = 1,          ///< no wired adapter is up
        StatusNoRight = 2,            ///< this user may not change an adapter
        StatusNoTool = 3,             ///< the system's own configuration program is missing
        StatusNoAnswer = 4,           ///< an adapter was configured, and no machine answered; the change was undone
        StatusConfigurationFailed = 5 ///< the system refused the address for another reason
    };

    /** What came of a search. */
    struct Result
    {
        int iStatus = StatusNoAdapter;              ///< a Status; 0 is success
        QString strDetail;                          ///< the reason in words for the user, in the product's language
        QString strAdapter;                         ///< the adapter that was found ready or configured
        QString strAddress;                         ///< this computer's address in the machine's network
        QList<std::array<QString, 3>> listAdapters; ///< name, hardware address, address of each adapter looked at
    };

    /**
     * Looks for a wired adapter in 192.168.7.0/24, and gives one a free address there when none has it.
     *
     * @param n rounds, one second apart, before giving up; less than 1 counts as 1
     */
    static Result autoDiscoverAndConfigureCnc(int n);

    /** Puts @p provider in the place of the built-in search, for hosts with one of their own; {} restores the built-in
     * one. */
    static void SetProvider(std::function<Result(int)> provider);
};

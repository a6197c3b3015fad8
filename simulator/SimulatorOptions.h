#pragma once

#include <simulator/Fault.h>

#include <QHostAddress>
#include <QStringList>

/** What the command line says of the machine to simulate. */
struct SimulatorOptions
{
    /** What the command line asks for. */
    enum Request
    {
        Run,
        ShowHelp,
        ShowVersion,
        Refuse ///< it cannot be understood; strError says why
    };

    Request eRequest = Run;
    QString strError;
    QString strHelp;

    QHostAddress address;
    quint16 iPort = 0;
    quint16 iFtpPort = 0; ///< 0: no file service
    QString strSerial;
    QString strModel;
    QString strInterface;
    bool bAnnounce = false;
    quint16 iAnnouncePort = 0;
    QString strAnnouncedAddress;
    int iIdleLimitMs = 0;
    Fault fault;

    /** @param arguments the program's name first */
    static SimulatorOptions Parse(const QStringList& arguments);
};

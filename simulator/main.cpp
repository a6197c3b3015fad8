#include <simulator/Announcer.h>
#include <simulator/ExchangeLog.h>
#include <simulator/FileService.h>
#include <simulator/MachineProtocol.h>
#include <simulator/MachineServer.h>
#include <simulator/SimulatorOptions.h>
#include <simulator/StopSignal.h>

#include <QCoreApplication>

#include <cstdio>

namespace {

enum ExitCode
{
    ExitOk = 0,
    ExitCannotListen = 1,
    ExitBadOptions = 2
};

void Complain(const QString& text)
{
    std::fputs(QStringLiteral("machine-simulator: %1\n").arg(text).toUtf8().constData(), stderr);
}

QString Endpoint(const QHostAddress& address, quint16 port)
{
    return QStringLiteral("%1:%2").arg(address.toString()).arg(port);
}

bool Listen(QTcpServer& server, const QString& what, const QHostAddress& address, quint16 port)
{
    if (server.listen(address, port)) {
        return true;
    }
    Complain(
        QStringLiteral("cannot listen for the %1 at %2: %3").arg(what, Endpoint(address, port), server.errorString()));
    return false;
}

int Run(const SimulatorOptions& options)
{
    // Before anything is announced or printed: a signal that comes in answer must find its handler.
    const StopSignal stopSignal;
    QObject::connect(&stopSignal, &StopSignal::SignalStop, qApp, &QCoreApplication::quit);

    MachineServer machine(options.strSerial, options.fault, options.iIdleLimitMs);
    if (!Listen(machine, QStringLiteral("machine"), options.address, options.iPort)) {
        return ExitCannotListen;
    }
    QString ready = QStringLiteral("ready machine=%1").arg(Endpoint(options.address, machine.serverPort()));

    FileService files(options.iIdleLimitMs);
    if (options.iFtpPort != 0 && options.fault.eKind != Fault::FtpDown) {
        if (!Listen(files, QStringLiteral("file service"), options.address, options.iFtpPort)) {
            Complain(QStringLiteral("--ftp-port chooses another port, and --ftp-port 0 runs without a file service"));
            return ExitCannotListen;
        }
        ready += QStringLiteral(" files=%1").arg(Endpoint(options.address, files.serverPort()));
    }

    Announcer announcer(MachineProtocol::Announcement(options.strSerial, options.strModel, options.strAnnouncedAddress,
                                                      machine.serverPort(), options.strInterface),
                        options.iAnnouncePort);
    if (options.bAnnounce) {
        announcer.Start();
        ready += QStringLiteral(" announced=%1").arg(Endpoint(QHostAddress::LocalHost, options.iAnnouncePort));
    }
    ready += QStringLiteral(" serial=%1").arg(options.strSerial);
    if (options.fault.eKind != Fault::None) {
        ready += QStringLiteral(" fault=%1").arg(options.fault.Name());
    }
    ExchangeLog::Line(ready);

    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("machine-simulator"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MACHINE_SIMULATOR_VERSION));

    const SimulatorOptions options = SimulatorOptions::Parse(QCoreApplication::arguments());
    switch (options.eRequest) {
    case SimulatorOptions::ShowHelp:
        std::fputs(options.strHelp.toUtf8().constData(), stdout);
        return ExitOk;
    case SimulatorOptions::ShowVersion:
        ExchangeLog::Line(QStringLiteral("machine-simulator " MACHINE_SIMULATOR_VERSION));
        return ExitOk;
    case SimulatorOptions::Refuse:
        Complain(options.strError);
        Complain(QStringLiteral("--help lists the options"));
        return ExitBadOptions;
    case SimulatorOptions::Run:
        break;
    }
    const int code = Run(options);
    if (code == ExitOk) {
        // Last of all: by now the open connections have told how they ended.
        ExchangeLog::Line(QStringLiteral("stopped"));
    }
    return code;
}

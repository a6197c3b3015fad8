#include <simulator/SimulatorOptions.h>

#include <QCommandLineParser>

#include <limits>

namespace {

const QStringList kInterfaces{QStringLiteral("usb0"), QStringLiteral("eth0"), QStringLiteral("wlan0")};
constexpr int kLongestIdleSeconds = 24 * 60 * 60;

// Reads the values of a parsed command line and remembers the first one that is wrong.
class ValueReader
{
public:
    explicit ValueReader(const QCommandLineParser& parser)
        : m_parser(parser)
    {}

    QString Error() const { return m_strError; }

    QString Value(const QString& name) const { return m_parser.value(name); }

    int Number(const QString& name, int lowest, int highest)
    {
        bool isNumber = false;
        const int number = Value(name).toInt(&isNumber);
        if (!isNumber || number < lowest || number > highest) {
            Complain(QStringLiteral("--%1 takes a number from %2 to %3, not \"%4\"")
                         .arg(name)
                         .arg(lowest)
                         .arg(highest)
                         .arg(Value(name)));
        }
        return number;
    }

    quint16 Port(const QString& name, int lowest = 0)
    {
        return quint16(Number(name, lowest, std::numeric_limits<quint16>::max()));
    }

    QHostAddress Address(const QString& name)
    {
        const QHostAddress address(Value(name));
        if (address.isNull()) {
            Complain(QStringLiteral("--%1 takes an IP address, not \"%2\"").arg(name, Value(name)));
        }
        return address;
    }

    // A star parts the fields of an announcement, so none may hold one.
    QString Field(const QString& name)
    {
        const QString field = Value(name);
        if (field.isEmpty() || field.contains(u'*')) {
            Complain(
                QStringLiteral("--%1 takes a text that is not empty and holds no \"*\", not \"%2\"").arg(name, field));
        }
        return field;
    }

    void Complain(const QString& error)
    {
        if (m_strError.isEmpty()) {
            m_strError = error;
        }
    }

private:
    const QCommandLineParser& m_parser;
    QString m_strError;
};

} // namespace

SimulatorOptions SimulatorOptions::Parse(const QStringList& arguments)
{
    const QString address = QStringLiteral("address");
    const QString port = QStringLiteral("port");
    const QString ftpPort = QStringLiteral("ftp-port");
    const QString serial = QStringLiteral("serial");
    const QString model = QStringLiteral("model");
    const QString interfaceName = QStringLiteral("interface");
    const QString announce = QStringLiteral("announce");
    const QString announcePort = QStringLiteral("announce-port");
    const QString announcedAddress = QStringLiteral("announced-address");
    const QString idleLimit = QStringLiteral("idle-limit");
    const QString faultName = QStringLiteral("fault");

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Simulates a machine on the network, healthy or faulty on demand: it tells its serial number on a TCP\n"
        "port, greets on a file service, and can announce itself to a host on this computer. It prints a line\n"
        "that begins with \"ready\" once it listens, then one line for each exchange, and ends on Ctrl+C."));
    const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Prints this help."));
    parser.addOption(helpOption);
    const QCommandLineOption versionOption = parser.addVersionOption();
    parser.addOptions({
        {address, QStringLiteral("Listen at <ip>. Default: 127.0.0.1"), QStringLiteral("ip"),
         QStringLiteral("127.0.0.1")},
        {port, QStringLiteral("Tell the serial number on TCP port <n>; 0 takes a free one. Default: 5002"),
         QStringLiteral("n"), QStringLiteral("5002")},
        {ftpPort, QStringLiteral("Run the file service on TCP port <n>; 0 runs none. Default: 21"), QStringLiteral("n"),
         QStringLiteral("21")},
        {serial, QStringLiteral("The machine's serial number. Default: SIM0000001"), QStringLiteral("text"),
         QStringLiteral("SIM0000001")},
        {model, QStringLiteral("The machine's model, as announced. Default: V1"), QStringLiteral("text"),
         QStringLiteral("V1")},
        {interfaceName, QStringLiteral("The connection, as announced: usb0, eth0 or wlan0. Default: wlan0"),
         QStringLiteral("name"), QStringLiteral("wlan0")},
        {announce, QStringLiteral("Announce the machine by UDP on loopback, once a second, as "
                                  "VELMAR*serial*model*ip*port*interface")},
        {announcePort, QStringLiteral("Announce to UDP port <n> of 127.0.0.1. Default: 45002"), QStringLiteral("n"),
         QStringLiteral("45002")},
        {announcedAddress, QStringLiteral("Announce <ip> instead of the address listened at"), QStringLiteral("ip")},
        {idleLimit, QStringLiteral("Close a connection that idles for <seconds>. Default: 10"),
         QStringLiteral("seconds"), QStringLiteral("10")},
        {faultName, QStringLiteral("What is wrong with the machine; see below. Default: nothing"),
         QStringLiteral("fault")},
    });

    SimulatorOptions options;
    const bool understood = parser.parse(arguments);
    options.strHelp = parser.helpText() + QStringLiteral("\nFaults:\n") + Fault::Help();
    if (understood && parser.isSet(helpOption)) {
        options.eRequest = ShowHelp;
        return options;
    }
    if (understood && parser.isSet(versionOption)) {
        options.eRequest = ShowVersion;
        return options;
    }

    ValueReader reader(parser);
    if (!understood) {
        reader.Complain(parser.errorText());
    } else if (!parser.positionalArguments().isEmpty()) {
        reader.Complain(QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    }
    options.address = reader.Address(address);
    options.iPort = reader.Port(port);
    options.iFtpPort = reader.Port(ftpPort);
    options.strSerial = reader.Field(serial);
    options.strModel = reader.Field(model);
    options.strInterface = reader.Value(interfaceName);
    if (!kInterfaces.contains(options.strInterface)) {
        reader.Complain(QStringLiteral("--%1 takes one of %2, not \"%3\"")
                            .arg(interfaceName, kInterfaces.join(QStringLiteral(", ")), options.strInterface));
    }
    options.bAnnounce = parser.isSet(announce);
    options.iAnnouncePort = reader.Port(announcePort, 1);
    options.strAnnouncedAddress = options.address.toString();
    if (parser.isSet(announcedAddress)) {
        options.strAnnouncedAddress = reader.Address(announcedAddress).toString();
    }
    options.iIdleLimitMs = 1000 * reader.Number(idleLimit, 1, kLongestIdleSeconds);
    if (parser.isSet(faultName)) {
        QString reason;
        const std::optional<Fault> fault = Fault::Parse(parser.value(faultName), &reason);
        if (!fault) {
            reader.Complain(reason);
        }
        options.fault = fault.value_or(Fault());
    }

    options.strError = reader.Error();
    options.eRequest = options.strError.isEmpty() ? Run : Refuse;
    return options;
}

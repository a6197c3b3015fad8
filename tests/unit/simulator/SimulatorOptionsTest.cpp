#include <simulator/SimulatorOptions.h>

#include <tests/support/TestMain.h>

class SimulatorOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultsAreThoseOfAMachine();
    void everyOptionIsRead();
    void wrongValuesAreRefusedAndNamed_data();
    void wrongValuesAreRefusedAndNamed();
    void helpAndVersionWinOverWrongValues();
    void helpTellsEveryOptionAndFault();

private:
    static SimulatorOptions Parse(const QStringList& arguments);
};

SimulatorOptions SimulatorOptionsTest::Parse(const QStringList& arguments)
{
    return SimulatorOptions::Parse(QStringList{QStringLiteral("machine-simulator")} + arguments);
}

void SimulatorOptionsTest::defaultsAreThoseOfAMachine()
{
    const SimulatorOptions options = Parse({});
    QCOMPARE(options.eRequest, SimulatorOptions::Run);
    QCOMPARE(options.address, QHostAddress(QHostAddress::LocalHost));
    QCOMPARE(int(options.iPort), 5002);
    QCOMPARE(int(options.iFtpPort), 21);
    QCOMPARE(options.strSerial, QStringLiteral("SIM0000001"));
    QCOMPARE(options.strModel, QStringLiteral("V1"));
    QCOMPARE(options.strInterface, QStringLiteral("wlan0"));
    QCOMPARE(options.bAnnounce, false);
    QCOMPARE(int(options.iAnnouncePort), 45002);
    QCOMPARE(options.strAnnouncedAddress, QStringLiteral("127.0.0.1"));
    QCOMPARE(options.iIdleLimitMs, 10000);
    QCOMPARE(options.fault.eKind, Fault::None);
}

void SimulatorOptionsTest::everyOptionIsRead()
{
    const SimulatorOptions options = Parse({"--address",   "127.0.0.9",
                                            "--port",      "0",
                                            "--ftp-port",  "2121",
                                            "--serial",    "SN 9",
                                            "--model",     "V2",
                                            "--interface", "usb0",
                                            "--announce",  "--announce-port",
                                            "50000",       "--announced-address",
                                            "192.168.7.2", "--idle-limit",
                                            "3",           "--fault",
                                            "error:7:hot"});
    QCOMPARE(options.eRequest, SimulatorOptions::Run);
    QCOMPARE(options.address, QHostAddress(QStringLiteral("127.0.0.9")));
    QCOMPARE(int(options.iPort), 0);
    QCOMPARE(int(options.iFtpPort), 2121);
    QCOMPARE(options.strSerial, QStringLiteral("SN 9"));
    QCOMPARE(options.strModel, QStringLiteral("V2"));
    QCOMPARE(options.strInterface, QStringLiteral("usb0"));
    QCOMPARE(options.bAnnounce, true);
    QCOMPARE(int(options.iAnnouncePort), 50000);
    QCOMPARE(options.strAnnouncedAddress, QStringLiteral("192.168.7.2"));
    QCOMPARE(options.iIdleLimitMs, 3000);
    QCOMPARE(options.fault.Name(), QStringLiteral("error:7:hot"));
    QCOMPARE(Parse({"--address", "127.0.0.9"}).strAnnouncedAddress, QStringLiteral("127.0.0.9"));
}

void SimulatorOptionsTest::wrongValuesAreRefusedAndNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char* tag, const QStringList& arguments, const char* named) {
        QTest::newRow(tag) << arguments << QString::fromLatin1(named);
    };
    row("unknown option", {"--colour"}, "colour");
    row("missing value", {"--port"}, "port");
    row("stray argument", {"127.0.0.1"}, "127.0.0.1");
    row("address is a name", {"--address", "localhost"}, "--address");
    row("address is empty", {"--address", ""}, "--address");
    row("port is a text", {"--port", "x"}, "--port");
    row("port below 0", {"--port", "-1"}, "--port");
    row("port too large", {"--port", "65536"}, "--port");
    row("file port too large", {"--ftp-port", "70000"}, "--ftp-port");
    row("announce port 0", {"--announce-port", "0"}, "--announce-port");
    row("announced address", {"--announced-address", "here"}, "--announced-address");
    row("serial is empty", {"--serial", ""}, "--serial");
    row("serial with a star", {"--serial", "A*B"}, "--serial");
    row("model with a star", {"--model", "*"}, "--model");
    row("unknown interface", {"--interface", "eth1"}, "--interface");
    row("idle limit 0", {"--idle-limit", "0"}, "--idle-limit");
    row("unknown fault", {"--fault", "fire"}, "fire");
    row("empty fault", {"--fault", ""}, "fault");
    row("error without a code", {"--fault", "error:x"}, "error:x");
}

void SimulatorOptionsTest::wrongValuesAreRefusedAndNamed()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, named);
    const SimulatorOptions options = Parse(arguments);
    QCOMPARE(options.eRequest, SimulatorOptions::Refuse);
    QVERIFY2(options.strError.contains(named), qPrintable(options.strError));
}

void SimulatorOptionsTest::helpAndVersionWinOverWrongValues()
{
    QCOMPARE(Parse({"--help", "--port", "x"}).eRequest, SimulatorOptions::ShowHelp);
    QCOMPARE(Parse({"--version", "--port", "x"}).eRequest, SimulatorOptions::ShowVersion);
}

void SimulatorOptionsTest::helpTellsEveryOptionAndFault()
{
    const QString help = Parse({}).strHelp;
    for (const char* name : {"--address", "--port", "--ftp-port", "--serial", "--model", "--interface", "--announce ",
                             "--announce-port", "--announced-address", "--idle-limit", "--fault"}) {
        QVERIFY2(help.contains(QLatin1String(name)), name);
    }
    QVERIFY(help.contains(Fault::Help()));
}

CUSTOMCONTROLS_TEST_MAIN(SimulatorOptionsTest)
#include "SimulatorOptionsTest.moc"

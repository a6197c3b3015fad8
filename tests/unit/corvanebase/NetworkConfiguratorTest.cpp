#include <CorvaneBase/NetworkConfigurator.h>
#include <CorvaneBase/NetworkConfigurator_p.h>
#include <CustomControls/CustomControlsTranslation.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QThread>

using namespace NetworkConfiguratorDetail;
using Status = NetworkConfigurator::Status;

namespace {

Adapter Wired(const QString& name, const QList<AdapterAddress>& addresses = {})
{
    return {name, name.toUpper(), QStringLiteral("02:00:00:00:00:01"), addresses};
}

AdapterAddress Entry(const char* address, int prefix = 24)
{
    return {QHostAddress(QLatin1String(address)), prefix};
}

/** A computer made of words: what it has in each round, what it allows, and where the machine hangs. */
class FakeSystem : public System
{
public:
    QList<Adapter> WiredAdapters() override
    {
        ++m_iListed;
        return m_listRounds.value(qMin(m_iListed, int(m_listRounds.size())) - 1);
    }
    bool IsTaken(const Adapter&, const QHostAddress& address) override
    {
        return m_listTaken.contains(address.toString());
    }
    Change AddAddress(const Adapter& adapter, const QHostAddress& address, int prefix) override
    {
        m_listCalls.append(QStringLiteral("+%1 %2/%3").arg(adapter.strName, address.toString()).arg(prefix));
        m_strLast = adapter.strName;
        return m_hashRefused.value(adapter.strName);
    }
    Change RemoveAddress(const Adapter& adapter, const QHostAddress& address, int prefix) override
    {
        m_listCalls.append(QStringLiteral("-%1 %2/%3").arg(adapter.strName, address.toString()).arg(prefix));
        return m_removal;
    }
    bool MachineAnswers(const QHostAddress&) override { return m_strLast == m_strMachineAt; }
    void Pause(int milliseconds) override { m_listCalls.append(QStringLiteral("pause %1").arg(milliseconds)); }
    QString ToolNames() const override { return QStringLiteral("configure"); }

    QList<QList<Adapter>> m_listRounds; // the last one stays
    QStringList m_listTaken;
    QHash<QString, Change> m_hashRefused;
    Change m_removal;
    QString m_strMachineAt = QStringLiteral("none");
    QStringList m_listCalls;
    QString m_strLast;
    int m_iListed = 0;
};

/** What the user reads of each way in which a search fails. */
QSet<QString> FailureDetails()
{
    QSet<QString> details;
    for (const Status refused : {Status::StatusNoRight, Status::StatusNoTool, Status::StatusConfigurationFailed}) {
        FakeSystem system;
        system.m_listRounds = {{Wired("usb")}};
        system.m_hashRefused = {{QStringLiteral("usb"), {refused, QStringLiteral("x")}}};
        details.insert(Search(system, 1).strDetail);
    }
    FakeSystem silent;
    silent.m_listRounds = {{Wired("usb")}};
    details.insert(Search(silent, 1).strDetail);
    FakeSystem empty;
    empty.m_listRounds = {{}};
    details.insert(Search(empty, 1).strDetail);
    FakeSystem crowded;
    crowded.m_listRounds = {{Wired("usb")}};
    for (int host = 100; host < 108; ++host) {
        crowded.m_listTaken.append(QStringLiteral("192.168.7.%1").arg(host));
    }
    details.insert(Search(crowded, 1).strDetail);
    FakeSystem occupied;
    occupied.m_listRounds = {{Wired("usb", {Entry("192.168.7.2")})}};
    details.insert(Search(occupied, 1).strDetail);
    return details;
}

} // namespace

class NetworkConfiguratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readyAddressIsOneFromWhichTheMachineIsReached_data();
    void readyAddressIsOneFromWhichTheMachineIsReached();
    void freeAddressPassesOverTakenOnes();
    void adaptersWithoutAddressComeFirst();
    void readyAdapterIsLeftAlone();
    void adapterGetsAFreeAddress();
    void takenAddressesArePassedOver();
    void silentMachineTakesTheAddressBack();
    void everyAdapterIsTried();
    void noAdapterIsLookedForInEachRound();
    void machineThatComesLateIsFound();
    void lessThanOneRoundCountsAsOne_data();
    void lessThanOneRoundCountsAsOne();
    void missingRightEndsAtOnce();
    void missingToolEndsAtOnce();
    void refusedAddressTellsWhy();
    void silentMachineOutweighsARefusedAddress();
    void machinesOwnAddressOnAnAdapterIsTold();
    void addressThatStaysIsLogged();
    void adaptersLookedAtAreListed();
    void everyFailureHasChineseWords();
    void everyOutcomeHasEnglishWordsForAnEnglishHost();
    void providerTakesThePlaceOfTheSearch();
    void programsAreEndedInTime();
    void programsAreRunWithoutAShell();
};

void NetworkConfiguratorTest::readyAddressIsOneFromWhichTheMachineIsReached_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("prefix");
    QTest::addColumn<bool>("ready");
    QTest::newRow("in the network") << "192.168.7.1" << 24 << true;
    QTest::newRow("last host") << "192.168.7.254" << 24 << true;
    QTest::newRow("wider network") << "192.168.7.9" << 16 << true;
    QTest::newRow("narrow network with the machine") << "192.168.7.5" << 29 << true;
    QTest::newRow("narrow network without it") << "192.168.7.9" << 29 << false;
    QTest::newRow("alone") << "192.168.7.9" << 32 << false;
    QTest::newRow("unknown prefix") << "192.168.7.9" << -1 << true;
    QTest::newRow("machine's own") << "192.168.7.2" << 24 << false;
    QTest::newRow("next network") << "192.168.8.9" << 16 << false;
    QTest::newRow("link-local") << "169.254.7.9" << 16 << false;
    QTest::newRow("none") << "" << 0 << false;
}

void NetworkConfiguratorTest::readyAddressIsOneFromWhichTheMachineIsReached()
{
    QFETCH(QString, address);
    QFETCH(int, prefix);
    QFETCH(bool, ready);
    const Adapter adapter = Wired("a", {Entry("10.0.0.5"), {QHostAddress(address), prefix}});
    QCOMPARE(ReadyAddress(adapter).toString(), ready ? address : QString());
}

void NetworkConfiguratorTest::freeAddressPassesOverTakenOnes()
{
    int asked = 0;
    const auto taken = [&asked](const QHostAddress&) { return ++asked <= 2; };
    QCOMPARE(FreeAddress(taken), QHostAddress(QStringLiteral("192.168.7.102")));
    QCOMPARE(asked, 3);
    QVERIFY(FreeAddress([](const QHostAddress&) { return true; }).isNull());
    QVERIFY(!FreeAddress([](const QHostAddress& a) { return a != MachineAddress(); }).isEqual(MachineAddress()));
}

void NetworkConfiguratorTest::adaptersWithoutAddressComeFirst()
{
    const QList<Adapter> order =
        InOrderOfPromise({Wired("lan", {Entry("10.0.0.5")}), Wired("bare"), Wired("other", {Entry("10.1.0.5")}),
                          Wired("apipa", {Entry("169.254.3.4", 16)})});
    QStringList names;
    for (const Adapter& adapter : order) {
        names.append(adapter.strName);
    }
    QCOMPARE(names, QStringList({"bare", "apipa", "lan", "other"}));
}

void NetworkConfiguratorTest::readyAdapterIsLeftAlone()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("bare"), Wired("ready", {Entry("192.168.7.50")})}};
    const NetworkConfigurator::Result result = Search(system, 4);
    QCOMPARE(result.iStatus, int(Status::StatusReady));
    QCOMPARE(result.strAdapter, QStringLiteral("READY"));
    QCOMPARE(result.strAddress, QStringLiteral("192.168.7.50"));
    QCOMPARE(system.m_listCalls, QStringList());
}

void NetworkConfiguratorTest::adapterGetsAFreeAddress()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    system.m_strMachineAt = QStringLiteral("usb");
    const NetworkConfigurator::Result result = Search(system, 4);
    QCOMPARE(result.iStatus, 0);
    QCOMPARE(result.strAddress, QStringLiteral("192.168.7.100"));
    QCOMPARE(system.m_listCalls, QStringList({"+usb 192.168.7.100/24"}));
}

void NetworkConfiguratorTest::takenAddressesArePassedOver()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    system.m_strMachineAt = QStringLiteral("usb");
    system.m_listTaken = QStringList({"192.168.7.100", "192.168.7.101"});
    QCOMPARE(Search(system, 1).strAddress, QStringLiteral("192.168.7.102"));
    for (int host = 102; host < 255; ++host) {
        system.m_listTaken.append(QStringLiteral("192.168.7.%1").arg(host));
    }
    system.m_listCalls.clear();
    QCOMPARE(Search(system, 1).iStatus, int(Status::StatusConfigurationFailed));
    QCOMPARE(system.m_listCalls, QStringList());
}

void NetworkConfiguratorTest::silentMachineTakesTheAddressBack()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    const NetworkConfigurator::Result result = Search(system, 2);
    QCOMPARE(result.iStatus, int(Status::StatusNoAnswer));
    QCOMPARE(result.strAddress, QString());
    QCOMPARE(system.m_listCalls, QStringList({"+usb 192.168.7.100/24", "-usb 192.168.7.100/24", "pause 1000",
                                              "+usb 192.168.7.100/24", "-usb 192.168.7.100/24"}));
}

void NetworkConfiguratorTest::everyAdapterIsTried()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("lan", {Entry("10.0.0.5")}), Wired("bare")}};
    system.m_strMachineAt = QStringLiteral("lan");
    QCOMPARE(Search(system, 1).strAdapter, QStringLiteral("LAN"));
    QCOMPARE(system.m_listCalls,
             QStringList({"+bare 192.168.7.100/24", "-bare 192.168.7.100/24", "+lan 192.168.7.100/24"}));
}

void NetworkConfiguratorTest::noAdapterIsLookedForInEachRound()
{
    FakeSystem system;
    system.m_listRounds = {{}};
    QCOMPARE(Search(system, 4).iStatus, int(Status::StatusNoAdapter));
    QCOMPARE(system.m_iListed, 4);
    QCOMPARE(system.m_listCalls, QStringList({"pause 1000", "pause 1000", "pause 1000"}));
}

void NetworkConfiguratorTest::machineThatComesLateIsFound()
{
    FakeSystem system;
    system.m_listRounds = {{}, {}, {Wired("usb")}};
    system.m_strMachineAt = QStringLiteral("usb");
    QCOMPARE(Search(system, 4).iStatus, 0);
    QCOMPARE(system.m_iListed, 3);
}

void NetworkConfiguratorTest::lessThanOneRoundCountsAsOne_data()
{
    QTest::addColumn<int>("rounds");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << std::numeric_limits<int>::min();
    QTest::newRow("one") << 1;
}

void NetworkConfiguratorTest::lessThanOneRoundCountsAsOne()
{
    QFETCH(int, rounds);
    FakeSystem system;
    system.m_listRounds = {{}};
    QCOMPARE(Search(system, rounds).iStatus, int(Status::StatusNoAdapter));
    QCOMPARE(system.m_iListed, 1);
}

void NetworkConfiguratorTest::missingRightEndsAtOnce()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb"), Wired("lan")}};
    system.m_hashRefused = {{QStringLiteral("usb"), {Status::StatusNoRight, QStringLiteral("not permitted")}}};
    const NetworkConfigurator::Result result = Search(system, 4);
    QCOMPARE(result.iStatus, int(Status::StatusNoRight));
    QVERIFY(result.strDetail.contains(QStringLiteral("管理员")));
    QCOMPARE(system.m_listCalls, QStringList({"+usb 192.168.7.100/24"}));
}

void NetworkConfiguratorTest::missingToolEndsAtOnce()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    system.m_hashRefused = {{QStringLiteral("usb"), {Status::StatusNoTool, {}}}};
    const NetworkConfigurator::Result result = Search(system, 4);
    QCOMPARE(result.iStatus, int(Status::StatusNoTool));
    QVERIFY(result.strDetail.contains(QStringLiteral("configure")));
    QCOMPARE(system.m_listCalls.size(), 1);
}

void NetworkConfiguratorTest::refusedAddressTellsWhy()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    system.m_hashRefused = {{QStringLiteral("usb"), {Status::StatusConfigurationFailed, QStringLiteral("busy")}}};
    const NetworkConfigurator::Result result = Search(system, 1);
    QCOMPARE(result.iStatus, int(Status::StatusConfigurationFailed));
    QVERIFY(result.strDetail.contains(QStringLiteral("USB")));
    QVERIFY(result.strDetail.contains(QStringLiteral("busy")));
}

void NetworkConfiguratorTest::silentMachineOutweighsARefusedAddress()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("a"), Wired("b"), Wired("c")}};
    for (const char* name : {"a", "c"}) {
        system.m_hashRefused.insert(QLatin1String(name), {Status::StatusConfigurationFailed, QStringLiteral("busy")});
    }
    QCOMPARE(Search(system, 1).iStatus, int(Status::StatusNoAnswer));
}

void NetworkConfiguratorTest::machinesOwnAddressOnAnAdapterIsTold()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("ready", {Entry("192.168.7.50")}), Wired("usb", {Entry("192.168.7.2")})}};
    const NetworkConfigurator::Result result = Search(system, 1);
    QCOMPARE(result.iStatus, int(Status::StatusConfigurationFailed));
    QVERIFY(result.strDetail.contains(QStringLiteral("192.168.7.2")));
    QCOMPARE(system.m_listCalls, QStringList());
}

void NetworkConfiguratorTest::addressThatStaysIsLogged()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("usb")}};
    system.m_removal = {Status::StatusConfigurationFailed, QStringLiteral("busy")};
    LogCapture log;
    QCOMPARE(Search(system, 1).iStatus, int(Status::StatusNoAnswer));
    QCOMPARE(log.Lines(), QStringList("NetworkConfigurator: address 192.168.7.100 stays on usb: busy"));
}

void NetworkConfiguratorTest::adaptersLookedAtAreListed()
{
    FakeSystem system;
    system.m_listRounds = {{Wired("lan", {Entry("10.0.0.5"), Entry("10.0.0.6")}), Wired("bare")}};
    const NetworkConfigurator::Result result = Search(system, 2);
    using Record = std::array<QString, 3>;
    const QList<Record> expected = {Record{"LAN", "02:00:00:00:00:01", "10.0.0.5"},
                                    Record{"BARE", "02:00:00:00:00:01", QString()}};
    QCOMPARE(result.listAdapters, expected);
}

void NetworkConfiguratorTest::everyFailureHasChineseWords()
{
    const QSet<QString> details = FailureDetails();
    QCOMPARE(details.size(), 7); // each its own
    for (const QString& detail : details) {
        QVERIFY2(detail.at(0).script() == QChar::Script_Han, qPrintable(detail));
    }
}

void NetworkConfiguratorTest::everyOutcomeHasEnglishWordsForAnEnglishHost()
{
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    const auto chinese = qScopeGuard([] { LoadCustomControlsTranslation(QLocale(QLocale::Chinese)); });
    QSet<QString> details = FailureDetails();
    QCOMPARE(details.size(), 7);
    FakeSystem ready;
    ready.m_listRounds = {{Wired("usb", {Entry("192.168.7.9")})}};
    details.insert(Search(ready, 1).strDetail);
    // Neither characters nor the full-width signs between them.
    const QRegularExpression foreign(QStringLiteral("[\\p{Han}\\x{3000}-\\x{303F}\\x{FF00}-\\x{FFEF}]"));
    for (const QString& detail : details) {
        QVERIFY2(!detail.contains(foreign), qPrintable(detail));
    }
}

void NetworkConfiguratorTest::providerTakesThePlaceOfTheSearch()
{
    int rounds = 0;
    NetworkConfigurator::SetProvider([&rounds](int n) {
        rounds = n;
        NetworkConfigurator::Result result;
        result.iStatus = 42;
        return result;
    });
    QCOMPARE(NetworkConfigurator::autoDiscoverAndConfigureCnc(4).iStatus, 42);
    QCOMPARE(rounds, 4);
    NetworkConfigurator::SetProvider([](int) { return NetworkConfigurator::Result(); });
}

void NetworkConfiguratorTest::programsAreEndedInTime()
{
    ProgramRun run;
    QElapsedTimer clock;
    clock.start();
    const std::unique_ptr<QThread> worker(
        QThread::create([&run] { run = RunProgram(QStringLiteral("sleep"), {QStringLiteral("60")}); }));
    worker->start();
    QVERIFY(worker->wait());
    QVERIFY(!run.bFinished);
    QVERIFY(clock.elapsed() >= 4900 && clock.elapsed() < 10000);
}

void NetworkConfiguratorTest::programsAreRunWithoutAShell()
{
    ProgramRun run = RunProgram(QStringLiteral("echo"), {QStringLiteral("$HOME; false"), QStringLiteral("网卡")});
    QVERIFY(run.bFinished);
    QCOMPARE(run.iExitCode, 0);
    QCOMPARE(run.strOutput, QStringLiteral("$HOME; false 网卡"));
    QCOMPARE(RunProgram(QStringLiteral("false"), {}).iExitCode, 1);
    QVERIFY(!RunProgram(QStringLiteral("/nowhere/program"), {}).bFinished);
    QVERIFY(RunProgram(QStringLiteral("cat"), {}).bFinished); // nothing to read, so it does not wait
}

CUSTOMCONTROLS_TEST_MAIN(NetworkConfiguratorTest)
#include "NetworkConfiguratorTest.moc"

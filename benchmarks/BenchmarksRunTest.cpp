// The benchmarks' program itself: that each control is measured in each of its phases, and that nothing warns
// meanwhile. How fast anything is, is no matter of a test.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kLongestMs = 120000;

const QStringList kPhases = {QStringLiteral("make"), QStringLiteral("repaint"), QStringLiteral("memory"),
                             QStringLiteral("ten seconds at rest")};

} // namespace

class BenchmarksRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingWarns();
    void eachControlIsMeasured_data();
    void eachControlIsMeasured();
    void entriesAreAddedTo_data();
    void entriesAreAddedTo();
    void listsAreOpened_data();
    void listsAreOpened();
    void tablesHaveALineForEachRatio();
    void filterChooses();
    void unwritableFileFails();

private:
    static QStringList PhasesOf(const QString& control);

    static QJsonObject s_root;
    static QByteArray s_tables;
};

QJsonObject BenchmarksRunTest::s_root;
QByteArray BenchmarksRunTest::s_tables;

namespace {

struct Outcome
{
    int iCode;
    QByteArray output;
    QByteArray errors;
};

Outcome RunProgram(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(BENCHMARKS_PROGRAM), arguments);
    if (!process.waitForFinished(kLongestMs) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return {-1, {}, process.readAllStandardError()};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

QStringList BenchmarksRunTest::PhasesOf(const QString& control)
{
    QStringList phases;
    const QJsonArray lines = s_root.value(QLatin1String("lines")).toArray();
    for (const QJsonValue& line : lines) {
        if (line[QLatin1String("control")].toString() == control) {
            phases.append(line[QLatin1String("phase")].toString());
        }
    }
    return phases;
}

void BenchmarksRunTest::initTestCase()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString name = folder.filePath(QStringLiteral("figures.json"));
    const Outcome outcome = RunProgram({QStringLiteral("--quick"), QStringLiteral("--json"), name});
    QVERIFY2(outcome.iCode == 0, outcome.errors.right(2000).constData());
    s_tables = outcome.output;
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    s_root = QJsonDocument::fromJson(file.readAll(), &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QVERIFY(!s_root.value(QLatin1String("lines")).toArray().isEmpty());
}

void BenchmarksRunTest::nothingWarns()
{
    QCOMPARE(s_root.value(QLatin1String("warnings")).toArray(), QJsonArray());
}

void BenchmarksRunTest::eachControlIsMeasured_data()
{
    QTest::addColumn<QString>("control");
    for (const char* control : {"button",
                                "button with icons",
                                "select button",
                                "switch with caption",
                                "custom menu",
                                "machine menu",
                                "machine menu, scrolling list",
                                "combo box",
                                "table combo box",
                                "combo box that reports focus",
                                "tool block",
                                "ribbon",
                                "number field",
                                "address field",
                                "plain text view",
                                "text browser",
                                "tool table",
                                "table with the delegates",
                                "progress bar",
                                "message box",
                                "progress dialog",
                                "select box",
                                "machine panel",
                                "frameless main window",
                                "frameless window of its own",
                                "frameless dialog",
                                "hint note",
                                "frosted tip",
                                "toast"}) {
        QTest::newRow(control) << QString::fromLatin1(control);
    }
}

void BenchmarksRunTest::eachControlIsMeasured()
{
    QFETCH(QString, control);
    const QStringList phases = PhasesOf(control);
    for (const QString& phase : kPhases) {
        QVERIFY2(phases.contains(phase), qPrintable(phase));
    }
    QVERIFY(phases.contains(QStringLiteral("first paint")) || phases.contains(QStringLiteral("first opening")));
    const QJsonArray lines = s_root.value(QLatin1String("lines")).toArray();
    for (const QJsonValue& line : lines) {
        const QJsonArray costs = line[QLatin1String("costs")].toArray();
        if (line[QLatin1String("control")].toString() == control &&
            line[QLatin1String("phase")].toString() == QLatin1String("make")) {
            for (const QJsonValue& cost : costs) {
                QVERIFY(cost.toDouble() > 0.0);
            }
        }
    }
}

void BenchmarksRunTest::entriesAreAddedTo_data()
{
    QTest::addColumn<QString>("control");
    for (const char* control : {"custom menu", "machine menu", "machine menu, scrolling list", "combo box",
                                "table combo box", "tool block", "table with the delegates", "machine panel"}) {
        QTest::newRow(control) << QString::fromLatin1(control);
    }
}

void BenchmarksRunTest::entriesAreAddedTo()
{
    QFETCH(QString, control);
    const QStringList phases = PhasesOf(control);
    QVERIFY(phases.contains(QStringLiteral("entry of 10")));
    QVERIFY(phases.contains(QStringLiteral("entry of 100")));
}

void BenchmarksRunTest::listsAreOpened_data()
{
    QTest::addColumn<QString>("control");
    for (const char* control : {"custom menu", "machine menu", "combo box", "table combo box", "message box",
                                "progress dialog", "machine panel", "hint note", "frosted tip", "toast"}) {
        QTest::newRow(control) << QString::fromLatin1(control);
    }
}

void BenchmarksRunTest::listsAreOpened()
{
    QFETCH(QString, control);
    const QStringList phases = PhasesOf(control);
    QVERIFY(phases.contains(QStringLiteral("open")));
    QVERIFY(phases.contains(QStringLiteral("close")));
}

void BenchmarksRunTest::tablesHaveALineForEachRatio()
{
    QCOMPARE(s_tables.count("\n|---|"), 4);
    QVERIFY(s_tables.contains("\n| button | state change |"));
    QVERIFY(s_tables.contains("| met |"));
}

void BenchmarksRunTest::filterChooses()
{
    const Outcome outcome =
        RunProgram({QStringLiteral("--quick"), QStringLiteral("--filter"), QStringLiteral("^select button")});
    QCOMPARE(outcome.iCode, 0);
    QVERIFY(outcome.output.contains("| select button | make |"));
    QVERIFY(!outcome.output.contains("| button | make |"));
}

void BenchmarksRunTest::unwritableFileFails()
{
    const Outcome outcome =
        RunProgram({QStringLiteral("--quick"), QStringLiteral("--filter"), QStringLiteral("^select button"),
                    QStringLiteral("--json"), QStringLiteral("/no such folder/figures.json")});
    QCOMPARE(outcome.iCode, 1);
}

QTEST_GUILESS_MAIN(BenchmarksRunTest)

#include "BenchmarksRunTest.moc"

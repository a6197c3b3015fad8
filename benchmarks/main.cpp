#include <benchmarks/Families.h>
#include <benchmarks/Idle.h>
#include <benchmarks/IdleApplication.h>
#include <benchmarks/Meter.h>
#include <benchmarks/Report.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <benchmark/benchmark.h>

#include <QCommandLineParser>
#include <QProcess>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdio>

namespace {

Report* g_pReport = nullptr;
QtMessageHandler g_pFormerHandler = nullptr;

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // The platform without a screen has no window manager to ask, and says so each time.
    static const QLatin1String platformLacks("This plugin does not support");
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(platformLacks)) {
        g_pReport->AddWarning(text);
        g_pFormerHandler(type, context, text);
    }
}

// Says what was run; the ratios come in a table at the end.
class NamesReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            std::fprintf(stderr, "%s (%.1f s)\n", run.benchmark_name().c_str(), run.real_accumulated_time);
        }
    }
};

void Register(const std::string& name, const std::function<std::vector<Line>()>& run)
{
    benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State& state) {
        for ([[maybe_unused]] auto step : state) {
            g_pReport->Add(run());
        }
    })->Iterations(1);
}

void RegisterAll()
{
    AddButtonComparisons();
    AddMenuComparisons();
    AddComboComparisons();
    AddToolBarComparisons();
    AddFieldComparisons();
    AddTableComparisons();
    AddDialogComparisons();
    AddNoticeComparisons();
    Idle::AddWaitingDialogs();
    for (const Comparison& comparison : Comparison::All()) {
        if (comparison.bCountable || !Meter::CountsInstructions()) {
            Register(comparison.strControl + '|' + comparison.strCounterpart,
                     [&comparison] { return comparison.Run(); });
        }
    }
    if (!Meter::CountsInstructions()) {
        Register("idle", Idle::Run);
    }
}

// The same program once more, under callgrind.
bool CountInstructions(const QString& json, const QString& filter, const QString& profiles)
{
    const QString out = profiles + QStringLiteral("/callgrind.out");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("BENCHMARKS_CALLGRIND_OUT"), out);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral("valgrind"),
                  {QStringLiteral("--tool=callgrind"), QStringLiteral("--quiet"),
                   QStringLiteral("--collect-atstart=no"), QStringLiteral("--callgrind-out-file=") + out,
                   QCoreApplication::applicationFilePath(), QStringLiteral("--json"), json, QStringLiteral("--filter"),
                   filter});
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit && QFile::exists(json);
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_FONT_DPI", "96");
    QStandardPaths::setTestModeEnabled(true);
    IdleApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    // A default font without Chinese glyphs would make the toolkit's controls look slow.
    QApplication::setFont(FontCn_14);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);

    Report report;
    g_pReport = &report;
    g_pFormerHandler = qInstallMessageHandler(HandleMessage);

    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("Measures each control beside the toolkit's own counterpart and prints ratios."));
    options.addHelpOption();
    options.addOptions({
        {QStringLiteral("json"), QStringLiteral("Writes all figures to a file."), QStringLiteral("file")},
        {QStringLiteral("filter"), QStringLiteral("Runs what matches a regular expression only."),
         QStringLiteral("expression"), QStringLiteral(".")},
        {QStringLiteral("instructions"), QStringLiteral("Counts executed instructions besides; needs valgrind.")},
        {QStringLiteral("profiles"), QStringLiteral("Keeps callgrind's profiles of each phase in a folder."),
         QStringLiteral("folder")},
        {QStringLiteral("quick"), QStringLiteral("Runs everything once, just to see that it does.")},
    });
    options.process(app);
    if (options.isSet(QStringLiteral("quick"))) {
        Comparison::SetQuick();
    }

    const QString filter = options.value(QStringLiteral("filter"));
    const QTemporaryDir folder;
    const QString counted = folder.filePath(QStringLiteral("instructions.json"));
    const bool keepsProfiles = options.isSet(QStringLiteral("profiles"));
    if (keepsProfiles || options.isSet(QStringLiteral("instructions"))) {
        if (keepsProfiles) {
            qputenv("BENCHMARKS_KEEP_PROFILES", "1");
        }
        const QString profiles = keepsProfiles ? options.value(QStringLiteral("profiles")) : folder.path();
        if (!CountInstructions(counted, filter, profiles)) {
            std::fprintf(stderr, "valgrind did not count the instructions\n");
            return EXIT_FAILURE;
        }
    }

    RegisterAll();
    NamesReporter names;
    benchmark::RunSpecifiedBenchmarks(&names, filter.toStdString());
    if (QFile::exists(counted)) {
        report.AddInstructions(counted);
    }
    const bool written = !options.isSet(QStringLiteral("json")) || report.Write(options.value(QStringLiteral("json")));
    if (!Meter::CountsInstructions()) {
        report.PrintTables();
    }
    qInstallMessageHandler(g_pFormerHandler);
    return written && report.Warnings().isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

#include <tests/support/SimulatorProcess.h>

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <csignal>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace {

constexpr int kStartMs = 20000;
constexpr int kEndMs = 20000;

} // namespace

QString SimulatorProcess::Program()
{
    return qEnvironmentVariable("MACHINE_SIMULATOR", QStringLiteral(MACHINE_SIMULATOR_PROGRAM));
}

SimulatorProcess::~SimulatorProcess()
{
    Stop();
}

void SimulatorProcess::Launch(const QStringList& arguments, const QString& networkNamespace)
{
    m_output.clear();
#ifdef Q_OS_LINUX
    // A test that crashes runs no destructor.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    if (networkNamespace.isEmpty()) {
        m_process.start(Program(), arguments);
    } else {
        m_process.start(QStringLiteral("ip"),
                        QStringList{QStringLiteral("netns"), QStringLiteral("exec"), networkNamespace, Program()} +
                            arguments);
    }
}

bool SimulatorProcess::Start(const QStringList& arguments, const QString& networkNamespace)
{
    Launch(arguments, networkNamespace);
    return WaitForLog(QStringLiteral("ready "), kStartMs);
}

int SimulatorProcess::Run(const QStringList& arguments)
{
    Launch(arguments, QString());
    m_process.waitForFinished(kEndMs);
    return ExitCode();
}

int SimulatorProcess::Stop(int signalNumber)
{
    if (!IsRunning()) {
        return ExitCode();
    }
#ifdef Q_OS_UNIX
    ::kill(pid_t(m_process.processId()), signalNumber);
#else
    Q_UNUSED(signalNumber)
    m_process.kill();
#endif
    if (!m_process.waitForFinished(kEndMs)) {
        m_process.kill();
        m_process.waitForFinished(kEndMs);
        return -1;
    }
    return ExitCode();
}

int SimulatorProcess::ExitCode() const
{
    return !IsRunning() && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

quint16 SimulatorProcess::Port() const
{
    static const QRegularExpression pattern(QStringLiteral("^ready machine=\\S+:(\\d+)"));
    return pattern.match(QString::fromUtf8(m_output)).captured(1).toUShort();
}

QStringList SimulatorProcess::Log()
{
    m_output += m_process.readAllStandardOutput();
    return QString::fromUtf8(m_output).split(u'\n', Qt::SkipEmptyParts);
}

void SimulatorProcess::ForgetLog()
{
    m_process.readAllStandardOutput();
    m_output.clear();
}

bool SimulatorProcess::WaitForLog(const QString& text, int timeoutMs)
{
    const auto isThere = [this, &text] {
        const QStringList lines = Log();
        return std::any_of(lines.begin(), lines.end(), [&text](const QString& line) { return line.contains(text); });
    };
    // The loop runs on meanwhile: what the test has written to its own sockets must get out.
    [[maybe_unused]] const bool done =
        QTest::qWaitFor([this, &isThere] { return isThere() || !IsRunning(); }, timeoutMs);
    return isThere();
}

QByteArray SimulatorProcess::Errors()
{
    return m_process.readAllStandardError();
}

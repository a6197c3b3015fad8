#include "TourSimulator.h"

#include <utility>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {
constexpr int EndMs = 3000;
}

TourSimulator::TourSimulator(const QString& program, QObject* parent)
    : QObject(parent)
    , m_strProgram(program)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
#ifdef Q_OS_LINUX
    // A program that crashes runs no destructor, and a machine left behind would hold its port.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    connect(&m_process, &QProcess::readyRead, this, [this] { m_output += m_process.readAll(); });
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &TourSimulator::Launch);
}

TourSimulator::~TourSimulator()
{
    m_process.disconnect(this);
    End();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(EndMs)) {
        m_process.kill();
        m_process.waitForFinished(EndMs);
    }
}

void TourSimulator::Start(const QStringList& arguments, const QString& networkNamespace)
{
    m_command = networkNamespace.isEmpty() ? QStringList{m_strProgram}
                                           : QStringList{QStringLiteral("ip"), QStringLiteral("netns"),
                                                         QStringLiteral("exec"), networkNamespace, m_strProgram};
    m_command += arguments;
    m_output.clear();
    if (IsRunning()) {
        End();
    } else {
        Launch();
    }
}

void TourSimulator::Stop()
{
    m_command.clear();
    End();
}

bool TourSimulator::IsReady() const
{
    return IsRunning() && m_output.contains("ready ");
}

bool TourSimulator::IsRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

QString TourSimulator::Output() const
{
    return QString::fromUtf8(m_output).trimmed();
}

void TourSimulator::End()
{
#ifdef Q_OS_WIN
    m_process.kill(); // a program without a window hears no request to end
#else
    m_process.terminate();
#endif
}

void TourSimulator::Launch()
{
    // Taken, so that a machine that ends by itself stays ended.
    const QStringList command = std::exchange(m_command, {});
    if (!command.isEmpty()) {
        m_output.clear();
        m_process.start(command.first(), command.mid(1));
    }
}

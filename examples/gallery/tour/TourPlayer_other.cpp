#include "TourPlayer.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>

namespace {
constexpr auto Program = "xdotool";
}

struct TourPlayer::Road
{
    QProcess process;
};

TourPlayer::TourPlayer(QObject* parent)
    : QObject(parent)
    , m_pRoad(std::make_unique<Road>())
{
    QProcess* process = &m_pRoad->process;
    connect(process, &QProcess::errorOccurred, this, [this, process] { Q_EMIT SignalFailed(process->errorString()); });
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, [this, process](int code) {
        if (code != 0) {
            Q_EMIT SignalFailed(QStringLiteral("xdotool: ") + QString::fromLocal8Bit(process->readAllStandardError()));
        }
    });
}

TourPlayer::~TourPlayer()
{
    // A process that is still running reports its end from its destructor.
    m_pRoad->process.disconnect(this);
}

QString TourPlayer::Missing()
{
    return QGuiApplication::platformName() == QLatin1String("xcb") &&
                   !QStandardPaths::findExecutable(QLatin1String(Program)).isEmpty()
               ? QString()
               : QStringLiteral("an X11 display and xdotool");
}

void TourPlayer::Start(const QStringList& words)
{
    m_pRoad->process.start(QLatin1String(Program), words);
}

bool TourPlayer::IsBusy() const
{
    return m_pRoad->process.state() != QProcess::NotRunning;
}

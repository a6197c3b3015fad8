#include <CustomControls/messagebox/MovieCopy_p.h>

#include <QAbstractEventDispatcher>
#include <QLabel>
#include <QMovie>
#include <QTimer>

namespace {

constexpr int kIntervalMs = 1;
constexpr int kServedMs = 50;

} // namespace

void MovieCopy::Start(QMovie* movie, QTimer* timer, QLabel* label)
{
    new MovieCopy(movie, timer, label);
    // The frames are few and small: kept, they are decoded once instead of once a round.
    movie->setCacheMode(QMovie::CacheAll);
    movie->start();
    timer->setSingleShot(false);
    timer->start(kIntervalMs);
    ServeSeldom(timer);
}

void MovieCopy::ServeSeldom(QTimer* timer)
{
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance(timer->thread());
    if (!timer->isActive() || !dispatcher) {
        return;
    }
    const int id = timer->timerId();
    if (dispatcher->unregisterTimer(id)) {
        dispatcher->registerTimer(id, kServedMs, Qt::CoarseTimer, timer);
    }
}

MovieCopy::MovieCopy(QMovie* movie, QTimer* timer, QLabel* label)
    : QObject(label)
    , m_pMovie(movie)
    , m_pLabel(label)
{
    connect(movie, &QMovie::frameChanged, this, &MovieCopy::CopyFrame);
    connect(timer, &QTimer::timeout, this, &MovieCopy::CopyFrame);
}

void MovieCopy::CopyFrame()
{
    if (!m_pMovie) {
        return;
    }
    // Not the frame's number: that of a movie of one frame never changes.
    const QPixmap frame = m_pMovie->currentPixmap();
    if (frame.cacheKey() != m_iShown) {
        m_iShown = frame.cacheKey();
        m_pLabel->setPixmap(frame);
    }
}

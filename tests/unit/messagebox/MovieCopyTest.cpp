#include <CustomControls/messagebox/MovieCopy_p.h>

#include <tests/support/TestMain.h>

#include <QAbstractEventDispatcher>
#include <QLabel>
#include <QMovie>
#include <QSet>
#include <QTimer>

#include <memory>

namespace {

const QString kAnimation = QStringLiteral(":/icon/gif_pop_bac.gif");

/** An animation on its way to a label, each part of its own. */
struct Road
{
    explicit Road(const QString& file = kAnimation)
        : pMovie(std::make_unique<QMovie>(file))
        , pTimer(std::make_unique<QTimer>())
        , pLabel(std::make_unique<QLabel>())
    {
        MovieCopy::Start(pMovie.get(), pTimer.get(), pLabel.get());
    }
    QPixmap Shown() const { return pLabel->pixmap(Qt::ReturnByValue); }

    std::unique_ptr<QMovie> pMovie;
    std::unique_ptr<QTimer> pTimer;
    std::unique_ptr<QLabel> pLabel;
};

void Tick(QTimer* timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

QList<QAbstractEventDispatcher::TimerInfo> Served(QTimer* timer)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(timer);
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QObject* watched) { watched->installEventFilter(this); }
    int m_iCount = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_iCount += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class MovieCopyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timerReadsAsOneOfAMillisecond();
    void everyFrameReachesTheLabelAtOnce();
    void timerAloneCarriesTheFrameToo();
    void frameThatIsShownIsNotSetAgain();
    void labelIsPaintedForNewFramesOnly();
    void framesAreDecodedOnce();
    void eventLoopServesTheTimerSeldom();
    void timerStartedAgainIsServedAtItsOwnPace();
    void stoppedTimerIsLeftAlone();
    void timerUnknownToTheEventLoopIsLeftAlone();
    void deletionInAnyOrderIsHarmless_data();
    void deletionInAnyOrderIsHarmless();
    void missingAnimationLeavesTheLabelEmpty();
};

void MovieCopyTest::timerReadsAsOneOfAMillisecond()
{
    const Road road;
    QCOMPARE(road.pTimer->interval(), 1);
    QVERIFY(road.pTimer->isActive());
    QVERIFY(!road.pTimer->isSingleShot());
    QCOMPARE(road.pMovie->state(), QMovie::Running);
}

void MovieCopyTest::everyFrameReachesTheLabelAtOnce()
{
    const Road road;
    road.pTimer->stop(); // the announcements do it alone
    QSet<int> frames;
    bool equal = true;
    connect(road.pMovie.get(), &QMovie::frameChanged, this, [&](int frame) {
        frames.insert(frame);
        equal = equal && road.Shown().toImage() == road.pMovie->currentImage();
    });
    QTRY_COMPARE_WITH_TIMEOUT(frames.size(), road.pMovie->frameCount(), 20000);
    QVERIFY(frames.size() > 1);
    QVERIFY(equal);
}

void MovieCopyTest::timerAloneCarriesTheFrameToo()
{
    const Road road;
    road.pMovie->setPaused(true);
    {
        const QSignalBlocker silence(road.pMovie.get());
        QVERIFY(road.pMovie->jumpToFrame(2));
    }
    QVERIFY(road.Shown().toImage() != road.pMovie->currentImage());
    QTRY_COMPARE(road.Shown().toImage(), road.pMovie->currentImage());
}

void MovieCopyTest::frameThatIsShownIsNotSetAgain()
{
    const Road road;
    road.pMovie->setPaused(true);
    Tick(road.pTimer.get());
    QVERIFY(!road.Shown().isNull());
    road.pLabel->clear();
    Tick(road.pTimer.get());
    QVERIFY(road.Shown().isNull());
}

void MovieCopyTest::labelIsPaintedForNewFramesOnly()
{
    const Road road;
    road.pLabel->show();
    QVERIFY(QTest::qWaitForWindowExposed(road.pLabel.get()));
    QCoreApplication::processEvents();
    QSignalSpy frames(road.pMovie.get(), &QMovie::frameChanged);
    QSignalSpy ticks(road.pTimer.get(), &QTimer::timeout);
    const PaintCounter paints(road.pLabel.get());
    for (int tick = 0; tick < 100; ++tick) {
        Tick(road.pTimer.get());
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(frames.size() >= 3);
    QCoreApplication::processEvents();
    QVERIFY(ticks.size() >= 100);
    QVERIFY(paints.m_iCount > 0);
    QVERIFY2(paints.m_iCount <= frames.size() + 1, qPrintable(QString::number(paints.m_iCount)));
}

void MovieCopyTest::framesAreDecodedOnce()
{
    const Road road;
    QCOMPARE(road.pMovie->cacheMode(), QMovie::CacheAll);
}

void MovieCopyTest::eventLoopServesTheTimerSeldom()
{
    const Road road;
    const auto served = Served(road.pTimer.get());
    QCOMPARE(served.size(), 1);
    QCOMPARE(served.first().timerId, road.pTimer->timerId());
    QVERIFY(served.first().interval >= 20);
    QSignalSpy ticks(road.pTimer.get(), &QTimer::timeout);
    QTRY_VERIFY(ticks.size() >= 3);
}

void MovieCopyTest::timerStartedAgainIsServedAtItsOwnPace()
{
    const Road road;
    road.pTimer->stop();
    QVERIFY(Served(road.pTimer.get()).isEmpty());
    road.pTimer->start();
    QCOMPARE(Served(road.pTimer.get()).first().interval, 1);
}

void MovieCopyTest::stoppedTimerIsLeftAlone()
{
    QTimer timer;
    MovieCopy::ServeSeldom(&timer);
    QVERIFY(!timer.isActive());
    QVERIFY(Served(&timer).isEmpty());
}

void MovieCopyTest::timerUnknownToTheEventLoopIsLeftAlone()
{
    QTimer timer;
    timer.start(1000);
    QVERIFY(QAbstractEventDispatcher::instance()->unregisterTimer(timer.timerId()));
    MovieCopy::ServeSeldom(&timer);
    QVERIFY(Served(&timer).isEmpty());
}

void MovieCopyTest::deletionInAnyOrderIsHarmless_data()
{
    QTest::addColumn<QString>("order");
    for (const char* order : {"mtl", "mlt", "tml", "tlm", "lmt", "ltm"}) {
        QTest::newRow(order) << QString::fromLatin1(order);
    }
}

void MovieCopyTest::deletionInAnyOrderIsHarmless()
{
    QFETCH(const QString, order);
    Road road;
    for (const QChar part : order) {
        if (part == QLatin1Char('m')) {
            road.pMovie.reset();
        } else if (part == QLatin1Char('t')) {
            road.pTimer.reset();
        } else {
            road.pLabel.reset();
        }
        // What is left goes on, and nobody calls into what is gone.
        if (road.pTimer) {
            Tick(road.pTimer.get());
        }
        if (road.pMovie) {
            QSignalSpy frames(road.pMovie.get(), &QMovie::frameChanged);
            QVERIFY(frames.wait());
        }
    }
}

void MovieCopyTest::missingAnimationLeavesTheLabelEmpty()
{
    const Road road(QStringLiteral(":/no/such/file.gif"));
    Tick(road.pTimer.get());
    QVERIFY(road.Shown().isNull());
    QVERIFY(road.pTimer->isActive());
}

CUSTOMCONTROLS_TEST_MAIN(MovieCopyTest)
#include "MovieCopyTest.moc"

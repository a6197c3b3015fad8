#include <CustomControls/feedback/CVelmarAnimation.h>

#include <tests/support/TestMain.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <limits>
#include <memory>

namespace {

const QString kOne = QStringLiteral("url(:/icon/img_pop_1.png)");
const QString kTwo = QStringLiteral("url(:/icon/img_pop_2.png)");

QString Sheet(const QString& image)
{
    return QStringLiteral("image:") + image + QLatin1Char(';');
}

/** Counts how often a sheet has been worked through. */
class StyleCounter : public QObject
{
public:
    int m_iChanges = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_iChanges += event->type() == QEvent::StyleChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class CVelmarAnimationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsAtFortyMillisecondsFromTheStart();
    void insertReplacesTheListAndShowsNothing();
    void intervalStartsAtTheFirstImage();
    void ticksGoRound();
    void oneImageShowsOnEveryTick();
    void oneImageIsNotWorkedThroughAgain();
    void emptyListKeepsCountingAndShowsNothing();
    void listAfterAnEmptyOneWaitsForTheInterval();
    void shorterListWaitsForTheInterval();
    void emptyListKeepsTheLastImage();
    void badIntervals_data();
    void badIntervals();
    void countingEndsBeforeItOverflows();
    void missingImagesAreHarmless();
    void imageIsPainted();
    void deletionWhileRunningIsHarmless();
};

void CVelmarAnimationTest::runsAtFortyMillisecondsFromTheStart()
{
    QWidget parent;
    const CVelmarAnimation animation(&parent);
    QCOMPARE(animation.parentWidget(), &parent);
    QVERIFY(animation.m_pTimer->isActive());
    QVERIFY(!animation.m_pTimer->isSingleShot());
    QCOMPARE(animation.m_pTimer->interval(), 40);
    QCOMPARE(animation.m_nInterval, 40);
    QCOMPARE(animation.m_nIndex, 0);
    QVERIFY(animation.m_strlistImage.isEmpty());
}

void CVelmarAnimationTest::insertReplacesTheListAndShowsNothing()
{
    CVelmarAnimation animation(nullptr);
    animation.m_pTimer->stop();
    animation.m_nIndex = 1;
    animation.InsertImage({kOne});
    animation.InsertImage({kOne, kTwo});
    QCOMPARE(animation.m_strlistImage, QList<QString>({kOne, kTwo}));
    QCOMPARE(animation.m_nIndex, 1);
    QVERIFY(animation.styleSheet().isEmpty());
}

void CVelmarAnimationTest::intervalStartsAtTheFirstImage()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne, kTwo});
    animation.m_nIndex = 1;
    animation.SetShowIntervalTime(70);
    QCOMPARE(animation.m_nIndex, 0);
    QCOMPARE(animation.styleSheet(), Sheet(kOne));
    QCOMPARE(animation.m_pTimer->interval(), 70);
    QVERIFY(animation.m_pTimer->isActive());
    QCOMPARE(animation.m_nInterval, 40);
}

void CVelmarAnimationTest::ticksGoRound()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne, kTwo, QStringLiteral("none")});
    animation.SetShowIntervalTime(1000000);
    for (const QString& image : {kTwo, QStringLiteral("none"), kOne, kTwo}) {
        animation.SlotShowTimeout();
        QCOMPARE(animation.styleSheet(), Sheet(image));
    }
    animation.SetShowIntervalTime(1);
    QTRY_COMPARE(animation.styleSheet(), Sheet(kTwo));
}

void CVelmarAnimationTest::oneImageShowsOnEveryTick()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne});
    animation.SetShowIntervalTime(1000000);
    for (int tick = 0; tick < 3; ++tick) {
        animation.setStyleSheet(QString());
        animation.SlotShowTimeout();
        QCOMPARE(animation.m_nIndex, 0);
        QCOMPARE(animation.styleSheet(), Sheet(kOne));
    }
}

void CVelmarAnimationTest::oneImageIsNotWorkedThroughAgain()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne});
    animation.SetShowIntervalTime(1000000);
    animation.show(); // nothing is worked through before
    StyleCounter counter;
    animation.installEventFilter(&counter);
    animation.SlotShowTimeout();
    QCOMPARE(counter.m_iChanges, 0);
    animation.InsertImage({kTwo});
    animation.SlotShowTimeout();
    QVERIFY(counter.m_iChanges > 0);
}

void CVelmarAnimationTest::emptyListKeepsCountingAndShowsNothing()
{
    CVelmarAnimation animation(nullptr);
    animation.m_pTimer->stop();
    animation.SlotShowTimeout();
    animation.SlotShowTimeout();
    QCOMPARE(animation.m_nIndex, 2);
    QVERIFY(animation.styleSheet().isEmpty());
}

void CVelmarAnimationTest::listAfterAnEmptyOneWaitsForTheInterval()
{
    CVelmarAnimation animation(nullptr);
    QSignalSpy tick(animation.m_pTimer, &QTimer::timeout);
    QTRY_VERIFY(tick.count() >= 3);
    animation.InsertImage({kOne, kTwo});
    const qsizetype before = tick.count();
    QTRY_VERIFY(tick.count() >= before + 3);
    QVERIFY(animation.styleSheet().isEmpty());
    animation.SetShowIntervalTime(40);
    QCOMPARE(animation.styleSheet(), Sheet(kOne));
}

void CVelmarAnimationTest::shorterListWaitsForTheInterval()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne, kTwo, kOne});
    animation.SetShowIntervalTime(1000000);
    animation.SlotShowTimeout();
    animation.SlotShowTimeout();
    animation.InsertImage({kTwo});
    animation.SlotShowTimeout();
    QCOMPARE(animation.styleSheet(), Sheet(kOne));
    animation.SetShowIntervalTime(1000000);
    QCOMPARE(animation.styleSheet(), Sheet(kTwo));
}

void CVelmarAnimationTest::emptyListKeepsTheLastImage()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({kOne});
    animation.SetShowIntervalTime(1000000);
    animation.InsertImage({});
    animation.SetShowIntervalTime(1000000);
    animation.SlotShowTimeout();
    QCOMPARE(animation.styleSheet(), Sheet(kOne));
}

void CVelmarAnimationTest::badIntervals_data()
{
    QTest::addColumn<int>("ms");
    QTest::addColumn<int>("interval");
    QTest::newRow("zero") << 0 << 0;
    QTest::newRow("negative") << -1 << 40;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << 40;
    QTest::newRow("highest") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max();
}

void CVelmarAnimationTest::badIntervals()
{
    QFETCH(int, ms);
    QFETCH(int, interval);
    CVelmarAnimation animation(nullptr);
    animation.SetShowIntervalTime(ms);
    QCOMPARE(animation.m_pTimer->interval(), interval);
    QVERIFY(animation.m_pTimer->isActive());
}

void CVelmarAnimationTest::countingEndsBeforeItOverflows()
{
    CVelmarAnimation animation(nullptr);
    animation.m_nIndex = std::numeric_limits<int>::max();
    animation.SlotShowTimeout();
    QCOMPARE(animation.m_nIndex, std::numeric_limits<int>::max());
}

void CVelmarAnimationTest::missingImagesAreHarmless()
{
    CVelmarAnimation animation(nullptr);
    animation.InsertImage({QStringLiteral("url(:/none.png)"), QString(), kOne});
    animation.SetShowIntervalTime(1000000);
    animation.resize(40, 40);
    for (int tick = 0; tick < 3; ++tick) {
        QVERIFY(!animation.grab().isNull());
        animation.SlotShowTimeout();
    }
}

void CVelmarAnimationTest::imageIsPainted()
{
    CVelmarAnimation animation(nullptr);
    animation.resize(60, 60);
    const QImage empty = animation.grab().toImage();
    animation.InsertImage({kOne, kTwo});
    animation.SetShowIntervalTime(1000000);
    const QImage first = animation.grab().toImage();
    animation.SlotShowTimeout();
    const QImage second = animation.grab().toImage();
    QVERIFY(first != empty);
    QVERIFY(second != first);
}

void CVelmarAnimationTest::deletionWhileRunningIsHarmless()
{
    auto animation = std::make_unique<CVelmarAnimation>(nullptr);
    const QPointer<QTimer> timer = animation->m_pTimer;
    animation->SetShowIntervalTime(0);
    animation.reset();
    QVERIFY(!timer);
    QCoreApplication::processEvents();
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarAnimationTest)

#include "CVelmarAnimationTest.moc"

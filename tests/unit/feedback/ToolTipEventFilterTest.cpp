#include <CustomControls/feedback/ToolTipEventFilter.h>

#include <CustomControls/feedback/CFrostedToolTip.h>

#include <tests/support/TestMain.h>

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QPointer>
#include <QWindow>

#include <memory>

namespace {

const QRect kPrimary(0, 0, 1280, 800);
const QRect kNegative(-1600, -400, 1600, 1000);

/** Counts what comes through to it. */
class Watched : public QWidget
{
public:
    int m_iToolTips = 0;
    int m_iLeaves = 0;

protected:
    bool event(QEvent* event) override
    {
        m_iToolTips += event->type() == QEvent::ToolTip ? 1 : 0;
        m_iLeaves += event->type() == QEvent::Leave ? 1 : 0;
        return QWidget::event(event);
    }
};

void AskForToolTip(QObject* watched)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(watched, &event);
}

void Leave(QObject* watched)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(watched, &event);
}

QList<CFrostedToolTip*> Tips()
{
    QList<CFrostedToolTip*> tips;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* tip = qobject_cast<CFrostedToolTip*>(window)) {
            tips.append(tip);
        }
    }
    return tips;
}

} // namespace

class ToolTipEventFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void toolTipEventShowsAFrostedTip();
    void widgetWithoutTextKeepsItsEvent();
    void secondEventIsSwallowedWhileTheTipStands();
    void eachWidgetHasATipOfItsOwn();
    void tipStaysOnTheScreen_data();
    void tipStaysOnTheScreen();
    void leaveFadesTheTipOutAndGoesOn();
    void leaveWithoutTipGoesOn();
    void tipGoesByItselfAfterItsTime();
    void leftTipDoesNotEndTheNextOne();
    void objectThatIsNoWidgetIsLeftAlone();
    void widgetDeletedWhileItsTipStandsTakesItAway();
    void widgetDeletedWhileItsTipFadesIsHarmless();
    void tipDeletedFromOutsideIsForgotten();
    void filterDeletedWhileTipsStandTakesThemAway();
    void twoFiltersMakeOneTip();
    void filterOnTheApplicationServesEveryWidget();
    void otherEventsGoOn();

private:
    std::unique_ptr<ToolTipEventFilter> m_filter;
    std::unique_ptr<Watched> m_watched;
};

void ToolTipEventFilterTest::init()
{
    QCursor::setPos(QPoint(400, 300));
    m_filter = std::make_unique<ToolTipEventFilter>(nullptr);
    m_watched = std::make_unique<Watched>();
    m_watched->setToolTip(QStringLiteral("生成G代码"));
    m_watched->installEventFilter(m_filter.get());
}

void ToolTipEventFilterTest::cleanup()
{
    m_watched.reset();
    m_filter.reset();
    QTRY_VERIFY(Tips().isEmpty());
}

void ToolTipEventFilterTest::toolTipEventShowsAFrostedTip()
{
    QVERIFY(m_filter->m_hashToolTips.isEmpty());
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips().size(), 1);
    CFrostedToolTip* tip = Tips().first();
    QCOMPARE(m_filter->m_hashToolTips.value(m_watched.get()), tip);
    QVERIFY(tip->isVisible());
    QVERIFY(!tip->parent());
    QCOMPARE(tip->findChild<QLabel*>()->text(), QStringLiteral("生成G代码"));
    QCOMPARE(tip->pos(), QPoint(408, 318));
    QCOMPARE(m_watched->m_iToolTips, 0);
}

void ToolTipEventFilterTest::widgetWithoutTextKeepsItsEvent()
{
    m_watched->setToolTip(QString());
    AskForToolTip(m_watched.get());
    QCOMPARE(m_watched->m_iToolTips, 1);
    QVERIFY(Tips().isEmpty());
}

void ToolTipEventFilterTest::secondEventIsSwallowedWhileTheTipStands()
{
    AskForToolTip(m_watched.get());
    CFrostedToolTip* tip = Tips().first();
    QCursor::setPos(QPoint(500, 400));
    m_watched->setToolTip(QStringLiteral("other"));
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips(), QList<CFrostedToolTip*>({tip}));
    QCOMPARE(tip->pos(), QPoint(408, 318));
    QCOMPARE(m_watched->m_iToolTips, 0);
}

void ToolTipEventFilterTest::eachWidgetHasATipOfItsOwn()
{
    QWidget other;
    other.setToolTip(QStringLiteral("other"));
    other.installEventFilter(m_filter.get());
    AskForToolTip(m_watched.get());
    AskForToolTip(&other);
    QCOMPARE(m_filter->m_hashToolTips.size(), 2);
    Leave(&other);
    QCOMPARE(m_filter->m_hashToolTips.keys(), QList<QObject*>({m_watched.get()}));
}

void ToolTipEventFilterTest::tipStaysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QPoint>("tip");
    const QList<std::pair<const char*, QRect>> screens = {{"primary", kPrimary}, {"negative", kNegative}};
    for (const auto& [name, screen] : screens) {
        const QPoint limit(screen.right() - 200, screen.bottom() - 100);
        const QPoint shift(8, 18);
        QTest::addRow("%s: top left", name) << screen.topLeft() << screen.topLeft() + shift;
        QTest::addRow("%s: just before the limit", name) << limit << limit + shift;
        QTest::addRow("%s: right of the limit", name) << limit + QPoint(1, -50) << limit + QPoint(0, -50) + shift;
        QTest::addRow("%s: below the limit", name) << limit + QPoint(-50, 1) << limit + QPoint(-50, 0) + shift;
        QTest::addRow("%s: bottom right", name)
            << screen.bottomRight() << QPoint(screen.right() - 192, screen.bottom() - 82);
    }
}

void ToolTipEventFilterTest::tipStaysOnTheScreen()
{
    QFETCH(QPoint, cursor);
    QFETCH(QPoint, tip);
    QCursor::setPos(cursor);
    QCOMPARE(QCursor::pos(), cursor);
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips().first()->pos(), tip);
}

void ToolTipEventFilterTest::leaveFadesTheTipOutAndGoesOn()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> tip = Tips().first();
    Leave(m_watched.get());
    QVERIFY(m_filter->m_hashToolTips.isEmpty());
    QCOMPARE(m_watched->m_iLeaves, 1);
    QVERIFY(tip);
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(!tip);
    QVERIFY2(clock.elapsed() < 3000, "it has waited for its time");
}

void ToolTipEventFilterTest::leaveWithoutTipGoesOn()
{
    Leave(m_watched.get());
    QCOMPARE(m_watched->m_iLeaves, 1);
}

void ToolTipEventFilterTest::tipGoesByItselfAfterItsTime()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> tip = Tips().first();
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY_WITH_TIMEOUT(m_filter->m_hashToolTips.isEmpty(), 20000);
    QVERIFY(clock.elapsed() >= 3300); // the timer may be a twentieth early
    QTRY_VERIFY(!tip);
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips().size(), 1);
}

void ToolTipEventFilterTest::leftTipDoesNotEndTheNextOne()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> first = Tips().first();
    Leave(m_watched.get());
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> second = m_filter->m_hashToolTips.value(m_watched.get());
    QVERIFY(second && second != first);
    QTRY_VERIFY(!first);
    QCOMPARE(m_filter->m_hashToolTips.value(m_watched.get()), second.data());
}

void ToolTipEventFilterTest::objectThatIsNoWidgetIsLeftAlone()
{
    QObject object;
    object.setProperty("toolTip", QStringLiteral("x"));
    object.installEventFilter(m_filter.get());
    QWindow window;
    window.installEventFilter(m_filter.get());
    AskForToolTip(&object);
    AskForToolTip(&window);
    Leave(&object);
    QVERIFY(Tips().isEmpty());
}

void ToolTipEventFilterTest::widgetDeletedWhileItsTipStandsTakesItAway()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> tip = Tips().first();
    m_watched.reset();
    QVERIFY(m_filter->m_hashToolTips.isEmpty());
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(!tip);
    QVERIFY(clock.elapsed() < 3000);
}

void ToolTipEventFilterTest::widgetDeletedWhileItsTipFadesIsHarmless()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> tip = Tips().first();
    Leave(m_watched.get());
    m_watched.reset();
    QTRY_VERIFY(!tip);
}

void ToolTipEventFilterTest::tipDeletedFromOutsideIsForgotten()
{
    AskForToolTip(m_watched.get());
    delete Tips().first();
    QVERIFY(m_filter->m_hashToolTips.isEmpty());
    Leave(m_watched.get());
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips().size(), 1);
    Tips().first()->close();
    QTRY_VERIFY(m_filter->m_hashToolTips.isEmpty());
}

void ToolTipEventFilterTest::filterDeletedWhileTipsStandTakesThemAway()
{
    AskForToolTip(m_watched.get());
    const QPointer<CFrostedToolTip> tip = Tips().first();
    m_filter.reset();
    QVERIFY(tip);
    m_watched.reset();
    QTRY_VERIFY(!tip);
}

void ToolTipEventFilterTest::twoFiltersMakeOneTip()
{
    ToolTipEventFilter second(nullptr);
    m_watched->installEventFilter(&second);
    AskForToolTip(m_watched.get());
    QCOMPARE(Tips().size(), 1);
    QVERIFY(m_filter->m_hashToolTips.isEmpty());
    Leave(m_watched.get());
    QVERIFY(second.m_hashToolTips.isEmpty());
    QCOMPARE(m_watched->m_iLeaves, 1);
}

void ToolTipEventFilterTest::filterOnTheApplicationServesEveryWidget()
{
    ToolTipEventFilter filter(qApp);
    qApp->installEventFilter(&filter);
    QWidget widget;
    widget.setToolTip(QStringLiteral("x"));
    AskForToolTip(&widget);
    QCOMPARE(Tips().size(), 1);
    Leave(&widget);
    QTRY_VERIFY(Tips().isEmpty());
}

void ToolTipEventFilterTest::otherEventsGoOn()
{
    for (const QEvent::Type type : {QEvent::Enter, QEvent::MouseMove, QEvent::Paint, QEvent::User}) {
        QEvent event(type);
        QVERIFY(!m_filter->eventFilter(m_watched.get(), &event));
    }
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens({{kPrimary}, {kNegative}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    ToolTipEventFilterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ToolTipEventFilterTest.moc"

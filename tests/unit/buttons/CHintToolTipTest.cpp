#include <CustomControls/buttons/CHintToolTip.h>

#include <tests/support/IsClickThrough.h>
#include <tests/support/TestMain.h>

#include <QMouseEvent>
#include <QPointer>
#include <QWindow>

#include <memory>

namespace {

class EventCounter : public QObject
{
public:
    int m_iEvents = 0;

    bool event(QEvent* event) override
    {
        ++m_iEvents;
        return QObject::event(event);
    }
};

class ThroughNote : public CHintToolTip
{
public:
    ThroughNote()
        : CHintToolTip(nullptr, nullptr)
    {
        m_bTakesMouse = false;
    }
};

void PressAt(QWidget& receiver, const QPointF& global)
{
    QMouseEvent press(QEvent::MouseButtonPress, receiver.mapFromGlobal(global), global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&receiver, &press);
}

} // namespace

class CHintToolTipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionSetsFlagsAndAttributes();
    void flagsCanBeAppliedAgain();
    void constructorKeepsNoOwnerButton();
    void parentIsTaken();
    void baseIgnoresTexts();
    void shownNoteTakesTheMouse();
    void passThroughNoteLetsTheMouseThrough();
    void passthroughLastsUntilTheNextShow();
    void pressHidesWithoutOwnerButton();
    void pressHidesOutsideButtonAndNote_data();
    void pressHidesOutsideButtonAndNote();
    void pressIsRoundedToWholePixels();
    void pressGoesOn();
    void everyMouseButtonCounts();
    void hiddenNoteSeesNothing();
    void otherEventsPassUnharmed();
    void deletedOwnerButtonIsForgotten();
    void otherOwnerButtonTakesOver();
    void noteDeletedWhileShownIsHarmless();
    void noteDeletedByThePressIsHarmless();
};

void CHintToolTipTest::constructionSetsFlagsAndAttributes()
{
    const CHintToolTip note(nullptr, nullptr);
    QCOMPARE(int(note.windowFlags()), 2059);
    QVERIFY(note.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(note.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(note.m_bTakesMouse);
}

void CHintToolTipTest::flagsCanBeAppliedAgain()
{
    CHintToolTip note(nullptr, nullptr);
    note.setWindowFlags(Qt::Dialog);
    note.setAttribute(Qt::WA_ShowWithoutActivating, false);
    note.applyWindowFlags();
    QCOMPARE(int(note.windowFlags()), 2059);
    QVERIFY(note.testAttribute(Qt::WA_ShowWithoutActivating));
}

void CHintToolTipTest::constructorKeepsNoOwnerButton()
{
    QWidget button;
    CHintToolTip note(&button, nullptr);
    QVERIFY(!note.m_pOwnerButton);
    note.setOwnerButton(&button);
    QCOMPARE(note.m_pOwnerButton, &button);
    note.setOwnerButton(nullptr);
    QVERIFY(!note.m_pOwnerButton);
}

void CHintToolTipTest::parentIsTaken()
{
    QWidget parent;
    const CHintToolTip note(nullptr, &parent);
    QCOMPARE(note.parentWidget(), &parent);
    QVERIFY(note.isWindow());
}

void CHintToolTipTest::baseIgnoresTexts()
{
    CHintToolTip note(nullptr, nullptr);
    note.setText(QStringLiteral("x"));
    QVERIFY(note.children().isEmpty());
}

void CHintToolTipTest::shownNoteTakesTheMouse()
{
    CHintToolTip note(nullptr, nullptr);
    note.show();
    QVERIFY(!IsClickThrough(note));
}

void CHintToolTipTest::passThroughNoteLetsTheMouseThrough()
{
    ThroughNote note;
    note.show();
    QVERIFY(IsClickThrough(note));
}

void CHintToolTipTest::passthroughLastsUntilTheNextShow()
{
    CHintToolTip note(nullptr, nullptr);
    note.show();
    note.applyMousePassthrough(true);
    QVERIFY(IsClickThrough(note));
    note.applyMousePassthrough(false);
    QVERIFY(!IsClickThrough(note));
    note.applyMousePassthrough(true);
    note.hide();
    note.show();
    QVERIFY(!IsClickThrough(note));
}

void CHintToolTipTest::pressHidesWithoutOwnerButton()
{
    CHintToolTip note(nullptr, nullptr);
    note.show();
    PressAt(note, note.geometry().center());
    QVERIFY(!note.isVisible());
}

void CHintToolTipTest::pressHidesOutsideButtonAndNote_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<bool>("stays");
    QTest::newRow("button's first pixel") << QPoint(100, 100) << true;
    QTest::newRow("button's last pixel") << QPoint(139, 119) << true;
    QTest::newRow("right of the button") << QPoint(140, 119) << false;
    QTest::newRow("below the button") << QPoint(139, 120) << false;
    QTest::newRow("left of the button") << QPoint(99, 100) << false;
    QTest::newRow("note's first pixel") << QPoint(300, 200) << true;
    QTest::newRow("note's last pixel") << QPoint(399, 249) << true;
    QTest::newRow("right of the note") << QPoint(400, 249) << false;
    QTest::newRow("between them") << QPoint(200, 150) << false;
}

void CHintToolTipTest::pressHidesOutsideButtonAndNote()
{
    QFETCH(QPoint, press);
    QFETCH(bool, stays);
    QWidget button(nullptr, Qt::FramelessWindowHint);
    button.setGeometry(100, 100, 40, 20);
    button.show();
    CHintToolTip note(nullptr, nullptr);
    note.setOwnerButton(&button);
    note.setGeometry(300, 200, 100, 50);
    note.show();
    QWidget elsewhere;
    PressAt(elsewhere, press);
    QCOMPARE(note.isVisible(), stays);
}

void CHintToolTipTest::pressIsRoundedToWholePixels()
{
    CHintToolTip note(nullptr, nullptr);
    QWidget button;
    button.resize(10, 10);
    note.setOwnerButton(&button);
    note.setGeometry(300, 200, 100, 50);
    note.show();
    QWidget elsewhere;
    PressAt(elsewhere, QPointF(399.4, 249.4));
    QVERIFY(note.isVisible());
    PressAt(elsewhere, QPointF(399.6, 249.0));
    QVERIFY(!note.isVisible());
}

void CHintToolTipTest::pressGoesOn()
{
    CHintToolTip note(nullptr, nullptr);
    note.show();
    EventCounter receiver;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), QPointF(), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&receiver, &press);
    QCOMPARE(receiver.m_iEvents, 1);
    QVERIFY(!note.isVisible());
}

void CHintToolTipTest::everyMouseButtonCounts()
{
    CHintToolTip note(nullptr, nullptr);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        note.show();
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(), QPointF(), button, button, Qt::NoModifier);
        QObject receiver;
        QCoreApplication::sendEvent(&receiver, &press);
        QVERIFY(!note.isVisible());
    }
}

void CHintToolTipTest::hiddenNoteSeesNothing()
{
    class Note : public CHintToolTip
    {
    public:
        Note()
            : CHintToolTip(nullptr, nullptr)
        {}
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            ++m_iSeen;
            return CHintToolTip::eventFilter(watched, event);
        }
        int m_iSeen = 0;
    } note;
    QObject receiver;
    QEvent user(QEvent::User);
    QCoreApplication::sendEvent(&receiver, &user);
    QCOMPARE(note.m_iSeen, 0);
    note.show();
    note.m_iSeen = 0;
    QCoreApplication::sendEvent(&receiver, &user);
    QCOMPARE(note.m_iSeen, 1);
    note.hide();
    note.m_iSeen = 0;
    QCoreApplication::sendEvent(&receiver, &user);
    QCOMPARE(note.m_iSeen, 0);
}

void CHintToolTipTest::otherEventsPassUnharmed()
{
    CHintToolTip note(nullptr, nullptr);
    note.show();
    EventCounter receiver;
    const QList<QEvent::Type> types = {QEvent::MouseButtonRelease,
                                       QEvent::MouseMove,
                                       QEvent::KeyPress,
                                       QEvent::Wheel,
                                       QEvent::Enter,
                                       QEvent::Leave,
                                       QEvent::FocusIn,
                                       QEvent::WindowDeactivate,
                                       QEvent::User,
                                       QEvent::MouseButtonDblClick};
    for (const QEvent::Type type : types) {
        QEvent event(type);
        QVERIFY(!note.eventFilter(&receiver, &event));
        QVERIFY(note.isVisible());
    }
    for (int i = 0; i < 1000; ++i) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&receiver, &event);
    }
    QCOMPARE(receiver.m_iEvents, 1000);
}

void CHintToolTipTest::deletedOwnerButtonIsForgotten()
{
    CHintToolTip note(nullptr, nullptr);
    auto button = std::make_unique<QWidget>();
    note.setOwnerButton(button.get());
    note.show();
    button.reset();
    QVERIFY(!note.m_pOwnerButton);
    PressAt(note, note.geometry().center());
    QVERIFY(!note.isVisible());
}

void CHintToolTipTest::otherOwnerButtonTakesOver()
{
    CHintToolTip note(nullptr, nullptr);
    auto first = std::make_unique<QWidget>();
    QWidget second;
    note.setOwnerButton(first.get());
    note.setOwnerButton(&second);
    first.reset();
    QCOMPARE(note.m_pOwnerButton, &second);
}

void CHintToolTipTest::noteDeletedWhileShownIsHarmless()
{
    auto* note = new CHintToolTip(nullptr, nullptr);
    note->show();
    delete note;
    EventCounter receiver;
    PressAt(*std::make_unique<QWidget>(), QPointF());
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&receiver, &event);
    QCOMPARE(receiver.m_iEvents, 1);
}

void CHintToolTipTest::noteDeletedByThePressIsHarmless()
{
    class SelfDeleting : public CHintToolTip
    {
    public:
        SelfDeleting()
            : CHintToolTip(nullptr, nullptr)
        {}
        void hideEvent(QHideEvent* event) override
        {
            CHintToolTip::hideEvent(event);
            deleteLater();
        }
    };
    const QPointer<CHintToolTip> note = new SelfDeleting;
    note->show();
    PressAt(*note, QPointF());
    QTRY_VERIFY(!note);
}

CUSTOMCONTROLS_TEST_MAIN(CHintToolTipTest)

#include "CHintToolTipTest.moc"

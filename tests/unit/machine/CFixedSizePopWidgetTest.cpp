#include <CustomControls/machine/CFixedSizePopWidget.h>

#include <tests/support/TestMain.h>

#include <QLineEdit>

#include <type_traits>

namespace {

constexpr QSize TitleSize(200, 30);

class PopWidget : public CFixedSizePopWidget
{
public:
    explicit PopWidget(QWidget* parent = nullptr)
        : CFixedSizePopWidget(parent)
    {
        resize(300, 200);
        move(100, 100);
    }

    int closes = 0;
    int confirms = 0;
    bool deleteOnClose = false;

protected:
    QSize GetTitleSize() override { return TitleSize; }
    void SlotClose() override
    {
        ++closes;
        if (deleteOnClose) {
            delete this;
        }
    }
    void SlotConfirm() override { ++confirms; }
};

class SilentPopWidget : public CFixedSizePopWidget
{
public:
    using CFixedSizePopWidget::CFixedSizePopWidget;

protected:
    QSize GetTitleSize() override { return {}; }
    void SlotClose() override {}
};

bool SendKey(QWidget* widget, int key, bool repeat = false)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeat);
    event.ignore();
    return QCoreApplication::sendEvent(widget, &event) && event.isAccepted();
}

void SendMouse(QWidget* widget, QEvent::Type type, const QPoint& local, const QPoint& global, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(local), QPointF(global), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class CFixedSizePopWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAbstract();
    void isAFramelessWindowModalDialog();
    void leftPressStartsADragInsideTheTitleOnly_data();
    void leftPressStartsADragInsideTheTitleOnly();
    void otherButtonsStartNoDrag();
    void moveFollowsTheGlobalPosition();
    void moveWithoutHeldButtonStaysPut();
    void leftReleaseEndsTheDrag();
    void otherReleaseKeepsTheDrag();
    void returnAndEnterConfirmOnce_data();
    void returnAndEnterConfirmOnce();
    void repeatedReturnIsNotConsumed();
    void escapeClosesAndIsNotConsumed();
    void escapeRepeatsCloseAgain();
    void otherKeysDoNothing();
    void keyOfAnotherObjectIsLeftAlone();
    void confirmOfThisClassDoesNothing();
    void mayDeleteItselfOnEscape();
    void shadowDrawsNothing();
};

void CFixedSizePopWidgetTest::isAbstract()
{
    QVERIFY(std::is_abstract_v<CFixedSizePopWidget>);
    QCOMPARE(CFixedSizePopWidget::staticMetaObject.methodCount() - QWidget::staticMetaObject.methodCount(), 2);
}

void CFixedSizePopWidgetTest::isAFramelessWindowModalDialog()
{
    QWidget host;
    const PopWidget pop(&host);
    QVERIFY(pop.isWindow());
    QCOMPARE(pop.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
    QVERIFY(pop.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(pop.windowModality(), Qt::WindowModal);
    QVERIFY(pop.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(pop.focusPolicy(), Qt::ClickFocus);
    QVERIFY(!pop.m_bDragging);
    QCOMPARE(pop.m_ptDragGlobal, QPoint(0, 0));
}

void CFixedSizePopWidgetTest::leftPressStartsADragInsideTheTitleOnly_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("drags");
    QTest::newRow("first pixel that counts") << QPoint(1, 1) << true;
    QTest::newRow("middle") << QPoint(100, 15) << true;
    QTest::newRow("last pixel") << QPoint(199, 29) << true;
    QTest::newRow("first column") << QPoint(0, 15) << false;
    QTest::newRow("first row") << QPoint(100, 0) << false;
    QTest::newRow("behind the width") << QPoint(200, 15) << false;
    QTest::newRow("below the height") << QPoint(100, 30) << false;
    QTest::newRow("main area") << QPoint(100, 120) << false;
}

void CFixedSizePopWidgetTest::leftPressStartsADragInsideTheTitleOnly()
{
    QFETCH(QPoint, position);
    QFETCH(bool, drags);
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, position, pop.pos() + position, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(pop.m_bDragging, drags);
    SendMouse(&pop, QEvent::MouseMove, position, pop.pos() + position + QPoint(9, 4), Qt::NoButton, Qt::LeftButton);
    QCOMPARE(pop.pos(), drags ? QPoint(109, 104) : QPoint(100, 100));
}

void CFixedSizePopWidgetTest::otherButtonsStartNoDrag()
{
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::RightButton, Qt::RightButton);
    QVERIFY(!pop.m_bDragging);
}

void CFixedSizePopWidgetTest::moveFollowsTheGlobalPosition()
{
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(&pop, QEvent::MouseMove, {50, 10}, {160, 130}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(pop.pos(), QPoint(110, 120));
    SendMouse(&pop, QEvent::MouseMove, {50, 10}, {140, 100}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(pop.pos(), QPoint(90, 90));
    QCOMPARE(pop.m_ptDragGlobal, QPoint(140, 100));
}

void CFixedSizePopWidgetTest::moveWithoutHeldButtonStaysPut()
{
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(&pop, QEvent::MouseMove, {50, 10}, {160, 130}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(pop.pos(), QPoint(100, 100));
}

void CFixedSizePopWidgetTest::leftReleaseEndsTheDrag()
{
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(&pop, QEvent::MouseButtonRelease, {50, 10}, {150, 110}, Qt::LeftButton, Qt::NoButton);
    QVERIFY(!pop.m_bDragging);
    SendMouse(&pop, QEvent::MouseMove, {50, 10}, {160, 130}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(pop.pos(), QPoint(100, 100));
}

void CFixedSizePopWidgetTest::otherReleaseKeepsTheDrag()
{
    PopWidget pop;
    SendMouse(&pop, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(&pop, QEvent::MouseButtonRelease, {50, 10}, {150, 110}, Qt::RightButton, Qt::LeftButton);
    QVERIFY(pop.m_bDragging);
}

void CFixedSizePopWidgetTest::returnAndEnterConfirmOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void CFixedSizePopWidgetTest::returnAndEnterConfirmOnce()
{
    QFETCH(int, key);
    PopWidget pop;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QVERIFY(pop.eventFilter(&pop, &press));
    QCOMPARE(pop.confirms, 1);
    SendKey(&pop, key, true);
    QCOMPARE(pop.confirms, 1);
    QCOMPARE(pop.closes, 0);
}

void CFixedSizePopWidgetTest::repeatedReturnIsNotConsumed()
{
    PopWidget pop;
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QVERIFY(!pop.eventFilter(&pop, &repeat));
    QCOMPARE(pop.confirms, 0);
}

void CFixedSizePopWidgetTest::escapeClosesAndIsNotConsumed()
{
    PopWidget pop;
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(!pop.eventFilter(&pop, &escape));
    QCOMPARE(pop.closes, 1);
}

void CFixedSizePopWidgetTest::escapeRepeatsCloseAgain()
{
    PopWidget pop;
    SendKey(&pop, Qt::Key_Escape);
    SendKey(&pop, Qt::Key_Escape, true);
    QCOMPARE(pop.closes, 2);
}

void CFixedSizePopWidgetTest::otherKeysDoNothing()
{
    PopWidget pop;
    SendKey(&pop, Qt::Key_Space);
    SendKey(&pop, Qt::Key_Tab);
    QCOMPARE(pop.closes, 0);
    QCOMPARE(pop.confirms, 0);
}

void CFixedSizePopWidgetTest::keyOfAnotherObjectIsLeftAlone()
{
    PopWidget pop;
    QLineEdit field(&pop);
    field.installEventFilter(&pop);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!pop.eventFilter(&field, &press));
    QCOMPARE(pop.confirms, 0);
}

void CFixedSizePopWidgetTest::confirmOfThisClassDoesNothing()
{
    SilentPopWidget pop(nullptr);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(pop.eventFilter(&pop, &press)); // swallowed all the same
}

void CFixedSizePopWidgetTest::mayDeleteItselfOnEscape()
{
    QPointer<PopWidget> pop = new PopWidget;
    pop->deleteOnClose = true;
    SendKey(pop, Qt::Key_Escape);
    QVERIFY(!pop);
}

void CFixedSizePopWidgetTest::shadowDrawsNothing()
{
    PopWidget pop;
    QWidget child(&pop);
    pop.AddShadow(&child);
    pop.AddShadow(nullptr);
    QVERIFY(child.graphicsEffect() == nullptr);
    QVERIFY(pop.graphicsEffect() == nullptr);
}

CUSTOMCONTROLS_TEST_MAIN(CFixedSizePopWidgetTest)
#include "CFixedSizePopWidgetTest.moc"

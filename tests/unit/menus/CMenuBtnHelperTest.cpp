#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CMenuBtnHelper.h>

#include <tests/support/TestMain.h>

#include <QCursor>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <climits>

namespace {

constexpr char kOpen[] = "QPushButton{outline:-1px;background:#111111;color:#FFFFFF;border:none;}"
                         "QPushButton::menu-indicator{image:none;}";
constexpr char kRest[] = "QPushButton{outline:-1px;background:transparent;color:#FFFFFF;border:none;}"
                         "QPushButton::menu-indicator{image:none;}QPushButton::hover{background:#111111;}"
                         "QPushButton::focus{background:#111111;}";

void Enter(QWidget* widget)
{
    QEnterEvent event({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(widget, &event);
}

void FocusOut(QWidget* widget)
{
    QFocusEvent event(QEvent::FocusOut);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

// Two buttons with a menu each, the first with a sub-menu, a field beside them, and the cursor out of the way.
class Bar : public QWidget
{
public:
    Bar()
    {
        resize(600, 400);
        setFocusPolicy(Qt::ClickFocus);
        for (int i = 0; i < 2; ++i) {
            m_buttons[i] = new QPushButton(QString::number(i), this);
            m_buttons[i]->setGeometry(20 + 100 * i, 10, 80, 30);
            m_menus[i] = new CCustomMenu(this);
            m_menus[i]->AddMenuItem(QStringLiteral("a"), {}, {}, {}, {});
        }
        m_subMenu = m_menus[0]->AddButtonWithSubMenu(QStringLiteral("b"), {}, {}, {}, {});
        m_subMenu->AddMenuItem(QStringLiteral("c"), {}, {}, {}, {});
        m_helper = new CMenuBtnHelper(this);
        m_helper->SetMenuPos(5, 50);
        for (int i = 0; i < 2; ++i) {
            m_menus[i]->UpdateItemSize();
            m_menus[i]->RefreshSize();
            m_menus[i]->hide();
            m_helper->RegisterMenuBtn(m_buttons[i], m_menus[i]);
        }
        TestEnvironment::MoveCursorAway();
        move(0, 0);
        show();
        activateWindow();
    }

    void Press(int i) { QTest::mouseClick(m_buttons[i], Qt::LeftButton); }
    void CursorOn(QWidget* widget) { QCursor::setPos(widget->mapToGlobal(widget->rect().center())); }

    QPushButton* m_buttons[2];
    CCustomMenu* m_menus[2];
    CCustomMenu* m_subMenu;
    CMenuBtnHelper* m_helper;
};

class CMenuBtnHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void registeringFillsTheTables();
    void pressOpensTheMenuBelow();
    void secondPressClosesAndGivesTheFocusToTheParent();
    void positionAppliesAtTheNextOpening();
    void positionsOutOfRangeAreHeldInBounds();
    void lastHelperNamesTheFocusWidget();
    void withoutFocusWidgetTheSecondPressStillCloses();
    void looksAreExact();
    void enterWithoutOpenMenuDoesNothing();
    void enterOfAnotherButtonMovesTheMenu();
    void enterOfADisabledButtonClosesTheMenu();
    void enterOfTheOwnButtonShowsTheMenuAnew();
    void buttonsFocusLossClosesTheMenu();
    void buttonsFocusLossIntoTheMenuKeepsItsLook();
    void buttonsFocusLossWithClosedMenuDoesNothing();
    void menusFocusLossUnderTheCursorGivesItBack();
    void menusFocusLossOutsideClosesIt();
    void focusFromMenuToSubMenuKeepsBoth();
    void focusFromSubMenuToOutsideClosesBoth();
    void focusFromSubMenuOverTheRootGoesToTheRoot();
    void subMenuUnderTheCursorGetsItsFocusBack();
    void subMenuOfASubMenuClosesNothing();
    void itemClickRestsTheButton();
    void nullsAreIgnored();
    void registeredTwiceTogglesOnce();
    void anotherMenuReplacesTheFirst();
    void deletedButtonIsForgotten();
    void deletedMenuIsForgotten();
    void deletedSubMenuIsForgotten();
    void deletedFocusWidgetIsForgotten();
    void deletedHelperLeavesButtonsAlone();
    void menuDeletedWhenItIsShown();
    void filterConsumesNothing();

private:
    std::unique_ptr<Bar> m_bar;
};

void CMenuBtnHelperTest::init()
{
    m_bar = std::make_unique<Bar>();
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    m_bar->setFocus();
}

void CMenuBtnHelperTest::cleanup()
{
    m_bar.reset();
}

void CMenuBtnHelperTest::registeringFillsTheTables()
{
    const CMenuBtnHelper* helper = m_bar->m_helper;
    QCOMPARE(helper->m_hashBtnMenu.size(), 2);
    QCOMPARE(helper->m_hashBtnMenu.value(m_bar->m_buttons[0]), m_bar->m_menus[0]);
    QCOMPARE(helper->m_hashSubMenuRoot.size(), 1);
    QCOMPARE(helper->m_hashSubMenuRoot.value(m_bar->m_subMenu), m_bar->m_menus[0]);
    QVERIFY(!helper->m_pCurrentMenu && !helper->m_pKeepFocusBtn);
    const CMenuBtnHelper fresh(nullptr);
    QCOMPARE(fresh.m_iMenuX, 0);
    QCOMPARE(fresh.m_iMenuY, 0);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString());
}

void CMenuBtnHelperTest::pressOpensTheMenuBelow()
{
    QTest::mousePress(m_bar->m_buttons[1], Qt::LeftButton);
    QVERIFY(m_bar->m_menus[1]->isVisible());
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QCOMPARE(m_bar->m_menus[1]->pos(), QPoint(120 + 5, 50));
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, m_bar->m_menus[1]);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, m_bar->m_buttons[1]);
    QTest::mouseRelease(m_bar->m_buttons[1], Qt::LeftButton);
    QVERIFY(m_bar->m_menus[1]->isVisible());
}

void CMenuBtnHelperTest::secondPressClosesAndGivesTheFocusToTheParent()
{
    m_bar->Press(0);
    m_bar->m_buttons[0]->setFocus();
    m_bar->Press(0);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->hasFocus());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::positionAppliesAtTheNextOpening()
{
    m_bar->Press(0);
    m_bar->m_helper->SetMenuPos(-3, 70);
    QCOMPARE(m_bar->m_menus[0]->pos(), QPoint(25, 50));
    m_bar->Press(0);
    m_bar->Press(0);
    QCOMPARE(m_bar->m_menus[0]->pos(), QPoint(17, 70));
}

void CMenuBtnHelperTest::positionsOutOfRangeAreHeldInBounds()
{
    for (const int place : {INT_MIN, INT_MAX}) {
        m_bar->m_helper->SetMenuPos(place, place);
        m_bar->Press(0);
        QVERIFY(m_bar->m_menus[0]->isVisible());
        QCOMPARE(m_bar->m_menus[0]->x(), place < 0 ? -QWIDGETSIZE_MAX : QWIDGETSIZE_MAX);
        m_bar->Press(0);
        QVERIFY(!m_bar->m_menus[0]->isVisible());
    }
}

void CMenuBtnHelperTest::lastHelperNamesTheFocusWidget()
{
    QCOMPARE(CMenuBtnHelper::m_pFocusWidget, m_bar.get());
    auto* other = new QWidget(m_bar.get());
    const CMenuBtnHelper second(other);
    QCOMPARE(CMenuBtnHelper::m_pFocusWidget, other);
    QObject plain;
    const CMenuBtnHelper third(&plain);
    QCOMPARE(CMenuBtnHelper::m_pFocusWidget, nullptr);
}

void CMenuBtnHelperTest::withoutFocusWidgetTheSecondPressStillCloses()
{
    const CMenuBtnHelper last(nullptr);
    m_bar->m_buttons[0]->setFocus();
    m_bar->Press(0);
    m_bar->Press(0);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_buttons[0]->hasFocus());
}

void CMenuBtnHelperTest::looksAreExact()
{
    m_bar->m_helper->KeepFocus(m_bar->m_buttons[0], true);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kOpen));
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, m_bar->m_buttons[0]);
    m_bar->m_helper->KeepFocus(nullptr, false);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, m_bar->m_buttons[0]);
    m_bar->m_helper->KeepFocus(m_bar->m_buttons[0], false);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
}

void CMenuBtnHelperTest::enterWithoutOpenMenuDoesNothing()
{
    Enter(m_bar->m_buttons[0]);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(!m_bar->m_buttons[0]->hasFocus());
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString());
}

void CMenuBtnHelperTest::enterOfAnotherButtonMovesTheMenu()
{
    m_bar->Press(0);
    Enter(m_bar->m_buttons[1]);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_menus[1]->isVisible());
    QCOMPARE(m_bar->m_menus[1]->pos(), QPoint(125, 50));
    QVERIFY(m_bar->m_buttons[1]->hasFocus());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, m_bar->m_menus[1]);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
    QCOMPARE(m_bar->m_buttons[1]->styleSheet(), QString());
}

void CMenuBtnHelperTest::enterOfADisabledButtonClosesTheMenu()
{
    m_bar->Press(0);
    m_bar->m_buttons[1]->setEnabled(false);
    Enter(m_bar->m_buttons[1]);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(!m_bar->m_menus[1]->isVisible());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, m_bar->m_menus[0]);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::enterOfTheOwnButtonShowsTheMenuAnew()
{
    m_bar->Press(0);
    QSignalSpy shown(m_bar->m_menus[0], &CCustomMenu::SignalShow);
    Enter(m_bar->m_buttons[0]);
    QCOMPARE(shown.count(), 1);
    QVERIFY(m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_buttons[0]->hasFocus());
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::buttonsFocusLossClosesTheMenu()
{
    m_bar->m_buttons[0]->setFocus();
    m_bar->Press(0);
    m_bar->setFocus();
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::buttonsFocusLossIntoTheMenuKeepsItsLook()
{
    m_bar->Press(0);
    Enter(m_bar->m_buttons[1]);
    m_bar->m_menus[1]->setFocus();
    QVERIFY(m_bar->m_menus[1]->isVisible());
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, m_bar->m_buttons[1]);
    QCOMPARE(m_bar->m_buttons[1]->styleSheet(), QString::fromLatin1(kOpen));
}

void CMenuBtnHelperTest::buttonsFocusLossWithClosedMenuDoesNothing()
{
    m_bar->m_buttons[0]->setFocus();
    m_bar->setFocus();
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString());
}

void CMenuBtnHelperTest::menusFocusLossUnderTheCursorGivesItBack()
{
    m_bar->Press(0);
    m_bar->m_menus[0]->setFocus();
    m_bar->CursorOn(m_bar->m_menus[0]);
    m_bar->setFocus();
    QVERIFY(m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_menus[0]->hasFocus());
}

void CMenuBtnHelperTest::menusFocusLossOutsideClosesIt()
{
    m_bar->Press(0);
    m_bar->m_menus[0]->setFocus();
    m_bar->setFocus();
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
    QVERIFY(m_bar->hasFocus());
}

void CMenuBtnHelperTest::focusFromMenuToSubMenuKeepsBoth()
{
    m_bar->Press(0);
    m_bar->m_menus[0]->setFocus();
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_subMenu->setFocus();
    QVERIFY(m_bar->m_menus[0]->isVisible() && m_bar->m_subMenu->isVisible());
    QVERIFY(m_bar->m_subMenu->hasFocus());
    m_bar->m_menus[0]->setFocus();
    QVERIFY(m_bar->m_menus[0]->isVisible() && m_bar->m_subMenu->isVisible());
    QVERIFY(m_bar->m_menus[0]->hasFocus());
}

void CMenuBtnHelperTest::focusFromSubMenuToOutsideClosesBoth()
{
    m_bar->Press(0);
    m_bar->m_menus[0]->setFocus();
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_subMenu->setFocus();
    m_bar->setFocus();
    QVERIFY(!m_bar->m_menus[0]->isVisible() && !m_bar->m_subMenu->isVisible());
    QVERIFY(m_bar->hasFocus());
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::focusFromSubMenuOverTheRootGoesToTheRoot()
{
    m_bar->Press(0);
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_subMenu->setFocus();
    m_bar->CursorOn(m_bar->m_menus[0]);
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->setFocus();
    QVERIFY(m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_menus[0]->hasFocus());
}

void CMenuBtnHelperTest::subMenuUnderTheCursorGetsItsFocusBack()
{
    m_bar->Press(0);
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_subMenu->setFocus();
    m_bar->CursorOn(m_bar->m_subMenu);
    m_bar->setFocus();
    QVERIFY(m_bar->m_subMenu->hasFocus());
    QVERIFY(m_bar->m_subMenu->isVisible());
}

void CMenuBtnHelperTest::subMenuOfASubMenuClosesNothing()
{
    CCustomMenu* third = m_bar->m_subMenu->AddButtonWithSubMenu(QStringLiteral("d"), {}, {}, {}, {});
    third->installEventFilter(m_bar->m_helper);
    m_bar->Press(0);
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_menus[0]->setFocus();
    m_bar->m_subMenu->setFocus();
    Enter(m_bar->m_subMenu->MenuButton(1));
    third->setFocus();
    m_bar->setFocus();
    QVERIFY(m_bar->m_menus[0]->isVisible() && m_bar->m_subMenu->isVisible() && third->isVisible());
}

void CMenuBtnHelperTest::itemClickRestsTheButton()
{
    m_bar->Press(0);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kOpen));
    QTest::mouseClick(m_bar->m_menus[0]->MenuButton(0), Qt::LeftButton);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
}

void CMenuBtnHelperTest::nullsAreIgnored()
{
    m_bar->m_helper->RegisterMenuBtn(nullptr, m_bar->m_menus[0]);
    m_bar->m_helper->RegisterMenuBtn(m_bar->m_buttons[0], nullptr);
    m_bar->m_helper->RegisterMenuBtn(nullptr, nullptr);
    m_bar->m_helper->MenuFocusOut(nullptr, true);
    QCOMPARE(m_bar->m_helper->m_hashBtnMenu.size(), 2);
    m_bar->Press(0);
    QVERIFY(m_bar->m_menus[0]->isVisible());
}

void CMenuBtnHelperTest::registeredTwiceTogglesOnce()
{
    m_bar->m_helper->RegisterMenuBtn(m_bar->m_buttons[0], m_bar->m_menus[0]);
    m_bar->Press(0);
    QVERIFY(m_bar->m_menus[0]->isVisible());
    m_bar->Press(0);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
}

void CMenuBtnHelperTest::anotherMenuReplacesTheFirst()
{
    m_bar->m_helper->RegisterMenuBtn(m_bar->m_buttons[0], m_bar->m_menus[1]);
    m_bar->Press(0);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QVERIFY(m_bar->m_menus[1]->isVisible());
    QCOMPARE(m_bar->m_menus[1]->x(), 25);
}

void CMenuBtnHelperTest::deletedButtonIsForgotten()
{
    m_bar->m_buttons[0]->setFocus();
    m_bar->Press(0);
    delete m_bar->m_buttons[0];
    QVERIFY(!m_bar->m_menus[0]->isVisible());
    QCOMPARE(m_bar->m_helper->m_hashBtnMenu.size(), 1);
    QCOMPARE(m_bar->m_helper->m_pKeepFocusBtn, nullptr);
    Enter(m_bar->m_buttons[1]);
    QVERIFY(!m_bar->m_menus[1]->isVisible());
    m_bar->Press(1);
    QVERIFY(m_bar->m_menus[1]->isVisible());
    // From its own press.
    connect(m_bar->m_buttons[1], &QPushButton::pressed, this, [this] { m_bar->m_buttons[1]->deleteLater(); });
    m_bar->Press(1);
    QTRY_VERIFY(m_bar->m_helper->m_hashBtnMenu.isEmpty());
}

void CMenuBtnHelperTest::deletedMenuIsForgotten()
{
    m_bar->m_buttons[0]->setFocus();
    m_bar->Press(0);
    m_bar->m_menus[0]->setFocus();
    delete m_bar->m_menus[0];
    QCOMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    QVERIFY(m_bar->m_helper->m_hashSubMenuRoot.isEmpty());
    QCOMPARE(m_bar->m_buttons[0]->styleSheet(), QString::fromLatin1(kRest));
    m_bar->Press(0);
    Enter(m_bar->m_buttons[0]);
    FocusOut(m_bar->m_buttons[0]);
    m_bar->m_helper->RegisterMenuBtn(m_bar->m_buttons[0], m_bar->m_menus[1]);
    m_bar->Press(0);
    QVERIFY(m_bar->m_menus[1]->isVisible());
}

void CMenuBtnHelperTest::deletedSubMenuIsForgotten()
{
    m_bar->Press(0);
    Enter(m_bar->m_menus[0]->MenuButton(1));
    m_bar->m_subMenu->setFocus();
    delete m_bar->m_subMenu;
    QVERIFY(m_bar->m_helper->m_hashSubMenuRoot.isEmpty());
    FocusOut(m_bar->m_menus[0]);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
}

void CMenuBtnHelperTest::deletedFocusWidgetIsForgotten()
{
    auto* other = new QWidget;
    new CMenuBtnHelper(other);
    QCOMPARE(CMenuBtnHelper::m_pFocusWidget, other);
    delete other;
    QCOMPARE(CMenuBtnHelper::m_pFocusWidget, nullptr);
    m_bar->Press(0);
    m_bar->Press(0);
    QVERIFY(!m_bar->m_menus[0]->isVisible());
}

void CMenuBtnHelperTest::deletedHelperLeavesButtonsAlone()
{
    m_bar->Press(0);
    delete m_bar->m_helper;
    m_bar->Press(0);
    m_bar->m_buttons[0]->setFocus();
    m_bar->setFocus();
    delete m_bar->m_menus[0];
    delete m_bar->m_buttons[0];
    QCOMPARE(m_bar->m_buttons[1]->styleSheet(), QString());
}

void CMenuBtnHelperTest::menuDeletedWhenItIsShown()
{
    connect(m_bar->m_menus[0], &CCustomMenu::SignalShow, m_bar->m_menus[0], &QObject::deleteLater);
    m_bar->Press(0);
    QTRY_COMPARE(m_bar->m_helper->m_pCurrentMenu, nullptr);
    m_bar->Press(0);
    Enter(m_bar->m_buttons[1]);
}

void CMenuBtnHelperTest::filterConsumesNothing()
{
    m_bar->Press(0);
    for (QWidget* watched : {static_cast<QWidget*>(m_bar->m_buttons[0]), static_cast<QWidget*>(m_bar->m_menus[0]),
                             static_cast<QWidget*>(m_bar->m_subMenu), static_cast<QWidget*>(m_bar.get())}) {
        for (const QEvent::Type type : {QEvent::Enter, QEvent::FocusOut, QEvent::MouseButtonPress}) {
            QEvent event(type);
            QVERIFY(!m_bar->m_helper->eventFilter(watched, &event));
        }
    }
}

CUSTOMCONTROLS_TEST_MAIN(CMenuBtnHelperTest)
#include "CMenuBtnHelperTest.moc"

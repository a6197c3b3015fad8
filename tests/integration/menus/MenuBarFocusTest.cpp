#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CMenuBtnHelper.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr QRect kPlace(100, 100, 700, 500);
const QPoint kFreePlace(600, 400);

QPoint CentreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

QPoint MarginOf(const QWidget* menu)
{
    return menu->mapToGlobal(QPoint(menu->width() / 2, menu->height() - 3));
}

// The left edge of the button, beside its caption.
bool LooksOpen(QPushButton* button)
{
    return button->grab().toImage().pixelColor(3, 3).name() == QLatin1String("#111111");
}

} // namespace

// A window as a host builds it: three bar buttons, each with its menu, the first with a sub-menu, and a text field.
class MenuBarFocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressOpensAndSecondPressCloses();
    void focusWalksFromMenuToSubMenuAndBack();
    void clickOutsideClosesMenuAndSubMenu();
    void clickOnAFieldClosesTheMenuAndGoesToTheField();
    void clickOnTheMarginKeepsTheMenuOpen();
    void hoverToTheNextButtonMovesTheMenu();
    void hoverOnADisabledButtonClosesTheMenu();
    void comingBackToTheOwnButtonKeepsTheMenuOpen();
    void secondPressClosesAlsoWithTheFocusInTheMenu();
    void focusComesBackWhileTheCursorIsOverTheMenu();
    void focusComesBackWhileTheCursorIsOverTheSubMenu();
    void focusGoesFromTheSubMenuToTheRootUnderTheCursor();
    void disabledRowKeepsTheMenuOpen();
    void subMenuOfASubMenuStaysWhenItsFocusGoes();
    void clickInTheThirdLevelClosesAll();
    void goingStraightToTheRightKeepsTheSubMenu();
    void goingToAnotherRowClosesTheSubMenu();
    void clickInTheSubMenuTellsTheRootOnce();
    void stateRowStaysOpen();
    void rowDraggedOutOfStillCounts();
    void tabClosesTheMenu();
    void windowDeactivationClosesTheMenu();
    void menuDeletedFromItsOwnClick();

private:
    void OpenFirst();
    void OpenSubMenu();
    void AddThirdLevel();
    void OpenThirdLevel();

    std::unique_ptr<QWidget> m_window;
    QList<QPushButton*> m_buttons;
    QList<CCustomMenu*> m_menus;
    CCustomMenu* m_subMenu = nullptr;
    CCustomMenu* m_third = nullptr;
    QLineEdit* m_field = nullptr;
};

void MenuBarFocusTest::init()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("no display or no xdotool");
    }
    m_window = std::make_unique<QWidget>();
    m_window->setStyleSheet(QStringLiteral("background:#404040;"));
    m_field = new QLineEdit(m_window.get());
    m_field->setGeometry(500, 200, 150, 30);
    m_buttons.clear();
    m_menus.clear();
    auto* helper = new CMenuBtnHelper(m_window.get());
    helper->SetMenuPos(0, 50);
    for (int i = 0; i < 3; ++i) {
        auto* button = new QPushButton(QString::number(i), m_window.get());
        button->setGeometry(20 + 100 * i, 10, 80, 40);
        auto* menu = new CCustomMenu(m_window.get());
        menu->AddMenuItem(QStringLiteral("first"), QStringLiteral("Ctrl+F"), {}, {}, {});
        if (i == 0) {
            m_subMenu = menu->AddButtonWithSubMenu(QStringLiteral("more"), {}, {}, {}, {});
            m_subMenu->AddMenuItem(QStringLiteral("below"), {}, {}, {}, {});
            m_subMenu->AddMenuItem(QStringLiteral("last"), {}, {}, {}, {});
            m_subMenu->UpdateItemSize();
            m_subMenu->RefreshSize();
        }
        menu->AddMenuItem(QStringLiteral("third"), {}, {}, {}, {});
        menu->SetMenuStyle(MenuStyleDark);
        menu->UpdateItemSize();
        menu->RefreshSize();
        menu->hide();
        helper->RegisterMenuBtn(button, menu);
        m_buttons.append(button);
        m_menus.append(menu);
    }
    QVERIFY(RealInput::ShowAt(*m_window, kPlace));
    RealInput::MoveTo(m_window->mapToGlobal(kFreePlace));
}

void MenuBarFocusTest::cleanup()
{
    m_window.reset();
}

void MenuBarFocusTest::OpenFirst()
{
    RealInput::Click(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::OpenSubMenu()
{
    OpenFirst();
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(1)));
    QTRY_VERIFY(m_subMenu->isVisible());
}

void MenuBarFocusTest::pressOpensAndSecondPressCloses()
{
    RealInput::MoveTo(CentreOf(m_buttons.at(0)));
    RealInput::Press();
    QTRY_VERIFY(m_menus.at(0)->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
    QCOMPARE(m_menus.at(0)->pos(), QPoint(20, 50));
    RealInput::Release();
    QTest::qWait(0);
    QVERIFY(m_menus.at(0)->isVisible());
    RealInput::Click(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QTRY_VERIFY(m_window->hasFocus());
}

void MenuBarFocusTest::focusWalksFromMenuToSubMenuAndBack()
{
    OpenSubMenu();
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(LooksOpen(m_buttons.at(0)));
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(1)));
    QTRY_VERIFY(m_subMenu->isVisible());
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    RealInput::Click(MarginOf(m_subMenu));
    QTRY_VERIFY(m_subMenu->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible() && m_subMenu->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::clickOutsideClosesMenuAndSubMenu()
{
    m_window->setFocusPolicy(Qt::ClickFocus);
    OpenSubMenu();
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    RealInput::Click(MarginOf(m_subMenu));
    QTRY_VERIFY(m_subMenu->hasFocus());
    RealInput::Click(m_window->mapToGlobal(kFreePlace));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QVERIFY(!m_subMenu->isVisible());
    QVERIFY(!LooksOpen(m_buttons.at(0)));
    QVERIFY(m_window->hasFocus());
}

void MenuBarFocusTest::clickOnAFieldClosesTheMenuAndGoesToTheField()
{
    OpenFirst(); // the focus is still the button's
    RealInput::Click(CentreOf(m_field));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QVERIFY(m_field->hasFocus());
    RealInput::Type(QStringLiteral("abc"));
    QTRY_COMPARE(m_field->text(), QStringLiteral("abc"));
}

void MenuBarFocusTest::clickOnTheMarginKeepsTheMenuOpen()
{
    OpenFirst();
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::hoverToTheNextButtonMovesTheMenu()
{
    OpenFirst();
    RealInput::MoveTo(CentreOf(m_buttons.at(1)));
    QTRY_VERIFY(m_menus.at(1)->isVisible());
    QVERIFY(!m_menus.at(0)->isVisible());
    QVERIFY(m_buttons.at(1)->hasFocus());
    QCOMPARE(m_menus.at(1)->pos(), QPoint(120, 50));
    RealInput::MoveTo(CentreOf(m_buttons.at(2)));
    QTRY_VERIFY(m_menus.at(2)->isVisible());
    QVERIFY(!m_menus.at(1)->isVisible());
    // Also with the focus in the menu.
    RealInput::Click(MarginOf(m_menus.at(2)));
    QTRY_VERIFY(m_menus.at(2)->hasFocus());
    RealInput::MoveTo(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(m_menus.at(0)->isVisible());
    QVERIFY(!m_menus.at(2)->isVisible());
    QVERIFY(!LooksOpen(m_buttons.at(2)));
}

void MenuBarFocusTest::hoverOnADisabledButtonClosesTheMenu()
{
    m_buttons.at(1)->setEnabled(false);
    OpenFirst();
    RealInput::MoveTo(CentreOf(m_buttons.at(1)));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QVERIFY(!m_menus.at(1)->isVisible());
    RealInput::MoveTo(CentreOf(m_buttons.at(2)));
    QTRY_VERIFY(m_menus.at(2)->isVisible());
}

void MenuBarFocusTest::comingBackToTheOwnButtonKeepsTheMenuOpen()
{
    OpenFirst();
    const QSignalSpy shown(m_menus.at(0), &CCustomMenu::SignalShow);
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    RealInput::MoveTo(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(shown.count() > 0);
    QTRY_VERIFY(m_buttons.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QCOMPARE(m_menus.at(0)->pos(), QPoint(20, 50));
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(0)));
    QTRY_VERIFY(m_menus.at(0)->MenuButton(0)->underMouse());
    QVERIFY(m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::secondPressClosesAlsoWithTheFocusInTheMenu()
{
    OpenFirst();
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    RealInput::Click(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QTRY_VERIFY(m_window->hasFocus());
    RealInput::Click(CentreOf(m_buttons.at(0)));
    QTRY_VERIFY(m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::focusComesBackWhileTheCursorIsOverTheMenu()
{
    OpenFirst();
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    const QSignalSpy moved(qApp, &QApplication::focusChanged);
    RealInput::Key(QStringLiteral("Tab"));
    QTRY_VERIFY(moved.count() > 0);
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::focusComesBackWhileTheCursorIsOverTheSubMenu()
{
    OpenSubMenu();
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    RealInput::Click(MarginOf(m_subMenu));
    QTRY_VERIFY(m_subMenu->hasFocus());
    const QSignalSpy moved(qApp, &QApplication::focusChanged);
    RealInput::Key(QStringLiteral("Tab"));
    QTRY_VERIFY(moved.count() > 0);
    QTRY_VERIFY(m_subMenu->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible() && m_subMenu->isVisible());
}

void MenuBarFocusTest::focusGoesFromTheSubMenuToTheRootUnderTheCursor()
{
    OpenSubMenu();
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    RealInput::Click(MarginOf(m_subMenu));
    QTRY_VERIFY(m_subMenu->hasFocus());
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(1)));
    QTRY_VERIFY(m_menus.at(0)->MenuButton(1)->underMouse());
    RealInput::Key(QStringLiteral("Tab"));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QVERIFY(LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::disabledRowKeepsTheMenuOpen()
{
    CCustomMenuItem* row = m_menus.at(0)->MenuButton(0);
    row->SetEnabled(false);
    const QSignalSpy clicked(row, &CCustomMenuItem::SignalMenuItemClicked);
    OpenFirst();
    RealInput::Click(CentreOf(row));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible());
    QCOMPARE(clicked.count(), 0);
}

void MenuBarFocusTest::AddThirdLevel()
{
    m_third = m_subMenu->AddButtonWithSubMenu(QStringLiteral("deeper"), {}, {}, {}, {});
    m_third->AddMenuItem(QStringLiteral("deepest"), {}, {}, {}, {});
    for (CCustomMenu* menu : {m_third, m_subMenu}) {
        menu->UpdateItemSize();
        menu->RefreshSize();
    }
}

void MenuBarFocusTest::OpenThirdLevel()
{
    const QPoint row = CentreOf(m_subMenu->MenuButton(2));
    RealInput::MoveTo(row);
    QTRY_VERIFY(m_third->isVisible());
    for (int x = row.x(); x < CentreOf(m_third).x(); x += 7) {
        RealInput::MoveTo(QPoint(x, row.y()));
    }
    QTRY_VERIFY(m_third->MenuButton(0)->underMouse());
}

void MenuBarFocusTest::subMenuOfASubMenuStaysWhenItsFocusGoes()
{
    m_window->setFocusPolicy(Qt::ClickFocus);
    AddThirdLevel();
    OpenFirst();
    RealInput::Click(MarginOf(m_menus.at(0)));
    QTRY_VERIFY(m_menus.at(0)->hasFocus());
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(1)));
    QTRY_VERIFY(m_subMenu->isVisible());
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    RealInput::Click(MarginOf(m_subMenu));
    QTRY_VERIFY(m_subMenu->hasFocus());
    OpenThirdLevel();
    RealInput::Click(MarginOf(m_third));
    QTRY_VERIFY(m_third->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible() && m_subMenu->isVisible() && m_third->isVisible());
    // The helper follows direct sub-menus alone: what lies below them closes by a click on a row, not by the focus.
    RealInput::Click(m_window->mapToGlobal(kFreePlace));
    QTRY_VERIFY(m_window->hasFocus());
    QVERIFY(m_menus.at(0)->isVisible() && m_subMenu->isVisible());
}

void MenuBarFocusTest::clickInTheThirdLevelClosesAll()
{
    AddThirdLevel();
    OpenSubMenu();
    RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
    OpenThirdLevel();
    const QSignalSpy root(m_menus.at(0), &CCustomMenu::SignalItemClicked);
    RealInput::Click(CentreOf(m_third->MenuButton(0)));
    QTRY_COMPARE(root.count(), 1);
    QVERIFY(!m_menus.at(0)->isVisible() && !m_subMenu->isVisible() && !m_third->isVisible());
    RealInput::MoveTo(m_window->mapToGlobal(kFreePlace));
    QTRY_VERIFY(!LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::goingStraightToTheRightKeepsTheSubMenu()
{
    OpenSubMenu();
    const QPoint row = CentreOf(m_menus.at(0)->MenuButton(1));
    const int end = CentreOf(m_subMenu->MenuButton(0)).x();
    for (int x = row.x(); x < end; x += 7) {
        RealInput::MoveTo(QPoint(x, row.y()));
        QVERIFY(m_subMenu->isVisible());
    }
    QTRY_VERIFY(m_subMenu->MenuButton(0)->underMouse());
    QVERIFY(m_menus.at(0)->isVisible() && m_subMenu->isVisible());
}

void MenuBarFocusTest::goingToAnotherRowClosesTheSubMenu()
{
    OpenSubMenu();
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(0)));
    QTRY_VERIFY(!m_subMenu->isVisible());
    QVERIFY(m_menus.at(0)->isVisible());
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(1)));
    QTRY_VERIFY(m_subMenu->isVisible());
    RealInput::MoveTo(CentreOf(m_menus.at(0)->MenuButton(2)));
    QTRY_VERIFY(!m_subMenu->isVisible());
}

void MenuBarFocusTest::clickInTheSubMenuTellsTheRootOnce()
{
    for (int turn = 1; turn <= 2; ++turn) {
        OpenSubMenu();
        QSignalSpy root(m_menus.at(0), &CCustomMenu::SignalItemClicked);
        QSignalSpy own(m_subMenu, &CCustomMenu::SignalItemClicked);
        QSignalSpy row(m_subMenu->MenuButton(1), &CCustomMenuItem::SignalMenuItemClicked);
        RealInput::MoveTo(CentreOf(m_subMenu->MenuButton(0)));
        RealInput::Click(CentreOf(m_subMenu->MenuButton(1)));
        QTRY_COMPARE(root.count(), 1);
        QCOMPARE(row.count(), 1);
        QCOMPARE(own.count(), 0);
        QVERIFY(!m_menus.at(0)->isVisible() && !m_subMenu->isVisible());
        RealInput::MoveTo(m_window->mapToGlobal(kFreePlace));
    }
}

void MenuBarFocusTest::stateRowStaysOpen()
{
    CCustomMenuItem* row = m_menus.at(0)->MenuButton(2);
    row->SetBtnState(false, true);
    connect(row, &CCustomMenuItem::SignalMenuItemClicked, row, [row] { row->SetBtnState(!row->GetBtnState(), true); });
    OpenFirst();
    RealInput::Click(CentreOf(row));
    QTRY_VERIFY(row->GetBtnState());
    RealInput::Click(CentreOf(row));
    QTRY_VERIFY(!row->GetBtnState());
    QVERIFY(m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::rowDraggedOutOfStillCounts()
{
    OpenFirst();
    QSignalSpy row(m_menus.at(0)->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked);
    RealInput::Drag(CentreOf(m_menus.at(0)->MenuButton(0)), m_window->mapToGlobal(kFreePlace));
    QTRY_COMPARE(row.count(), 1);
    QVERIFY(!m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::tabClosesTheMenu()
{
    OpenFirst();
    RealInput::MoveTo(m_window->mapToGlobal(kFreePlace));
    RealInput::Key(QStringLiteral("Tab"));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
    QVERIFY(!LooksOpen(m_buttons.at(0)));
}

void MenuBarFocusTest::windowDeactivationClosesTheMenu()
{
    OpenFirst();
    QWidget other;
    QVERIFY(RealInput::ShowAt(other, QRect(900, 100, 200, 200)));
    QTRY_VERIFY(!m_menus.at(0)->isVisible());
}

void MenuBarFocusTest::menuDeletedFromItsOwnClick()
{
    OpenSubMenu();
    const QPointer<CCustomMenu> menu = m_menus.at(0);
    connect(m_subMenu->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked, this, [this] {
        delete m_menus.at(0);
        delete m_subMenu;
    });
    RealInput::Click(CentreOf(m_subMenu->MenuButton(0)));
    QTRY_VERIFY(menu.isNull());
    RealInput::Click(CentreOf(m_buttons.at(1)));
    QTRY_VERIFY(m_menus.at(1)->isVisible());
}

CUSTOMCONTROLS_TEST_MAIN(MenuBarFocusTest)
#include "MenuBarFocusTest.moc"

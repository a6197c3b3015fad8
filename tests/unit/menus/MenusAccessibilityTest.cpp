#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CMenuBtnHelper.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>

#include <tests/support/Accessible.h>
#include <tests/support/AccessibleEvents.h>
#include <tests/support/TestMain.h>

#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

const QString kToggle = QAccessibleActionInterface::toggleAction();
const QString kShowMenu = QAccessibleActionInterface::showMenuAction();

/** Two buttons of a bar, each with its menu: rows 0 to 3, of which 1 is disabled, 2 opens a sub-menu, 3 is a state. */
class Bar : public QWidget
{
public:
    Bar()
    {
        resize(600, 400);
        for (int i = 0; i < 2; ++i) {
            buttons[i] = new QPushButton(QString::number(i), this);
            buttons[i]->setGeometry(20 + 100 * i, 10, 80, 30);
            menus[i] = new CCustomMenu(this);
            menus[i]->AddMenuItem(1, QStringLiteral("打开"), QStringLiteral("Ctrl+O"), {}, {});
            menus[i]->AddMenuItem(2, QStringLiteral("关闭"), {}, {}, {});
            menus[i]->SetEnabled(2, false);
            subMenus[i] = menus[i]->AddButtonWithSubMenu(QStringLiteral("导出"), {}, {}, {}, {});
            subMenus[i]->AddMenuItem(QStringLiteral("模型"), {}, {}, {}, {});
            subMenus[i]->AddMenuItem(QStringLiteral("刀路"), {}, {}, {}, {});
            menus[i]->AddMenuItem(3, QStringLiteral("网格"), {}, {}, {});
            menus[i]->MenuButton(3)->SetBtnState(true, true);
        }
        helper = new CMenuBtnHelper(this);
        helper->SetMenuPos(0, 50);
        for (int i = 0; i < 2; ++i) {
            menus[i]->UpdateItemSize();
            menus[i]->RefreshSize();
            menus[i]->hide();
            helper->RegisterMenuBtn(buttons[i], menus[i]);
        }
        show();
        activateWindow();
        (void)QTest::qWaitForWindowActive(this);
        buttons[0]->setFocus(Qt::TabFocusReason);
    }

    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    CCustomMenuItem* Row(int row, int bar = 0) const { return menus[bar]->MenuButton(row); }

    QPushButton* buttons[2];
    CCustomMenu* menus[2];
    CCustomMenu* subMenus[2];
    CMenuBtnHelper* helper;
};

/** A combo box in a window, with a list of so many entries. */
struct Stage
{
    explicit Stage(int entries)
        : box(new CComboBox(&window))
    {
        window.resize(500, 400);
        box->move(20, 20);
        for (int i = 0; i < entries; ++i) {
            box->AddComboItem(QStringLiteral("刀具 %1").arg(i));
        }
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
        box->setFocus();
    }
    void Key(Qt::Key key) { QTest::keyClick(box, key); }

    QWidget window;
    CComboBox* box;
};

} // namespace

class MenusAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestEnvironment::MoveCursorAway(); }

    void menuTellsItsRowsInOrder()
    {
        Bar bar;
        QAccessibleInterface* menu = Accessible(bar.menus[0]);
        QCOMPARE(menu->role(), QAccessible::PopupMenu);
        QCOMPARE(menu->childCount(), 4);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(menu->child(i)->object(), bar.Row(i));
            QCOMPARE(menu->indexOfChild(menu->child(i)), i);
            QCOMPARE(menu->child(i)->parent()->object(), bar.menus[0]);
            QCOMPARE(menu->child(i)->role(), QAccessible::MenuItem);
            QCOMPARE(menu->child(i)->childCount(), 0);
        }
        QCOMPARE(menu->child(4), nullptr);
        QCOMPARE(menu->child(-1), nullptr);
        QCOMPARE(AccessibleName(bar.subMenus[0]), QStringLiteral("导出"));
    }

    void rowTellsNameShortcutAndState()
    {
        Bar bar;
        QCOMPARE(AccessibleName(bar.Row(0)), QStringLiteral("打开"));
        QCOMPARE(Accessible(bar.Row(0))->text(QAccessible::Accelerator), QStringLiteral("Ctrl+O"));
        QVERIFY(Accessible(bar.Row(1))->state().disabled);
        QVERIFY(Accessible(bar.Row(2))->state().hasPopup);
        QVERIFY(!Accessible(bar.Row(0))->state().checkable);
        QVERIFY(Accessible(bar.Row(3))->state().checkable);
        QVERIFY(Accessible(bar.Row(3))->state().checked);
        AccessibleEvents events;
        bar.Row(3)->SetBtnState(false, true);
        QVERIFY(!Accessible(bar.Row(3))->state().checked);
        QCOMPARE(events.Count(bar.Row(3), QAccessible::StateChanged), 1);
    }

    void pressOfARowFollowsTheRulesOfAClick()
    {
        Bar bar;
        bar.buttons[0]->click();
        bar.menus[0]->show();
        QSignalSpy row(bar.Row(0), &CCustomMenuItem::SignalMenuItemClicked);
        QSignalSpy menu(bar.menus[0], &CCustomMenu::SignalItemClicked);
        QCOMPARE(Actions(bar.Row(0)), QStringList(PressAction()));
        Act(bar.Row(0), PressAction());
        QCOMPARE(row.count(), 1);
        QCOMPARE(menu.count(), 1);
        QVERIFY(!bar.menus[0]->isVisible());

        QVERIFY(Actions(bar.Row(1)).isEmpty());
        Act(bar.Row(1), PressAction());
        bar.menus[0]->show();
        QCOMPARE(Actions(bar.Row(3)), QStringList(kToggle));
        Act(bar.Row(3), kToggle);
        QVERIFY(bar.menus[0]->isVisible());
        QCOMPARE(Actions(bar.Row(2)), QStringList(kShowMenu));
        Act(bar.Row(2), kShowMenu);
        QVERIFY(bar.subMenus[0]->isVisible());
        QCOMPARE(menu.count(), 1);
    }

    void pressMayDeleteTheMenu()
    {
        auto* menu = new CCustomMenu(nullptr);
        const QPointer<CCustomMenu> alive(menu);
        menu->AddMenuItem(QStringLiteral("a"), {}, {}, {}, {});
        connect(menu->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked, this, [menu] { delete menu; });
        Act(menu->MenuButton(0), PressAction());
        QVERIFY(alive.isNull());
    }

    void openingAndClosingAreTold()
    {
        Bar bar;
        AccessibleEvents events;
        bar.menus[0]->show();
        QCOMPARE(events.Count(bar.menus[0], QAccessible::PopupMenuStart), 1);
        bar.menus[0]->hide();
        QCOMPARE(events.Count(bar.menus[0], QAccessible::PopupMenuEnd), 1);
    }

    void menuBarWorksWithoutTheMouse()
    {
        Bar bar;
        QVERIFY(QTest::qWaitForWindowActive(&bar));
        QSignalSpy first(bar.Row(0), &CCustomMenuItem::SignalMenuItemClicked);
        AccessibleEvents events;
        bar.Key(Qt::Key_Down);
        QVERIFY(bar.menus[0]->isVisible());
        QCOMPARE(QApplication::focusWidget(), bar.buttons[0]);
        QVERIFY(Accessible(bar.Row(0))->state().focused);
        QCOMPARE(events.Count(bar.Row(0), QAccessible::Focus), 1);
        bar.Key(Qt::Key_Return);
        QCOMPARE(first.count(), 1);
        QVERIFY(!bar.menus[0]->isVisible());
        QVERIFY(!Accessible(bar.Row(0))->state().focused);
    }

    void arrowsPassDisabledAndHiddenRowsAndStartAnew()
    {
        Bar bar;
        bar.Key(Qt::Key_Space);
        QVERIFY(bar.menus[0]->isVisible());
        QCOMPARE(bar.menus[0]->m_pCurrentItem, nullptr);
        bar.Key(Qt::Key_Down);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(0));
        bar.Key(Qt::Key_Down);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(2));
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_Down);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(0));
        bar.Key(Qt::Key_Up);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(3));
        bar.menus[0]->HideMenuBtn({QStringLiteral("打开")});
        bar.Key(Qt::Key_Home);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(2));
        bar.Key(Qt::Key_End);
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(3));
        QVERIFY(bar.Row(3)->m_bChooseFocus);
        QVERIFY(!bar.Row(2)->m_bChooseFocus);
    }

    void rightAndLeftGoIntoASubMenuAndBack()
    {
        Bar bar;
        QSignalSpy spy(bar.menus[0], &CCustomMenu::SignalItemClicked);
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_Right);
        QVERIFY(bar.subMenus[0]->isVisible());
        QCOMPARE(bar.subMenus[0]->m_pCurrentItem, bar.subMenus[0]->MenuButton(0));
        bar.Key(Qt::Key_Down);
        QCOMPARE(bar.subMenus[0]->m_pCurrentItem, bar.subMenus[0]->MenuButton(1));
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(2));
        bar.Key(Qt::Key_Left);
        QVERIFY(!bar.subMenus[0]->isVisible());
        QVERIFY(bar.menus[0]->isVisible());
        QCOMPARE(bar.menus[0]->m_pCurrentItem, bar.Row(2));
        bar.Key(Qt::Key_Return);
        QVERIFY(bar.subMenus[0]->isVisible());
        bar.Key(Qt::Key_Escape);
        QVERIFY(!bar.subMenus[0]->isVisible());
        bar.Key(Qt::Key_Right);
        bar.Key(Qt::Key_Return);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!bar.menus[0]->isVisible());
        QVERIFY(!bar.subMenus[0]->isVisible());
    }

    void escapeClosesTheMenuAndLeavesTheFocusOnItsButton()
    {
        Bar bar;
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_Escape);
        QVERIFY(!bar.menus[0]->isVisible());
        QCOMPARE(bar.helper->m_pCurrentMenu, nullptr);
        QCOMPARE(bar.helper->m_pKeepFocusBtn, nullptr);
        QCOMPARE(QApplication::focusWidget(), bar.buttons[0]);
        bar.Key(Qt::Key_Down);
        QVERIFY(bar.menus[0]->isVisible());
    }

    void rightAndLeftGoToTheMenusBeside()
    {
        Bar bar;
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_Right);
        QVERIFY(!bar.menus[0]->isVisible());
        QVERIFY(bar.menus[1]->isVisible());
        QCOMPARE(QApplication::focusWidget(), bar.buttons[1]);
        QCOMPARE(bar.menus[1]->m_pCurrentItem, bar.Row(0, 1));
        bar.Key(Qt::Key_Right);
        QVERIFY(bar.menus[0]->isVisible());
        bar.Key(Qt::Key_Left);
        QVERIFY(bar.menus[1]->isVisible());
    }

    void spaceTogglesAStateRowAndLeavesTheMenuOpen()
    {
        Bar bar;
        QSignalSpy spy(bar.Row(3), &CCustomMenuItem::SignalMenuItemClicked);
        bar.Key(Qt::Key_Down);
        bar.Key(Qt::Key_End);
        bar.Key(Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        QVERIFY(bar.menus[0]->isVisible());
    }

    void aMenuThatHasTheFocusItselfTakesTheKeys()
    {
        QWidget window;
        window.resize(300, 300);
        CCustomMenu menu(&window);
        menu.AddMenuItem(QStringLiteral("a"), {}, {}, {}, {});
        QSignalSpy spy(menu.MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        menu.setFocus();
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(spy.count(), 1);
        menu.show();
        menu.setFocus();
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
    }

    void keyMayDeleteTheMenu()
    {
        Bar bar;
        bar.Key(Qt::Key_Down);
        connect(bar.Row(0), &CCustomMenuItem::SignalMenuItemClicked, &bar, [&bar] { delete bar.menus[0]; });
        bar.Key(Qt::Key_Return);
        QCOMPARE(bar.helper->m_pCurrentMenu, nullptr);
    }

    void flatMenuTellsButtonsAndRowsFromTopToBottom()
    {
        CVelmarMenu menu(nullptr);
        menu.AddMenuItem(QStringLiteral("复制"), {}, QStringLiteral("Ctrl+C"));
        menu.AddDefaultButton(QStringLiteral("粘贴"));
        menu.AddMenuItem(QStringLiteral("删除"), {}, {});
        menu.show();
        QAccessibleInterface* accessible = Accessible(&menu);
        QCOMPARE(accessible->role(), QAccessible::PopupMenu);
        QCOMPARE(accessible->childCount(), 3);
        QCOMPARE(accessible->child(0)->object(), menu.MenuItem(0));
        QCOMPARE(accessible->child(1)->object(), menu.MenuButton(0));
        QCOMPARE(accessible->child(2)->object(), menu.MenuItem(1));
        QCOMPARE(AccessibleName(menu.MenuItem(0)), QStringLiteral("复制"));
        QCOMPARE(Accessible(menu.MenuItem(0))->text(QAccessible::Accelerator), QStringLiteral("Ctrl+C"));
        QCOMPARE(Accessible(menu.MenuItem(0))->parent()->object(), &menu);
        QCOMPARE(AccessibleName(menu.MenuButton(0)), QStringLiteral("粘贴"));
        menu.hide();
    }

    void keysOfAFlatMenuGoToItsEndsAndByPages()
    {
        QWidget window;
        CVelmarMenu menu(&window);
        constexpr int rows = 12;
        for (int row = 0; row < rows; ++row) {
            menu.AddMenuItem(QString::number(row), {}, {});
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        menu.show();
        menu.setFocus();
        const auto reached = [&menu](Qt::Key key) {
            QTest::keyClick(&menu, key);
            for (int row = 0; row < rows; ++row) {
                if (menu.m_pKeyRow == menu.MenuItem(row)) {
                    return row;
                }
            }
            return -1;
        };
        QCOMPARE(reached(Qt::Key_End), rows - 1);
        QCOMPARE(reached(Qt::Key_Home), 0);
        // A page is what a list shows of its rows, less one that stays in sight.
        QCOMPARE(reached(Qt::Key_PageDown), 4);
        QCOMPARE(reached(Qt::Key_PageDown), 8);
        QCOMPARE(reached(Qt::Key_PageDown), rows - 1);
        QCOMPARE(reached(Qt::Key_PageUp), 7);
        QCOMPARE(reached(Qt::Key_PageUp), 3);
        QCOMPARE(reached(Qt::Key_PageUp), 0);
        QCOMPARE(reached(Qt::Key_A), 0);
        menu.hide();
    }

    void pressOfAFlatRowIsOneClick()
    {
        CVelmarMenu menu(nullptr);
        menu.AddMenuItem(QStringLiteral("复制"), {}, {});
        menu.show();
        QSignalSpy clicked(menu.MenuItem(0), &CVelmarMenuItem::SignalMenuItemClicked);
        QSignalSpy focus(menu.MenuItem(0), &CVelmarMenuItem::SignalMenuBtnFocus);
        Act(menu.MenuItem(0), PressAction());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(focus.count(), 1);
        QCOMPARE(focus.at(0).at(0).toBool(), false);
        QVERIFY(!menu.isVisible());
        menu.MenuItem(0)->SetEnabled(false);
        QVERIFY(Actions(menu.MenuItem(0)).isEmpty());
        CVelmarMenuItem leading(nullptr, QStringLiteral("更多"), {}, {}, {}, true);
        QVERIFY(Actions(&leading).isEmpty());
        QVERIFY(Accessible(&leading)->state().hasPopup);
    }

    void keysMarkAndClickTheRowsOfAFlatMenu()
    {
        QWidget window;
        window.resize(400, 400);
        auto* menu = new CVelmarMenu(&window);
        menu->AddMenuItem(QStringLiteral("复制"), {}, {});
        menu->AddDefaultButton(QStringLiteral("粘贴"));
        window.show();
        menu->show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        menu->setFocus();
        QSignalSpy item(menu->MenuItem(0), &CVelmarMenuItem::SignalMenuItemClicked);
        QSignalSpy button(menu->MenuButton(0), &QPushButton::clicked);
        const QImage rest = menu->MenuButton(0)->grab().toImage();
        QTest::keyClick(menu, Qt::Key_Down);
        QVERIFY(menu->MenuItem(0)->m_bChooseFocus);
        QTest::keyClick(menu, Qt::Key_Down);
        QVERIFY(!menu->MenuItem(0)->m_bChooseFocus);
        QCOMPARE(menu->MenuButton(0)->grab().toImage().pixelColor(3, 3), QColor(0x00, 0x71, 0xbc));
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(button.count(), 1);
        QTest::keyClick(menu, Qt::Key_Up);
        QCOMPARE(menu->MenuButton(0)->grab().toImage(), rest);
        QTest::keyClick(menu, Qt::Key_Space);
        QCOMPARE(item.count(), 1);
        QVERIFY(!menu->isVisible());
    }

    void comboBoxTellsValueStateAndAction()
    {
        Stage stage(3);
        QAccessibleInterface* box = Accessible(stage.box);
        QCOMPARE(box->role(), QAccessible::ComboBox);
        QCOMPARE(box->text(QAccessible::Value), QStringLiteral("刀具 0"));
        QCOMPARE(box->text(QAccessible::Name), QStringLiteral("刀具 0"));
        QLabel label(QStringLiteral("刀具(&T)："));
        label.setBuddy(stage.box);
        label.setParent(&stage.window);
        QVERIFY(box->text(QAccessible::Name).startsWith(QStringLiteral("刀具(T)")));
        stage.box->setAccessibleName(QStringLiteral("当前刀具"));
        QCOMPARE(box->text(QAccessible::Name), QStringLiteral("当前刀具"));
        QVERIFY(box->state().collapsed);
        Act(stage.box, kShowMenu);
        QVERIFY(box->state().expanded);
        QVERIFY(stage.box->m_pMenu->isVisible());
        Act(stage.box, kShowMenu);
        QVERIFY(!stage.box->m_pMenu->isVisible());
        QCOMPARE(box->childCount(), 0);
    }

    void keysChooseInTheOpenList_data()
    {
        QTest::addColumn<int>("entries");
        QTest::newRow("plain list") << 4;
        QTest::newRow("scrolling list") << 12;
    }

    void keysChooseInTheOpenList()
    {
        QFETCH(int, entries);
        Stage stage(entries);
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        QSignalSpy spy(stage.box, &QComboBox::currentIndexChanged);
        stage.Key(Qt::Key_Space);
        QVERIFY(stage.box->m_pMenu->isVisible());
        stage.Key(Qt::Key_Down);
        stage.Key(Qt::Key_Down);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(stage.box->m_pMenu->m_pKeyRow, stage.box->m_pMenu->MenuButton(2));
        stage.Key(Qt::Key_Return);
        QCOMPARE(stage.box->currentIndex(), 2);
        QCOMPARE(spy.count(), 1);
        QVERIFY(!stage.box->m_pMenu->isVisible());

        stage.Key(Qt::Key_F4);
        stage.Key(Qt::Key_End);
        QPushButton* last = stage.box->m_pMenu->MenuButton(entries - 1);
        QVERIFY(!last->visibleRegion().isEmpty());
        stage.Key(Qt::Key_Escape);
        QVERIFY(!stage.box->m_pMenu->isVisible());
        QCOMPARE(stage.box->currentIndex(), 2);
        QCOMPARE(stage.box->m_pMenu->m_pKeyRow, nullptr);
        QCOMPARE(QApplication::focusWidget(), stage.box);
    }

    void closedBoxKeepsItsKeys()
    {
        Stage stage(4);
        stage.Key(Qt::Key_Down);
        QCOMPARE(stage.box->currentIndex(), 1);
        QVERIFY(!stage.box->m_pMenu->isVisible());
    }

    void rowOfTheListIsPressedAsByAClick()
    {
        Stage stage(4);
        stage.box->showPopup();
        Act(stage.box->m_pMenu->MenuButton(3), PressAction());
        // The toolkit shows the button pressed for a moment.
        QTRY_COMPARE(stage.box->currentIndex(), 3);
        QVERIFY(!stage.box->m_pMenu->isVisible());
    }
};

CUSTOMCONTROLS_TEST_MAIN(MenusAccessibilityTest)

#include "MenusAccessibilityTest.moc"

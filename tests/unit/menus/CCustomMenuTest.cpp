#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include "ui_CCustomMenu.h"
#include "ui_CCustomMenuItem.h"

#include <tests/support/ProcessorTime.h>
#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <QBoxLayout>
#include <QCursor>
#include <QFontMetrics>
#include <QPointer>
#include <QSignalSpy>

#include <climits>

namespace {

void Send(QWidget* widget, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void Add(CCustomMenu* menu, const QStringList& texts)
{
    for (const QString& text : texts) {
        menu->AddMenuItem(text, {}, {}, {}, {});
    }
}

} // namespace

class CCustomMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formAndFieldsHaveTheGivenValues();
    void languagePicksTheFont();
    void styleSetsPanelAndRows_data();
    void styleSetsPanelAndRows();
    void newRowsTakeTheStyle();
    void addingARowDoesWhatItIsToDo();
    void widestTextsOnlyGrow();
    void rowWithIdHasNoDisabledIcon();
    void subMenuRowOpensASibling();
    void separatorHasItsMeasures();
    void refreshSizeCountsRowsAndSeparators_data();
    void refreshSizeCountsRowsAndSeparators();
    void updateMenuSizeCountsByPropertyAndFlatSeparators_data();
    void updateMenuSizeCountsByPropertyAndFlatSeparators();
    void windowSizesWaitForTheSizeOperations();
    void updateItemSizeTakesTheWidestRow();
    void updateItemSizeNeverNarrows();
    void updateItemSizeWithoutRowsDoesNothing();
    void badSizesAreHeldInBounds();
    void textsAreSetByIndexAndId();
    void lookUpsGiveNullOutside();
    void indexesOutsideAreIgnored_data();
    void indexesOutsideAreIgnored();
    void removedRowIsGoneEverywhere();
    void removeAllLeavesSubMenus();
    void hideAndShowByTextCountOnce();
    void disabledRowIsPassedOverByHideAndCountedByShow();
    void separatorsHideAndShowOnce();
    void enablingReachesEveryRowOfThatId();
    void textAlignmentHasNoEffect();
    void focusCountsDirectSubMenusOnly();
    void showTellsBeforeTheMenuIsSeen();
    void clickHidesTheMenuAndTellsOnce();
    void clickInASubMenuTellsFromTheRoot();
    void stateRowLeavesTheMenuOpen();
    void choosingARowReleasesTheOther();
    void enterOpensTheSubMenuBesideTheRow();
    void enterOfAnotherRowClosesTheSubMenu();
    void enterOfASecondSubMenuRowClosesTheFirst();
    void disabledSubMenuRowOpensNothing();
    void disabledSubMenuRowLeavesAnotherSubMenuOpen();
    void hidingTheRowHidesItsSubMenu();
    void subMenuOfAnEndlessMenuStaysInBounds();
    void leaveKeepsTheSubMenuToTheRightOnly_data();
    void leaveKeepsTheSubMenuToTheRightOnly();
    void hidingTheMenuHidesItsSubMenu();
    void rowNamedOtherwiseIsLeftAlone();
    void filterConsumesNothing();
    void deletedFromItsOwnClick_data();
    void deletedFromItsOwnClick();
    void deletedFromAChooseFocus();
    void rowDeletedByTheHostIsForgotten();
    void chosenRowRemovedLeavesNoTrace();
    void separatorDeletedByTheHostIsForgotten();
    void subMenuDeletedWhileOpenIsForgotten();
    void menuDeletedWhileASubMenuIsOpen();
    void withoutParentTheSubMenuGoesWithTheMenu();
    void strangeTextsAreMeasured();
    void rowsAddedToAMenuOnTheScreenEndInPlace();
    void rowsAddedToAMenuOnTheScreenAreNotEntered();
    void rowAddedUnderTheCursorIsEntered();
    void rowHiddenBeforeItCameOnTheScreenStaysHidden();
    void entryThatGoesBeforeItsLayoutIsForgotten_data();
    void entryThatGoesBeforeItsLayoutIsForgotten();
    void rowWhoseSubMenuIsOpenTakesItAlong_data();
    void rowWhoseSubMenuIsOpenTakesItAlong();
    void newRowInheritsNoSubMenu();
    void rowsMayBeRemovedByWhoHearsAnotherHidden();
    void panelIsPaintedInItsStyle_data();
    void panelIsPaintedInItsStyle();
    void manyRowsCostWhatFewDo();

private:
    std::unique_ptr<QWidget> m_window;
};

void CCustomMenuTest::init()
{
    TestEnvironment::MoveCursorAway();
    m_window = std::make_unique<QWidget>();
    m_window->resize(500, 400);
}

void CCustomMenuTest::formAndFieldsHaveTheGivenValues()
{
    CCustomMenu menu(nullptr);
    QCOMPARE(menu.objectName(), QStringLiteral("CCustomMenu"));
    QCOMPARE(menu.size(), QSize(180, 30));
    QCOMPARE(menu.focusPolicy(), Qt::ClickFocus);
    QVERIFY(!menu.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QCOMPARE(menu.layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(menu.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(menu.layout()->spacing(), 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->spacing(), 0);
    QCOMPARE(menu.ui->m_widgetMenu->styleSheet(),
             QStringLiteral("QWidget#m_widgetMenu\n{\n\tbackground: rgb(255, 255, 255);\n\tborder:1px solid "
                            "rgb(213,213,213);\n\tborder-radius:2px;\n}"));
    QCOMPARE(menu.m_iButtonCount, 0);
    QCOMPARE(menu.m_iSplitCount, 0);
    QCOMPARE(menu.m_iWidth, 144);
    QCOMPARE(menu.m_iItemHeight, 24);
    QCOMPARE(menu.m_iMaxTextWidth, 0);
    QCOMPARE(menu.m_iMaxShortcutWidth, 0);
    QCOMPARE(menu.m_iSplitHeight, 13);
    QCOMPARE(menu.m_eMenuStyle, MenuStyleDark);
    QVERIFY(!menu.m_pCurrentItem && !menu.m_pOpenSubMenu && !menu.m_pParentMenu);
    QVERIFY(menu.m_listButtons.isEmpty() && menu.m_listSplitLines.isEmpty() && menu.m_hashSubMenus.isEmpty());
}

void CCustomMenuTest::languagePicksTheFont()
{
    QCOMPARE(CCustomMenu(nullptr).font(), FontCnMedium_14);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    const QFont font = CCustomMenu(nullptr).font();
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    QCOMPARE(font, FontCnMedium_13);
}

void CCustomMenuTest::styleSetsPanelAndRows_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("rowBack");
    QTest::newRow("flat") << 0 << "QWidget#m_widgetMenu{background-color:#F5F5F5;border:none;border-radius:2px;}"
                          << "#181818";
    QTest::newRow("dark")
        << 1 << "QWidget#m_widgetMenu{background-color:#181818;border:1px solid #2d2d2d;border-radius:4px;}"
        << "#181818";
    QTest::newRow("white")
        << 2 << "QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #a1a1a1;border-radius:4px;}"
        << "#FFFFFF";
}

void CCustomMenuTest::styleSetsPanelAndRows()
{
    QFETCH(int, style);
    QFETCH(QString, sheet);
    QFETCH(QString, rowBack);
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
    const QString subSheet = subMenu->ui->m_widgetMenu->styleSheet();
    menu.SetMenuStyle(static_cast<MenuStyle>(style));
    QCOMPARE(int(menu.m_eMenuStyle), style);
    QCOMPARE(menu.ui->m_widgetMenu->styleSheet(), sheet);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(menu.MenuButton(i)->m_strBackColor, rowBack);
    }
    QCOMPARE(subMenu->m_eMenuStyle, MenuStyleDark);
    QCOMPARE(subMenu->ui->m_widgetMenu->styleSheet(), subSheet);

    for (const int none : {3, -1, INT_MAX}) {
        menu.SetMenuStyle(static_cast<MenuStyle>(none));
        QCOMPARE(int(menu.m_eMenuStyle), none);
        QCOMPARE(menu.ui->m_widgetMenu->styleSheet(), sheet);
        QCOMPARE(menu.MenuButton(0)->m_strBackColor, rowBack);
    }
}

void CCustomMenuTest::newRowsTakeTheStyle()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a"});
    QCOMPARE(menu.MenuButton(0)->m_strBackColor, QStringLiteral("#181818"));
    menu.SetMenuStyle(MenuStyleWhite);
    Add(&menu, {"b"});
    QCOMPARE(menu.MenuButton(1)->m_strBackColor, QStringLiteral("#FFFFFF"));
}

void CCustomMenuTest::addingARowDoesWhatItIsToDo()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem("Open", "Ctrl+O", "i", "h", "d");
    CCustomMenuItem* row = menu.MenuButton(0);
    QCOMPARE(row->objectName(), QStringLiteral("Button"));
    QCOMPARE(row->text(), QStringLiteral("Open"));
    QCOMPARE(row->ui->m_labelShortCut->text(), QStringLiteral("Ctrl+O"));
    QCOMPARE(row->m_strIcon, QStringLiteral("i"));
    QCOMPARE(row->m_strIconHover, QStringLiteral("h"));
    QCOMPARE(row->m_strIconDisabled, QStringLiteral("d"));
    QVERIFY(!row->m_bHasSubMenu);
    QCOMPARE(row->font(), menu.font());
    QVERIFY(menu.isAncestorOf(row));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->indexOf(row), 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 1);
    QCOMPARE(menu.m_iMaxTextWidth, QFontMetrics(row->font()).horizontalAdvance("Open"));
    QCOMPARE(menu.m_iMaxShortcutWidth, QFontMetrics(row->font()).horizontalAdvance("Ctrl+O"));
    QCOMPARE(menu.m_iButtonCount, 1);
    QCOMPARE(menu.MenuButtonCount(), 1);
    QCOMPARE(menu.size(), QSize(144, 36));
    QCOMPARE(menu.minimumSize(), menu.maximumSize());
}

void CCustomMenuTest::widestTextsOnlyGrow()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem("wide wide wide", "Ctrl+Shift+W", {}, {}, {});
    const int text = menu.m_iMaxTextWidth;
    const int shortcut = menu.m_iMaxShortcutWidth;
    menu.AddMenuItem("w", "W", {}, {}, {});
    QCOMPARE(menu.m_iMaxTextWidth, text);
    QCOMPARE(menu.m_iMaxShortcutWidth, shortcut);
    menu.RemoveMenuButton(0);
    QCOMPARE(menu.m_iMaxTextWidth, text);
    menu.RemoveAllMenuButtons();
    QCOMPARE(menu.m_iMaxTextWidth, text);
    QCOMPARE(menu.m_iMaxShortcutWidth, shortcut);
}

void CCustomMenuTest::rowWithIdHasNoDisabledIcon()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem(-7, "Open", "O", "i", "h");
    QCOMPARE(menu.MenuButton(0)->GetButtonId(), -7);
    QCOMPARE(menu.MenuButton(0)->m_strIconDisabled, QString());
    QCOMPARE(menu.MenuButton(0)->m_strIconHover, QStringLiteral("h"));
    QCOMPARE(menu.MenuButtonById(-7), menu.MenuButton(0));
}

void CCustomMenuTest::subMenuRowOpensASibling()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("more", "s", "i", "h", "d");
    CCustomMenuItem* row = menu.MenuButton(0);
    QCOMPARE(row->objectName(), QStringLiteral("SubButton"));
    QVERIFY(row->m_bHasSubMenu);
    QCOMPARE(row->m_strIconDisabled, QStringLiteral("d"));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
    QCOMPARE(menu.size(), QSize(144, 36));
    QCOMPARE(subMenu->parent(), m_window.get());
    QVERIFY(subMenu->isHidden());
    QCOMPARE(subMenu->objectName(), QStringLiteral("SubMenu"));
    QCOMPARE(subMenu->m_pParentMenu, &menu);
    QCOMPARE(menu.GetCustomMenu(row), subMenu);
    QCOMPARE(menu.GetCustomMenus(), QList<CCustomMenu*>{subMenu});
    QSignalSpy spy(&menu, &CCustomMenu::SignalItemClicked);
    m_window->show();
    menu.show();
    QTest::mouseClick(row, Qt::LeftButton);
    QVERIFY(menu.isVisible());
    QCOMPARE(spy.count(), 0);
}

void CCustomMenuTest::separatorHasItsMeasures()
{
    CCustomMenu menu(nullptr);
    menu.SetWindowWidth(200);
    QWidget* split = menu.AddSplitLine();
    QCOMPARE(split->minimumSize(), QSize(200, 13));
    QCOMPARE(split->maximumSize(), QSize(200, 13));
    QCOMPARE(split->styleSheet(), QStringLiteral("background:transparent;"));
    const auto* line = split->findChild<QWidget*>();
    QVERIFY(line);
    QCOMPARE(line->geometry(), QRect(16, 6, 168, 1));
    QCOMPARE(line->styleSheet(), QStringLiteral("background:#535557;"));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->indexOf(split), 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 0);
    QCOMPARE(menu.m_iSplitCount, 1);
    QCOMPARE(menu.m_listSplitLines, QList<QWidget*>{split});
    QCOMPARE(menu.size(), QSize(200, 25));
    Add(&menu, {"a"});
    menu.SetWindowWidth(300);
    menu.UpdateItemSize();
    QCOMPARE(split->width(), 200);
}

void CCustomMenuTest::refreshSizeCountsRowsAndSeparators_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("splits");
    QTest::addColumn<int>("height");
    QTest::newRow("none") << 0 << 0 << 12;
    QTest::newRow("one row") << 1 << 0 << 36;
    QTest::newRow("three rows and a separator") << 3 << 1 << 97;
    QTest::newRow("separators alone") << 0 << 2 << 38;
}

void CCustomMenuTest::refreshSizeCountsRowsAndSeparators()
{
    QFETCH(int, rows);
    QFETCH(int, splits);
    QFETCH(int, height);
    CCustomMenu menu(nullptr);
    for (int i = 0; i < rows; ++i) {
        Add(&menu, {"a"});
    }
    for (int i = 0; i < splits; ++i) {
        menu.AddSplitLine();
    }
    menu.setFixedSize(1, 1);
    menu.RefreshSize();
    QCOMPARE(menu.minimumSize(), QSize(144, height));
    QCOMPARE(menu.maximumSize(), QSize(144, height));
}

void CCustomMenuTest::updateMenuSizeCountsByPropertyAndFlatSeparators_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("splits");
    QTest::addColumn<int>("height");
    QTest::newRow("no property") << 0 << 0 << 12;
    QTest::newRow("separator of nine") << 0 << 1 << 21;
    QTest::newRow("two rows, two separators") << 2 << 2 << 78;
    QTest::newRow("all rows") << 3 << 1 << 93;
}

void CCustomMenuTest::updateMenuSizeCountsByPropertyAndFlatSeparators()
{
    QFETCH(int, shown);
    QFETCH(int, splits);
    QFETCH(int, height);
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b", "c"});
    for (int i = 0; i < splits; ++i) {
        menu.AddSplitLine();
    }
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!menu.MenuButton(i)->property("show").isValid());
        if (i < shown) {
            menu.MenuButton(i)->setProperty("show", true);
        }
    }
    menu.UpdateMenuSize();
    QCOMPARE(menu.size(), QSize(144, height));
    QCOMPARE(menu.minimumSize(), menu.maximumSize());
}

void CCustomMenuTest::windowSizesWaitForTheSizeOperations()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b"});
    menu.UpdateItemSize();
    menu.RefreshSize();
    const QSize before = menu.size();
    const QSize rowBefore = menu.MenuButton(0)->size();
    menu.SetWindowWidth(300);
    menu.SetWindowHeight(40);
    QCOMPARE(menu.size(), before);
    menu.RefreshSize();
    QCOMPARE(menu.size(), QSize(300, 92));
    QCOMPARE(menu.MenuButton(0)->size(), rowBefore);
    menu.UpdateItemSize();
    QCOMPARE(menu.MenuButton(0)->size(), QSize(300, 40));
    QCOMPARE(menu.width(), 312);
}

void CCustomMenuTest::updateItemSizeTakesTheWidestRow()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem("a", "b", {}, {}, {});
    menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
    menu.m_iMaxTextWidth = 200;
    menu.m_iMaxShortcutWidth = 50;
    menu.UpdateItemSize();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(menu.MenuButton(i)->size(), QSize(319, 24));
    }
    QCOMPARE(menu.m_iWidth, 331);
    QCOMPARE(menu.width(), 331);
    delete menu.GetCustomMenus().value(0);
}

void CCustomMenuTest::updateItemSizeNeverNarrows()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a"});
    menu.UpdateItemSize();
    QCOMPARE(menu.m_iWidth, 156); // the row is as wide as the menu was, and the margins come on top
    menu.UpdateItemSize();
    QCOMPARE(menu.m_iWidth, 168);
    menu.SetWindowWidth(500);
    menu.UpdateItemSize();
    QCOMPARE(menu.width(), 512);
}

void CCustomMenuTest::updateItemSizeWithoutRowsDoesNothing()
{
    CCustomMenu menu(nullptr);
    menu.SetWindowWidth(300);
    menu.UpdateItemSize();
    QCOMPARE(menu.size(), QSize(180, 30));
    QCOMPARE(menu.m_iWidth, 300);
}

void CCustomMenuTest::badSizesAreHeldInBounds()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b"});
    for (const int size : {INT_MIN, -1, INT_MAX}) {
        menu.SetWindowWidth(size);
        menu.SetWindowHeight(size);
        menu.RefreshSize();
        menu.UpdateMenuSize();
        menu.UpdateItemSize();
        delete menu.AddSplitLine();
        QVERIFY(menu.width() >= 0 && menu.width() <= QWIDGETSIZE_MAX);
    }
    menu.SetWindowWidth(-1);
    menu.SetWindowHeight(-1);
    menu.RefreshSize();
    QCOMPARE(menu.size(), QSize(0, 10));
}

void CCustomMenuTest::textsAreSetByIndexAndId()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem(5, "a", {}, {}, {});
    menu.AddMenuItem(5, "b", {}, {}, {});
    menu.SetMenuText(1, "second");
    QCOMPARE(menu.MenuButton(1)->text(), QStringLiteral("second"));
    menu.SetMenuTextWithId(5, "first");
    QCOMPARE(menu.MenuButton(0)->text(), QStringLiteral("first"));
    QCOMPARE(menu.MenuButton(1)->text(), QStringLiteral("second"));
    const int widest = menu.m_iMaxTextWidth;
    menu.SetMenuTextWithId(6, "nobody");
    menu.SetMenuText(0, QString(100, QLatin1Char('w')));
    QCOMPARE(menu.m_iMaxTextWidth, widest);
}

void CCustomMenuTest::lookUpsGiveNullOutside()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem(5, "a", {}, {}, {});
    QCOMPARE(menu.MenuButtonById(6), nullptr);
    QCOMPARE(menu.GetButtonIndex(menu.MenuButton(0)), 0);
    QCOMPARE(menu.GetButtonIndex(nullptr), -1);
    QCOMPARE(menu.GetCustomMenu(nullptr), nullptr);
    QCOMPARE(menu.GetCustomMenu(menu.MenuButton(0)), nullptr);
    const CCustomMenuItem stranger(nullptr, {}, {}, {}, {}, {}, false);
    QCOMPARE(menu.GetButtonIndex(const_cast<CCustomMenuItem*>(&stranger)), -1);
}

void CCustomMenuTest::indexesOutsideAreIgnored_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, INT_MIN, 2, 3, INT_MAX}) {
        QTest::addRow("%d", index) << index;
    }
}

void CCustomMenuTest::indexesOutsideAreIgnored()
{
    QFETCH(int, index);
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b"});
    menu.AddSplitLine();
    menu.AddSplitLine();
    const QSize size = menu.size();
    QCOMPARE(menu.MenuButton(index), nullptr);
    menu.SetMenuText(index, "x");
    menu.RemoveMenuButton(index);
    menu.HideSplitLine(index);
    menu.ShowSplitLine(index);
    QCOMPARE(menu.MenuButtonCount(), 2);
    QCOMPARE(menu.m_iButtonCount, 2);
    QCOMPARE(menu.m_iSplitCount, 2);
    QCOMPARE(menu.size(), size);
    QCOMPARE(menu.MenuButton(1)->text(), QStringLiteral("b"));
}

void CCustomMenuTest::removedRowIsGoneEverywhere()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
    QPointer<CCustomMenuItem> row = menu.MenuButton(1);
    menu.RemoveMenuButton(1);
    QVERIFY(row.isNull());
    QCOMPARE(menu.MenuButtonCount(), 2);
    QCOMPARE(menu.m_iButtonCount, 2);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->count(), 2);
    QCOMPARE(menu.height(), 60);
    menu.RemoveMenuButton(1);
    QCOMPARE(menu.GetCustomMenus(), QList<CCustomMenu*>{subMenu});
    menu.RemoveMenuButton(0);
    QCOMPARE(menu.height(), 12);
}

void CCustomMenuTest::removeAllLeavesSubMenus()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b"});
    menu.AddSplitLine();
    QPointer<CCustomMenu> subMenu = menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
    menu.HideMenuBtn({"a"});
    menu.RemoveAllMenuButtons();
    QCOMPARE(menu.MenuButtonCount(), 0);
    QVERIFY(menu.m_listSplitLines.isEmpty());
    QCOMPARE(menu.m_iButtonCount, 0);
    QCOMPARE(menu.m_iSplitCount, 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->count(), 0);
    QCOMPARE(menu.size(), QSize(144, 12));
    QVERIFY(subMenu);
    QCOMPARE(menu.GetCustomMenus(), QList<CCustomMenu*>{subMenu});
    menu.RemoveAllMenuButtons();
    Add(&menu, {"d"});
    QCOMPARE(menu.height(), 36);
}

void CCustomMenuTest::hideAndShowByTextCountOnce()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"Open", "open", "Close", "Open"});
    menu.HideMenuBtn({"Open", "nobody"});
    QCOMPARE(menu.m_iButtonCount, 2);
    QCOMPARE(menu.height(), 60);
    QVERIFY(menu.MenuButton(0)->isHidden() && !menu.MenuButton(0)->isEnabled());
    QVERIFY(!menu.MenuButton(1)->isHidden() && menu.MenuButton(1)->isEnabled());
    QVERIFY(menu.MenuButton(3)->isHidden());
    QCOMPARE(menu.MenuButtonCount(), 4);
    menu.HideMenuBtn({"Open"});
    QCOMPARE(menu.m_iButtonCount, 2);
    menu.ShowMenuBtn({"Open"});
    QCOMPARE(menu.m_iButtonCount, 4);
    QCOMPARE(menu.height(), 108);
    QVERIFY(!menu.MenuButton(0)->isHidden() && menu.MenuButton(0)->isEnabled());
    menu.ShowMenuBtn({"Open"});
    QCOMPARE(menu.m_iButtonCount, 4);
    menu.HideMenuBtn({});
    QCOMPARE(menu.m_iButtonCount, 4);
}

void CCustomMenuTest::disabledRowIsPassedOverByHideAndCountedByShow()
{
    CCustomMenu menu(nullptr);
    menu.AddMenuItem(1, "a", {}, {}, {});
    menu.SetEnabled(1, false);
    menu.HideMenuBtn({"a"});
    QCOMPARE(menu.m_iButtonCount, 1);
    QVERIFY(!menu.MenuButton(0)->isHidden());
    menu.ShowMenuBtn({"a"});
    QCOMPARE(menu.m_iButtonCount, 2);
    QCOMPARE(menu.height(), 60);
}

void CCustomMenuTest::separatorsHideAndShowOnce()
{
    CCustomMenu menu(nullptr);
    QWidget* first = menu.AddSplitLine();
    QWidget* second = menu.AddSplitLine();
    menu.HideSplitLine(0);
    QVERIFY(first->isHidden() && !first->isEnabled());
    QVERIFY(!second->isHidden());
    QCOMPARE(menu.m_iSplitCount, 1);
    QCOMPARE(menu.height(), 25);
    menu.HideSplitLine(0);
    QCOMPARE(menu.m_iSplitCount, 1);
    menu.ShowSplitLine(1);
    QCOMPARE(menu.m_iSplitCount, 1);
    menu.ShowSplitLine(0);
    QVERIFY(!first->isHidden() && first->isEnabled());
    QCOMPARE(menu.height(), 38);
}

void CCustomMenuTest::enablingReachesEveryRowOfThatId()
{
    CCustomMenu menu(nullptr);
    for (const int id : {1, 2, 1}) {
        menu.AddMenuItem(id, "a", {}, {}, {});
    }
    menu.SetEnabled(1, false);
    QVERIFY(!menu.MenuButton(0)->isEnabled() && menu.MenuButton(1)->isEnabled() && !menu.MenuButton(2)->isEnabled());
    menu.SetEnabled(1, true);
    menu.SetEnabled(99, false);
    QVERIFY(menu.MenuButton(0)->isEnabled() && menu.MenuButton(1)->isEnabled() && menu.MenuButton(2)->isEnabled());
}

void CCustomMenuTest::textAlignmentHasNoEffect()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a"});
    const auto alignment = menu.MenuButton(0)->ui->m_labelText->alignment();
    menu.SetTextAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(menu.MenuButton(0)->ui->m_labelText->alignment(), alignment);
}

void CCustomMenuTest::focusCountsDirectSubMenusOnly()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    CCustomMenu* third = subMenu->AddButtonWithSubMenu("b", {}, {}, {}, {});
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    menu.show();
    subMenu->show();
    third->show();
    QVERIFY(!menu.HasFocus());
    menu.setFocus();
    QVERIFY(menu.HasFocus());
    QVERIFY(!subMenu->HasFocus());
    subMenu->setFocus();
    QVERIFY(menu.HasFocus());
    third->setFocus();
    QVERIFY(!menu.HasFocus());
    QVERIFY(subMenu->HasFocus());
}

void CCustomMenuTest::showTellsBeforeTheMenuIsSeen()
{
    CCustomMenu menu(m_window.get());
    QSignalSpy spy(&menu, &CCustomMenu::SignalShow);
    m_window->show();
    menu.hide();
    const int before = int(spy.count());
    menu.show();
    QCOMPARE(spy.count(), before + 1);
}

void CCustomMenuTest::clickHidesTheMenuAndTellsOnce()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    m_window->show();
    QSignalSpy spy(&menu, &CCustomMenu::SignalItemClicked);
    bool visibleThen = true;
    connect(&menu, &CCustomMenu::SignalItemClicked, this, [&] { visibleThen = menu.isVisible(); });
    QTest::mouseClick(menu.MenuButton(0), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!visibleThen);
}

void CCustomMenuTest::clickInASubMenuTellsFromTheRoot()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    CCustomMenu* third = subMenu->AddButtonWithSubMenu("b", {}, {}, {}, {});
    Add(third, {"c"});
    m_window->show();
    menu.show();
    Send(menu.MenuButton(0), QEvent::Enter);
    Send(subMenu->MenuButton(0), QEvent::Enter);
    QVERIFY(menu.isVisible() && subMenu->isVisible() && third->isVisible());
    QSignalSpy root(&menu, &CCustomMenu::SignalItemClicked);
    QSignalSpy second(subMenu, &CCustomMenu::SignalItemClicked);
    QSignalSpy own(third, &CCustomMenu::SignalItemClicked);
    QTest::mouseClick(third->MenuButton(0), Qt::LeftButton);
    QVERIFY(!menu.isVisible() && !subMenu->isVisible() && !third->isVisible());
    QCOMPARE(root.count(), 1);
    QCOMPARE(second.count(), 0);
    QCOMPARE(own.count(), 0);
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
}

void CCustomMenuTest::stateRowLeavesTheMenuOpen()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    menu.MenuButton(0)->SetBtnState(true, true);
    m_window->show();
    QSignalSpy menuSpy(&menu, &CCustomMenu::SignalItemClicked);
    QSignalSpy rowSpy(menu.MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked);
    QTest::mouseClick(menu.MenuButton(0), Qt::LeftButton);
    QCOMPARE(rowSpy.count(), 1);
    QCOMPARE(menuSpy.count(), 0);
    QVERIFY(menu.isVisible());
}

void CCustomMenuTest::choosingARowReleasesTheOther()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b"});
    CCustomMenuItem* a = menu.MenuButton(0);
    CCustomMenuItem* b = menu.MenuButton(1);
    a->SetChooseFocus(true);
    QCOMPARE(menu.m_pCurrentItem, a);
    a->SetChooseFocus(true);
    QCOMPARE(menu.m_pCurrentItem, a);
    QVERIFY(a->m_bChooseFocus);
    b->SetChooseFocus(true);
    QCOMPARE(menu.m_pCurrentItem, b);
    QVERIFY(!a->m_bChooseFocus);
    a->SetChooseFocus(false);
    QCOMPARE(menu.m_pCurrentItem, b);
    b->SetChooseFocus(false);
    QCOMPARE(menu.m_pCurrentItem, nullptr);
}

void CCustomMenuTest::enterOpensTheSubMenuBesideTheRow()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    Add(subMenu, {"c"});
    menu.UpdateItemSize();
    menu.RefreshSize();
    menu.move(30, 40);
    QWidget above(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    CCustomMenuItem* row = menu.MenuButton(1);
    Send(row, QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    QCOMPARE(row->y(), 30);
    QCOMPARE(subMenu->pos(), QPoint(30 + 156 - 1, 40 - 6 + 30));
    QCOMPARE(menu.m_pOpenSubMenu, subMenu);
    QCOMPARE(menu.m_pCurrentItem, row);
    QVERIFY(row->m_bChooseFocus);
    QCOMPARE(m_window->children().constLast(), subMenu);
    QCOMPARE(subMenu->MenuButton(0)->mapTo(m_window.get(), QPoint()).y(), row->mapTo(m_window.get(), QPoint()).y());

    // Entered anew, it goes where the menu is now and is not shown a second time.
    QSignalSpy shown(subMenu, &CCustomMenu::SignalShow);
    menu.move(0, 0);
    Send(row, QEvent::Enter);
    QCOMPARE(shown.count(), 0);
    QCOMPARE(subMenu->pos(), QPoint(155, 24));
}

void CCustomMenuTest::enterOfAnotherRowClosesTheSubMenu()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(1), QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    Send(menu.MenuButton(0), QEvent::Enter);
    QVERIFY(!subMenu->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
    QCOMPARE(menu.m_pCurrentItem, nullptr);
    QVERIFY(!menu.MenuButton(1)->m_bChooseFocus);
}

void CCustomMenuTest::enterOfASecondSubMenuRowClosesTheFirst()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* first = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    CCustomMenu* second = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(0), QEvent::Enter);
    Send(menu.MenuButton(1), QEvent::Enter);
    QVERIFY(!first->isVisible());
    QVERIFY(second->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, second);
    QCOMPARE(menu.m_pCurrentItem, menu.MenuButton(1));
    QVERIFY(!menu.MenuButton(0)->m_bChooseFocus);
}

void CCustomMenuTest::disabledSubMenuRowOpensNothing()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    menu.MenuButton(0)->SetEnabled(false);
    m_window->show();
    Send(menu.MenuButton(0), QEvent::Enter);
    QVERIFY(!subMenu->isVisible());
    QVERIFY(!menu.MenuButton(0)->m_bChooseFocus);
}

void CCustomMenuTest::disabledSubMenuRowLeavesAnotherSubMenuOpen()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* first = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    CCustomMenu* second = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    menu.MenuButton(1)->SetEnabled(false);
    m_window->show();
    Send(menu.MenuButton(0), QEvent::Enter);
    Send(menu.MenuButton(1), QEvent::Enter);
    QVERIFY(first->isVisible() && !second->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, first);
    QCOMPARE(menu.m_pCurrentItem, nullptr);
    QVERIFY(!menu.MenuButton(0)->m_bChooseFocus);
}

void CCustomMenuTest::hidingTheRowHidesItsSubMenu()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(1), QEvent::Enter);
    menu.HideMenuBtn({"a"});
    QVERIFY(subMenu->isVisible());
    menu.HideMenuBtn({"b"});
    QVERIFY(!subMenu->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
    QCOMPARE(menu.m_pCurrentItem, nullptr);
    QCOMPARE(menu.height(), 12);
}

void CCustomMenuTest::subMenuOfAnEndlessMenuStaysInBounds()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    menu.move(10, 0);
    m_window->show();
    for (const int width : {INT_MIN, -1, INT_MAX}) {
        menu.SetWindowWidth(width);
        Send(menu.MenuButton(0), QEvent::Enter);
        QVERIFY(subMenu->isVisible());
        QCOMPARE(subMenu->x(), width < 0 ? 9 : 9 + QWIDGETSIZE_MAX);
        Send(menu.MenuButton(0), QEvent::Leave);
    }
}

void CCustomMenuTest::leaveKeepsTheSubMenuToTheRightOnly_data()
{
    QTest::addColumn<QPoint>("fromRightEdge"); // from the row's upper right corner
    QTest::addColumn<bool>("open");
    QTest::newRow("right") << QPoint(5, 10) << true;
    QTest::newRow("far right") << QPoint(100, 10) << true;
    QTest::newRow("last ten pixels") << QPoint(-10, 10) << true;
    QTest::newRow("eleven") << QPoint(-11, 10) << false;
    QTest::newRow("right, top edge") << QPoint(5, 0) << true;
    QTest::newRow("right, above") << QPoint(5, -1) << false;
    QTest::newRow("right, bottom edge") << QPoint(5, 23) << true;
    QTest::newRow("right, below") << QPoint(5, 25) << false;
    QTest::newRow("left") << QPoint(-200, 10) << false;
}

void CCustomMenuTest::leaveKeepsTheSubMenuToTheRightOnly()
{
    QFETCH(QPoint, fromRightEdge);
    QFETCH(bool, open);
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    menu.UpdateItemSize();
    menu.RefreshSize();
    menu.move(220, 100);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    CCustomMenuItem* row = menu.MenuButton(0);
    Send(row, QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    QCursor::setPos(row->mapToGlobal(QPoint(row->width(), 0) + fromRightEdge));
    Send(row, QEvent::Leave);
    QCOMPARE(subMenu->isVisible(), open);
    QCOMPARE(row->m_bChooseFocus, open);
    QCOMPARE(menu.m_pOpenSubMenu, open ? subMenu : nullptr);
}

void CCustomMenuTest::hidingTheMenuHidesItsSubMenu()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(0), QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    menu.hide();
    QVERIFY(!subMenu->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
    QVERIFY(!menu.MenuButton(0)->m_bChooseFocus);
}

void CCustomMenuTest::rowNamedOtherwiseIsLeftAlone()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    m_window->show();
    menu.MenuButton(0)->setObjectName(QStringLiteral("other"));
    Send(menu.MenuButton(0), QEvent::Enter);
    QVERIFY(!subMenu->isVisible());
}

void CCustomMenuTest::filterConsumesNothing()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    for (QWidget* watched : {static_cast<QWidget*>(menu.MenuButton(0)), static_cast<QWidget*>(menu.MenuButton(1)),
                             static_cast<QWidget*>(subMenu)}) {
        for (const QEvent::Type type :
             {QEvent::Enter, QEvent::Leave, QEvent::Hide, QEvent::MouseButtonPress, QEvent::KeyPress}) {
            QEvent event(type);
            QVERIFY(!menu.eventFilter(watched, &event));
        }
    }
}

void CCustomMenuTest::deletedFromItsOwnClick_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("fromMenuSignal");
    for (const char* what : {"row", "menu", "subMenu", "window", "all rows"}) {
        QTest::addRow("%s, row's signal", what) << what << false;
        QTest::addRow("%s, menu's signal", what) << what << true;
    }
}

void CCustomMenuTest::deletedFromItsOwnClick()
{
    QFETCH(QString, what);
    QFETCH(bool, fromMenuSignal);
    m_window->show();
    auto* menu = new CCustomMenu(m_window.get());
    CCustomMenu* subMenu = menu->AddButtonWithSubMenu("a", {}, {}, {}, {});
    Add(subMenu, {"c", "d"});
    menu->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    Send(menu->MenuButton(0), QEvent::Enter);
    QPointer<CCustomMenuItem> row = subMenu->MenuButton(0);
    const auto destroy = [&] {
        if (what == QLatin1String("row")) {
            subMenu->RemoveMenuButton(0);
        } else if (what == QLatin1String("menu")) {
            delete menu;
            delete subMenu;
        } else if (what == QLatin1String("subMenu")) {
            delete subMenu;
        } else if (what == QLatin1String("all rows")) {
            subMenu->RemoveAllMenuButtons();
        } else {
            m_window.reset();
        }
    };
    if (fromMenuSignal) {
        connect(menu, &CCustomMenu::SignalItemClicked, menu, destroy);
    } else {
        connect(row, &CCustomMenuItem::SignalMenuItemClicked, menu, destroy);
    }
    const QPoint point = row->mapTo(m_window.get(), row->rect().center());
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, point);
    QVERIFY(row.isNull());
}

void CCustomMenuTest::deletedFromAChooseFocus()
{
    m_window->show();
    auto* menu = new CCustomMenu(m_window.get());
    menu->AddButtonWithSubMenu("a", {}, {}, {}, {});
    const QPointer<CCustomMenu> watched(menu);
    connect(menu->MenuButton(0), &CCustomMenuItem::SignalFocusChanged, this, [menu] { delete menu; });
    menu->show();
    Send(menu->MenuButton(0), QEvent::Enter);
    QVERIFY(watched.isNull());
}

void CCustomMenuTest::rowDeletedByTheHostIsForgotten()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b"});
    m_window->show();
    menu.MenuButton(0)->SetChooseFocus(true);
    delete menu.MenuButton(0);
    QCOMPARE(menu.MenuButtonCount(), 1);
    QCOMPARE(menu.MenuButton(0)->text(), QStringLiteral("b"));
    QTRY_COMPARE(menu.height(), 36);
    Send(menu.MenuButton(0), QEvent::Enter);
    QCOMPARE(menu.m_pCurrentItem, nullptr);
}

void CCustomMenuTest::chosenRowRemovedLeavesNoTrace()
{
    CCustomMenu menu(nullptr);
    Add(&menu, {"a", "b"});
    menu.MenuButton(0)->SetChooseFocus(true);
    menu.RemoveMenuButton(0);
    Send(menu.MenuButton(0), QEvent::Enter);
    menu.MenuButton(0)->SetChooseFocus(true);
    QCOMPARE(menu.m_pCurrentItem, menu.MenuButton(0));
}

void CCustomMenuTest::separatorDeletedByTheHostIsForgotten()
{
    CCustomMenu menu(nullptr);
    QWidget* first = menu.AddSplitLine();
    menu.AddSplitLine();
    menu.HideSplitLine(1);
    delete first;
    QCOMPARE(menu.m_listSplitLines.size(), 1);
    QCOMPARE(menu.m_iSplitCount, 0);
    QTRY_COMPARE(menu.height(), 12);
    menu.ShowSplitLine(0);
    QCOMPARE(menu.height(), 25);
}

void CCustomMenuTest::subMenuDeletedWhileOpenIsForgotten()
{
    CCustomMenu menu(m_window.get());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(0), QEvent::Enter);
    delete subMenu;
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
    QVERIFY(menu.GetCustomMenus().isEmpty());
    QVERIFY(!menu.HasFocus());
    Send(menu.MenuButton(0), QEvent::Leave);
    Send(menu.MenuButton(0), QEvent::Enter);
    menu.hide();
}

void CCustomMenuTest::menuDeletedWhileASubMenuIsOpen()
{
    auto* menu = new CCustomMenu(m_window.get());
    CCustomMenu* subMenu = menu->AddButtonWithSubMenu("a", {}, {}, {}, {});
    Add(subMenu, {"b"});
    m_window->show();
    menu->show();
    Send(menu->MenuButton(0), QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    delete menu;
    QVERIFY(!subMenu->isVisible()); // nobody could close it any more
    subMenu->show();
    QSignalSpy spy(subMenu, &CCustomMenu::SignalItemClicked);
    QTest::mouseClick(subMenu->MenuButton(0), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
}

void CCustomMenuTest::withoutParentTheSubMenuGoesWithTheMenu()
{
    auto* menu = new CCustomMenu(nullptr);
    const QPointer<CCustomMenu> subMenu = menu->AddButtonWithSubMenu("a", {}, {}, {}, {});
    QVERIFY(subMenu && !subMenu->parent());
    delete menu;
    QVERIFY(subMenu.isNull());
}

void CCustomMenuTest::strangeTextsAreMeasured()
{
    CCustomMenu menu(nullptr);
    const QStringList texts = {QStringLiteral("a\nb"), QString(10000, QLatin1Char('w')), QString(),
                               QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (abc)")};
    int widest = 0;
    for (const QString& text : texts) {
        menu.AddMenuItem(text, text, {}, {}, {});
        widest = qMax(widest, QFontMetrics(menu.font()).horizontalAdvance(text));
    }
    QCOMPARE(menu.m_iMaxTextWidth, widest);
    menu.UpdateItemSize();
    menu.RefreshSize();
    QCOMPARE(menu.size(), QSize(qMax(144, 2 * widest + 69) + 12, 108));
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(menu.MenuButton(i)->text(), texts.at(i));
        QCOMPARE(menu.MenuButton(i)->height(), 24);
    }
}

void CCustomMenuTest::rowsAddedToAMenuOnTheScreenEndInPlace()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    menu.AddSplitLine();
    Add(&menu, {"b", "c"});
    QCOMPARE(menu.size(), QSize(144, 97));
    QTRY_VERIFY(menu.MenuButton(2)->isVisible());
    QCOMPARE(menu.MenuButton(0)->geometry(), QRect(6, 6, 132, 24));
    QCOMPARE(menu.m_listSplitLines.at(0)->geometry(), QRect(6, 30, 144, 13));
    QCOMPARE(menu.MenuButton(1)->geometry(), QRect(6, 43, 132, 24));
    QCOMPARE(menu.MenuButton(2)->geometry(), QRect(6, 67, 132, 24));
    menu.RemoveMenuButton(1);
    QTRY_COMPARE(menu.MenuButton(1)->geometry(), QRect(6, 43, 132, 24));
}

void CCustomMenuTest::rowsAddedToAMenuOnTheScreenAreNotEntered()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b", "c"});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    const QPoint place = menu.MenuButton(0)->geometry().center();
    QCursor::setPos(m_window->mapToGlobal(place));
    QTest::mouseMove(m_window->windowHandle(), place);
    QTRY_VERIFY(menu.MenuButton(0)->underMouse());
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("d", {}, {}, {}, {});
    menu.AddSplitLine();
    Add(&menu, {"e"});
    const QSignalSpy chosen(menu.MenuButton(3), &CCustomMenuItem::SignalFocusChanged);
    QTRY_VERIFY(menu.MenuButton(4)->isVisible());
    QVERIFY(menu.MenuButton(0)->underMouse());
    QVERIFY(!subMenu->isVisible());
    QCOMPARE(chosen.count(), 0);
    QVERIFY(menu.MenuButton(4)->ui->widget->styleSheet().contains(QLatin1String("::hover"))); // never entered or left
}

void CCustomMenuTest::rowAddedUnderTheCursorIsEntered()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    const QPoint place(40, 6 + 24 + 12); // where the second row is going to be
    QCursor::setPos(m_window->mapToGlobal(place));
    QTest::mouseMove(m_window->windowHandle(), place);
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    Add(&menu, {"c"});
    QTRY_VERIFY(menu.MenuButton(2)->isVisible());
    QVERIFY(subMenu->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, subMenu);
    QVERIFY(!menu.ui->m_widgetMenu->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void CCustomMenuTest::rowHiddenBeforeItCameOnTheScreenStaysHidden()
{
    CCustomMenu menu(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    Add(&menu, {"a", "b", "c"});
    menu.HideMenuBtn({"b"});
    QTRY_VERIFY(menu.MenuButton(2)->isVisible());
    QVERIFY(menu.MenuButton(1)->isHidden());
    QCOMPARE(menu.size(), QSize(144, 60));
    QCOMPARE(menu.MenuButton(2)->geometry(), QRect(6, 30, 132, 24));
}

void CCustomMenuTest::entryThatGoesBeforeItsLayoutIsForgotten_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("height");
    QTest::newRow("row removed") << "remove" << 97;
    QTest::newRow("row deleted by the host") << "delete" << 97;
    QTest::newRow("old row removed") << "old" << 97;
    QTest::newRow("separator deleted") << "separator" << 108;
    QTest::newRow("row moved elsewhere") << "reparent" << 121;
    QTest::newRow("all removed") << "all" << 12;
    QTest::newRow("all removed, one added") << "all and one" << 36;
    QTest::newRow("menu deleted") << "menu" << 0;
}

void CCustomMenuTest::entryThatGoesBeforeItsLayoutIsForgotten()
{
    QFETCH(QString, what);
    QFETCH(int, height);
    QWidget elsewhere;
    const QPointer<CCustomMenu> menu(new CCustomMenu(m_window.get()));
    Add(menu, {"a", "b"});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    Add(menu, {"c"});
    QWidget* line = menu->AddSplitLine();
    Add(menu, {"d"});
    QCOMPARE(menu->height(), 121);
    if (what == QLatin1String("remove")) {
        menu->RemoveMenuButton(2);
    } else if (what == QLatin1String("delete")) {
        delete menu->MenuButton(3);
    } else if (what == QLatin1String("old")) {
        menu->RemoveMenuButton(0);
    } else if (what == QLatin1String("separator")) {
        delete line;
    } else if (what == QLatin1String("reparent")) {
        menu->MenuButton(2)->setParent(&elsewhere);
    } else if (what == QLatin1String("menu")) {
        delete menu;
    } else {
        menu->RemoveAllMenuButtons();
        if (what == QLatin1String("all and one")) {
            Add(menu, {"e"});
        }
    }
    QCoreApplication::processEvents();
    if (!menu) {
        return;
    }
    QTRY_COMPARE(menu->height(), height);
    m_window->grab();
    int inLayout = 0;
    for (int i = 0; i < menu->ui->m_layoutWidgetMenu->count(); ++i) {
        QWidget* entry = menu->ui->m_layoutWidgetMenu->itemAt(i)->widget();
        QVERIFY(entry && menu->isAncestorOf(entry) && entry->isVisible());
        ++inLayout;
    }
    QCOMPARE(inLayout, what == QLatin1String("all") ? 0 : what == QLatin1String("all and one") ? 1 : 4);
    if (what == QLatin1String("remove") || what == QLatin1String("old")) {
        QCOMPARE(line->geometry(), QRect(6, 54, 144, 13));
        QCOMPARE(menu->MenuButton(2)->geometry(), QRect(6, 67, 132, 24));
    }
}

void CCustomMenuTest::rowWhoseSubMenuIsOpenTakesItAlong_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : {"removed", "all removed", "deleted by the host"}) {
        QTest::newRow(how) << how;
    }
}

void CCustomMenuTest::rowWhoseSubMenuIsOpenTakesItAlong()
{
    QFETCH(QString, how);
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a"});
    CCustomMenu* subMenu = menu.AddButtonWithSubMenu("b", {}, {}, {}, {});
    CCustomMenu* other = menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
    m_window->show();
    Send(menu.MenuButton(1), QEvent::Enter);
    QVERIFY(subMenu->isVisible());
    menu.RemoveMenuButton(0); // another row's going leaves it open
    QVERIFY(subMenu->isVisible());
    if (how == QLatin1String("removed")) {
        menu.RemoveMenuButton(0);
    } else if (how == QLatin1String("all removed")) {
        menu.RemoveAllMenuButtons();
    } else {
        delete menu.MenuButton(0);
    }
    QTRY_VERIFY(!subMenu->isVisible());
    QCOMPARE(menu.m_pOpenSubMenu, nullptr);
    QCOMPARE(menu.GetCustomMenus().size(), 2);
    QVERIFY(menu.GetCustomMenus().contains(subMenu) && menu.GetCustomMenus().contains(other));
}

void CCustomMenuTest::newRowInheritsNoSubMenu()
{
    QPointer<CCustomMenu> subMenu;
    {
        CCustomMenu menu(nullptr);
        subMenu = menu.AddButtonWithSubMenu("a", {}, {}, {}, {});
        menu.RemoveMenuButton(0);
        // Sooner or later a row comes to lie where the first one lay.
        for (int i = 0; i < 50; ++i) {
            Add(&menu, {"b"});
            QCOMPARE(menu.GetCustomMenu(menu.MenuButton(i)), nullptr);
            QCOMPARE(menu.GetCustomMenus(), QList<CCustomMenu*>{subMenu});
        }
        CCustomMenu* second = menu.AddButtonWithSubMenu("c", {}, {}, {}, {});
        QVERIFY(second != subMenu);
        QCOMPARE(menu.GetCustomMenus().size(), 2);
    }
    QVERIFY(subMenu.isNull());
}

void CCustomMenuTest::rowsMayBeRemovedByWhoHearsAnotherHidden()
{
    CCustomMenu menu(m_window.get());
    Add(&menu, {"a", "b", "a", "c"});
    m_window->show();
    menu.MenuButton(0)->SetChooseFocus(true);
    connect(menu.MenuButton(0), &CCustomMenuItem::SignalFocusChanged, &menu, [&menu] {
        while (menu.MenuButtonCount() > 1) {
            menu.RemoveMenuButton(1);
        }
    });
    menu.HideMenuBtn({"a", "c"});
    QCOMPARE(menu.MenuButtonCount(), 1);
    QCOMPARE(menu.height(), 12);
}

void CCustomMenuTest::panelIsPaintedInItsStyle_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("panel");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("row");
    QTest::newRow("flat") << 0 << "#f5f5f5"
                          << "#f5f5f5"
                          << "#181818";
    QTest::newRow("dark") << 1 << "#181818"
                          << "#2d2d2d"
                          << "#181818";
    QTest::newRow("white") << 2 << "#ffffff"
                           << "#a1a1a1"
                           << "#ffffff";
}

void CCustomMenuTest::panelIsPaintedInItsStyle()
{
    QFETCH(int, style);
    QFETCH(QString, panel);
    QFETCH(QString, border);
    QFETCH(QString, row);
    CCustomMenu menu(m_window.get());
    menu.AddMenuItem({}, {}, {}, {}, {});
    menu.AddSplitLine();
    menu.AddMenuItem({}, {}, {}, {}, {});
    menu.SetMenuStyle(static_cast<MenuStyle>(style));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    const auto colour = [&](int x, int y) { return menu.grab().toImage().pixelColor(x, y).name(); };
    QCOMPARE(colour(72, 3), panel);
    QCOMPARE(colour(0, 40), border);
    QCOMPARE(colour(72, 18), row);
    QCOMPARE(colour(72, 36), QStringLiteral("#535557"));
    QCOMPARE(colour(72, 34), panel);
    QCOMPARE(colour(20, 36), panel);
    Send(menu.MenuButton(1), QEvent::Enter);
    QCOMPARE(colour(72, 55), style == MenuStyleWhite ? QStringLiteral("#0071bc") : QStringLiteral("#016acb"));
}

void CCustomMenuTest::manyRowsCostWhatFewDo()
{
    const auto perRow = [](int rows) {
        QWidget window;
        CCustomMenu menu(&window);
        const ProcessorTime time;
        for (int row = 0; row < rows; ++row) {
            menu.AddMenuItem(row, QStringLiteral("row"), QStringLiteral("Ctrl+R"), {}, {});
        }
        return time.Microseconds() / rows;
    };
    const double few = LeastOfFive([&perRow] { return perRow(100); });
    const double many = perRow(1000);
    qInfo("%.1f us per row at 100, %.1f at 1000: %.2f", few, many, many / few);
    // Growth with the number of rows would be a factor of ten.
    QVERIFY(many < kGrowthAllowed * few);
}

CUSTOMCONTROLS_TEST_MAIN(CCustomMenuTest)
#include "CCustomMenuTest.moc"

#include <CustomControls/menus/CVelmarMenu.h>

#include "ui_CVelmarMenu.h"

#include <tests/support/ProcessorTime.h>
#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/menus/CVelmarMenuItem.h>

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>

#include <climits>

namespace {

// clang-format off
const QString kPanel[] = {
    QStringLiteral(R"css(QWidget#m_widgetMenu{background-color:#FFFFFF;border:none;border-radius:0px;})css"),
    QStringLiteral(R"css(QWidget#m_widgetMenu{background-color:#212024;border:1px solid #151515;border-radius:2px;})css"),
    QStringLiteral(R"css(QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #AAAAAA;border-radius:0px;})css"),
};
const QString kButton[] = {
    QStringLiteral(R"css(QPushButton{background:#F9F9F9;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:2px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#212024;color:#c7cfd6;border:none;text-align:left;padding-left:8px;}QPushButton::hover{background:#0071bc;color:#c7cfd6;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#FFFFFF;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:0px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
};
const QString kListButton[] = {
    QStringLiteral(R"css(QPushButton{background:#F0F0F0;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:2px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#212024;color:#c7cfd6;border:none;text-align:left;padding-left:8px;}QPushButton::hover{background:#0071bc;color:#c7cfd6;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#FFFFFF;color:#202020;border:none;text-align:left;padding-left:8px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
};
const QString kCentred[] = {
    QStringLiteral(R"css(QPushButton{background:#F0F0F0;color:#2A2929;border:none;text-align:center;padding-left:8px;padding-right:32px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#212024;color:#c7cfd6;border:none;text-align:center;padding-left:8px;padding-right:8px;}QPushButton::hover{background:#0071bc;color:#c7cfd6;}QPushButton::disabled{color:#999999;})css"),
    QStringLiteral(R"css(QPushButton{background:#FFFFFF;color:#2A2929;border:none;text-align:center;padding-left:8px;padding-right:32px;}QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;})css"),
};
const QString kFormPanel = QStringLiteral("QWidget#m_widgetMenu\n{\n\tbackground-color: rgb(240, 240, 240);\n\tborder:1px solid rgb(213,213,213);\n\tborder-radius:2px;\n}");
const QString kScrollArea = QStringLiteral(R"css(QScrollArea{border:none;padding:0px;margin:0px;background:transparent;})css");
const QString kScrollBar = QStringLiteral(R"css(QScrollBar:vertical{min-width:7px;max-width:8px;border:none; background:#FFFFFF;color:rgba(0,0,0,0);padding-left:0px;padding-right:1px;min-height:30px;}QScrollBar::handle:vertical{width:7px;background:rgb(165,171,183);max-height:400;min-height:50;border-radius:3px;border:none;}QScrollBar::handle:vertical:hover{background:rgb(155,151,163);max-height:400;min-height:50;border-radius:3px;border:none;}QScrollBar::add-line:vertical{border:0px solid rgb(220,0,220);background:#FFFFFF;height:0px;subcontrol-origin:margin;}QScrollBar::sub-line:vertical{border:0px solid rgb(20,220,220);background:#FFFFFF;height:0px;subcontrol-origin:margin;}QScrollBar::add-page::vertical,QScrollBar::sub-page:vertical{background:#FFFFFF;width:0px;height:0px;})css");
// clang-format on

constexpr int kMany = 10000;

void Fill(CVelmarMenu& menu, int rows)
{
    for (int row = 0; row < rows; ++row) {
        menu.AddDefaultButton(QString::number(row));
    }
}

void AddStyles()
{
    QTest::addColumn<int>("style");
    QTest::newRow("flat") << 0;
    QTest::newRow("dark") << 1;
    QTest::newRow("white") << 2;
}

} // namespace

class CVelmarMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void startsAsTheFormSays();
    void panelWearsTheSheetOfItsStyle_data() { AddStyles(); }
    void panelWearsTheSheetOfItsStyle();
    void unknownStyleIsKeptAndChangesNothing();
    void sizeFollowsRowsAndSeparators_data();
    void sizeFollowsRowsAndSeparators();
    void rowsAndSeparatorsStandFourPixelsApart();
    void defaultButtonWearsItsStyle_data() { AddStyles(); }
    void defaultButtonWearsItsStyle();
    void listButtonWearsItsStyle_data() { AddStyles(); }
    void listButtonWearsItsStyle();
    void centredSheetGoesToExistingButtonsOnly_data() { AddStyles(); }
    void centredSheetGoesToExistingButtonsOnly();
    void listButtonsMakeABoxOfFiveRows();
    void defaultButtonAfterListButtonsStandsBelowThem();
    void windowHeightAddsTwoPixels();
    void windowSizeRefixesAllRows();
    void refreshSizeHasNoGaps();
    void separatorIsALineInTheMiddle();
    void hideSplitLineCountsOnce();
    void menuItemWearsTheMenusStyleAndSize();
    void itemFocusIsForwardedAndEndsTheMenu();
    void pressInThePanelSaysThatTheMenuIsWanted();
    void disabledRowKeepsItsMouseFromTheMenu();
    void hideAndShowButtonsByIndex_data();
    void hideAndShowButtonsByIndex();
    void hideAndShowItemsByIndex();
    void hostHiddenRowCountsAsPresentWhileEnabled();
    void rowsNeverShownYetArePresent();
    void indexesOutOfRangeAreSafe_data();
    void indexesOutOfRangeAreSafe();
    void removeMenuButtonDeletesIt();
    void removeAllKeepsTheBoxSizeUntilTheNextRow();
    void fontGoesToPresentAndLaterButtons();
    void itemFontGoesToPresentItems();
    void callerMadeButtonJoinsOnce();
    void showingASecondPanelHidesTheFirst();
    void hideForgetsTheCurrentMenuWhoeverHoldsIt();
    void baseCallsPassTheStaticPointerBy();
    void deletedMenuIsNoLongerCurrent();
    void menuMayBeDeletedFromTheClickOfItsButton();
    void menuMayBeDeletedFromTheClickOfItsRow_data();
    void menuMayBeDeletedFromTheClickOfItsRow();
    void menuMayBeDeletedWhileTheNextOneOpens();
    void rowsDeletedByTheHostAreForgotten();
    void sizesOutOfRangeAreSafe_data();
    void sizesOutOfRangeAreSafe();
    void oddTextsAreKept_data();
    void oddTextsAreKept();
    void rowsAddedToAnOpenMenuAreLaidOutTogether();
    void rowOfAnOpenListStandsAtItsPlaceAtOnce();
    void rowOfAnOpenListWithGapsIsLeftToTheLayout();
    void layoutTakesOverWhenAnOpenListRests();
    void listClosedBeforeItsLayoutOpensInOrder();
    void rowsOutOfViewAreNotPaintedUntilTheyAreScrolledTo();
    void buttonsDoNotTakeADialogsReturnKey();
    void manyRowsCostWhatFewDo_data();
    void manyRowsCostWhatFewDo();
};

void CVelmarMenuTest::cleanup()
{
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CVelmarMenuTest::startsAsTheFormSays()
{
    CVelmarMenu menu(nullptr);
    QCOMPARE(menu.objectName(), "CVelmarMenu");
    QCOMPARE(menu.windowTitle(), "");
    QCOMPARE(menu.size(), QSize(180, 30));
    QCOMPARE(menu.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(menu.ui->m_widgetMenu->styleSheet(), kFormPanel);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->contentsMargins(), QMargins(1, 4, 1, 4));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->spacing(), 4);
    QCOMPARE(menu.ui->horizontalLayout->contentsMargins(), QMargins());
    QCOMPARE(menu.ui->horizontalLayout->spacing(), 0);
    QCOMPARE(menu.m_iWidth, 144);
    QCOMPARE(menu.m_iItemHeight, 24);
    QCOMPARE(menu.m_font, FontCn_14);
    QCOMPARE(menu.m_eMenuStyle, MenuStyleFlat);
    QCOMPARE(menu.m_pScrollArea, nullptr);
}

void CVelmarMenuTest::panelWearsTheSheetOfItsStyle()
{
    QFETCH(int, style);
    CVelmarMenu menu(nullptr);
    menu.SetMenuStyle(MenuStyle(style));
    QCOMPARE(menu.m_eMenuStyle, MenuStyle(style));
    QCOMPARE(menu.ui->m_widgetMenu->styleSheet(), kPanel[style]);
}

void CVelmarMenuTest::unknownStyleIsKeptAndChangesNothing()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 1);
    menu.SetMenuStyle(MenuStyle(3));
    QCOMPARE(menu.m_eMenuStyle, MenuStyle(3));
    QCOMPARE(menu.ui->m_widgetMenu->styleSheet(), kFormPanel);
    menu.SetTextAlignment(Qt::AlignCenter);
    QCOMPARE(menu.MenuButton(0)->styleSheet(), kButton[0]);
    menu.AddDefaultButton("b");
    menu.AddListWidgetButton("c");
    QCOMPARE(menu.MenuButton(1)->styleSheet(), QString());
    QCOMPARE(menu.MenuButton(2)->styleSheet(), QString());
    QCOMPARE(menu.MenuButton(1)->font(), QApplication::font(menu.MenuButton(1)));
}

void CVelmarMenuTest::sizeFollowsRowsAndSeparators_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("splits");
    QTest::addColumn<QSize>("size");
    QTest::newRow("empty") << 0 << 0 << QSize(146, 4);
    QTest::newRow("one row") << 1 << 0 << QSize(146, 32);
    QTest::newRow("one separator") << 0 << 1 << QSize(146, 17);
    QTest::newRow("row and separator") << 1 << 1 << QSize(146, 45);
    QTest::newRow("five rows, two separators") << 5 << 2 << QSize(146, 5 * 24 + 8 * 4 + 2 * 9);
}

void CVelmarMenuTest::sizeFollowsRowsAndSeparators()
{
    QFETCH(int, rows);
    QFETCH(int, splits);
    QFETCH(QSize, size);
    CVelmarMenu menu(nullptr);
    menu.SetWindowWidth(144);
    for (int row = 0; row < rows; ++row) {
        menu.AddDefaultButton("row");
    }
    for (int split = 0; split < splits; ++split) {
        menu.AddSplitLine();
    }
    QCOMPARE(menu.size(), size);
    QCOMPARE(menu.minimumSize(), size);
    QCOMPARE(menu.maximumSize(), size);
}

void CVelmarMenuTest::rowsAndSeparatorsStandFourPixelsApart()
{
    QWidget window;
    CVelmarMenu menu(&window);
    menu.AddDefaultButton("a");
    QWidget* split = menu.AddSplitLine();
    menu.AddMenuItem("b", {}, {});
    window.resize(400, 400);
    window.show();
    const auto place = [&menu](QWidget* row) { return QRect(row->mapTo(&menu, QPoint()), row->size()); };
    QCOMPARE(place(menu.MenuButton(0)), QRect(1, 4, 144, 24));
    QCOMPARE(place(split), QRect(1, 32, 144, 9));
    QCOMPARE(place(menu.MenuItem(0)), QRect(1, 45, 144, 24));
    QCOMPARE(menu.size(), QSize(146, 73));
}

void CVelmarMenuTest::defaultButtonWearsItsStyle()
{
    QFETCH(int, style);
    CVelmarMenu menu(nullptr);
    menu.SetMenuStyle(MenuStyle(style));
    menu.AddDefaultButton("text");
    QPushButton* button = menu.MenuButton(0);
    QCOMPARE(button->text(), "text");
    QCOMPARE(button->styleSheet(), kButton[style]);
    QCOMPARE(button->font(), FontCn_14);
    QCOMPARE(button->minimumSize(), QSize(144, 24));
    QCOMPARE(button->maximumSize(), QSize(144, 24));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
}

void CVelmarMenuTest::listButtonWearsItsStyle()
{
    QFETCH(int, style);
    CVelmarMenu menu(nullptr);
    menu.SetMenuStyle(MenuStyle(style));
    menu.AddListWidgetButton("text");
    QPushButton* button = menu.MenuButton(0);
    QCOMPARE(button->styleSheet(), kListButton[style]);
    QCOMPARE(button->font(), FontCn_14);
    QCOMPARE(button->minimumSize(), QSize(144, 24));
    QCOMPARE(menu.m_pScrollLayout->stretch(0), 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
}

void CVelmarMenuTest::centredSheetGoesToExistingButtonsOnly()
{
    QFETCH(int, style);
    CVelmarMenu menu(nullptr);
    menu.SetMenuStyle(MenuStyle(style));
    Fill(menu, 2);
    menu.SetTextAlignment(Qt::AlignRight);
    menu.AddDefaultButton("later");
    QCOMPARE(menu.MenuButton(0)->styleSheet(), kCentred[style]);
    QCOMPARE(menu.MenuButton(1)->styleSheet(), kCentred[style]);
    QCOMPARE(menu.MenuButton(2)->styleSheet(), kButton[style]);
}

void CVelmarMenuTest::listButtonsMakeABoxOfFiveRows()
{
    CVelmarMenu menu(nullptr);
    menu.AddListWidgetButton("0");
    QCOMPARE(menu.size(), QSize(146, 128));
    QScrollArea* area = menu.m_pScrollArea;
    QVERIFY(area);
    QCOMPARE(area->styleSheet(), kScrollArea);
    QCOMPARE(area->verticalScrollBar()->styleSheet(), kScrollBar);
    QCOMPARE(area->minimumSize(), QSize(144, 120));
    QCOMPARE(area->maximumSize(), QSize(144, 120));
    QCOMPARE(area->contentsMargins(), QMargins());
    QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(area->widget(), menu.m_pScrollWidget);
    QCOMPARE(menu.m_pScrollLayout->contentsMargins(), QMargins());
    QCOMPARE(menu.m_pScrollLayout->spacing(), 0);
    for (int row = 1; row < 8; ++row) {
        menu.AddListWidgetButton(QString::number(row));
    }
    QCOMPARE(menu.size(), QSize(146, 128));
    QCOMPARE(menu.m_pScrollWidget->size(), QSize(144, 8 * 24));
    QCOMPARE(menu.MenuButtonCount(), 8);
    menu.RemoveMenuButton(3);
    QCOMPARE(menu.m_pScrollWidget->size(), QSize(144, 7 * 24));
    menu.SetWindowWidth(200);
    QCOMPARE(menu.m_pScrollWidget->size(), QSize(200, 7 * 24));
    QCOMPARE(menu.size(), QSize(202, 128));
}

void CVelmarMenuTest::defaultButtonAfterListButtonsStandsBelowThem()
{
    CVelmarMenu menu(nullptr);
    menu.AddListWidgetButton("list");
    menu.AddDefaultButton("below");
    QCOMPARE(menu.size(), QSize(146, 128));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->indexOf(menu.m_pScrollArea), 0);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->indexOf(menu.MenuButton(1)), 1);
    QCOMPARE(menu.m_pScrollWidget->height(), 24);
    // It is counted as a row, which shows with the next list button.
    menu.AddListWidgetButton("list");
    QCOMPARE(menu.m_pScrollWidget->height(), 3 * 24);
}

void CVelmarMenuTest::windowHeightAddsTwoPixels()
{
    CVelmarMenu menu(nullptr);
    menu.SetWindowHeight(28);
    QCOMPARE(menu.m_iItemHeight, 30);
    menu.AddListWidgetButton("a");
    QCOMPARE(menu.MenuButton(0)->height(), 30);
    QCOMPARE(menu.height(), 158);
    QCOMPARE(menu.m_pScrollArea->height(), 150);
}

void CVelmarMenuTest::windowSizeRefixesAllRows()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddMenuItem("item", {}, {});
    menu.SetWindowWidth(90);
    menu.SetWindowHeight(38);
    for (QWidget* row : {static_cast<QWidget*>(menu.MenuButton(0)), static_cast<QWidget*>(menu.MenuButton(1)),
                         static_cast<QWidget*>(menu.MenuItem(0))}) {
        QCOMPARE(row->minimumSize(), QSize(90, 40));
        QCOMPARE(row->maximumSize(), QSize(90, 40));
    }
    QCOMPARE(menu.MenuItem(0)->findChild<QLabel*>("m_labelIcon")->minimumSize(), QSize(40, 40));
    QCOMPARE(menu.MenuItem(0)->findChild<QLabel*>("m_labelBlank")->maximumSize(), QSize(40, 40));
    QCOMPARE(menu.size(), QSize(92, 3 * 40 + 4 * 4));
}

void CVelmarMenuTest::refreshSizeHasNoGaps()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddSplitLine();
    menu.RefreshSize(0, 0);
    QCOMPARE(menu.size(), QSize(146, 9 + 2 * 24 + 8));
    menu.RefreshSize(3, 1);
    QCOMPARE(menu.size(), QSize(146, 2 * 9 + 5 * 24 + 8));
    menu.RefreshSize(-2, -1);
    QCOMPARE(menu.size(), QSize(146, 8));
    menu.RefreshSize(INT_MIN, INT_MIN);
    QCOMPARE(menu.height(), 0);
    menu.RefreshSize(INT_MAX, INT_MAX);
    QCOMPARE(menu.height(), QWIDGETSIZE_MAX);
}

void CVelmarMenuTest::separatorIsALineInTheMiddle()
{
    CVelmarMenu menu(nullptr);
    QWidget* split = menu.AddSplitLine();
    QCOMPARE(split->minimumSize(), QSize(144, 9));
    QCOMPARE(split->maximumSize(), QSize(144, 9));
    QCOMPARE(split->styleSheet(), "background:transparent;");
    auto* line = split->findChild<QWidget*>();
    QCOMPARE(line->geometry(), QRect(0, 4, 144, 1));
    QCOMPARE(line->styleSheet(), "background:rgb(217, 217, 217);");
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
}

void CVelmarMenuTest::hideSplitLineCountsOnce()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 1);
    QWidget* split = menu.AddSplitLine();
    menu.HideSplitLine(0);
    menu.HideSplitLine(0);
    QCOMPARE(menu.m_iSplitCount, 0);
    QVERIFY(split->isHidden() && !split->isEnabled());
    QCOMPARE(menu.height(), 32);
    menu.ShowSplitLine(0);
    menu.ShowSplitLine(0);
    QCOMPARE(menu.m_iSplitCount, 1);
    QVERIFY(!split->isHidden() && split->isEnabled());
    QCOMPARE(menu.height(), 45);
    // A menu that is disabled as a whole has its separators still.
    menu.setEnabled(false);
    menu.ShowSplitLine(0);
    QCOMPARE(menu.m_iSplitCount, 1);
}

void CVelmarMenuTest::menuItemWearsTheMenusStyleAndSize()
{
    CVelmarMenu menu(nullptr);
    menu.AddMenuItem("text", ":/icon/none.png", "Ctrl+T");
    CVelmarMenuItem* item = menu.MenuItem(0);
    QCOMPARE(item->text(), "text");
    QCOMPARE(item->m_strIcon, ":/icon/none.png");
    QCOMPARE(item->m_strIconHover, ":/icon/none.png");
    QCOMPARE(item->findChild<QLabel*>("m_labelShortCut")->text(), "Ctrl+T");
    QVERIFY(!item->m_bHasSubMenu);
    QCOMPARE(item->styleSheet(), "QWidget{background:#FFFFFF;}QWidget::hover{background:#d4e2ff;}");
    QCOMPARE(item->minimumSize(), QSize(144, 24));
    QCOMPARE(item->findChild<QLabel*>("m_labelIcon")->minimumSize(), QSize(24, 24));
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
    QCOMPARE(menu.MenuItemCount(), 1);
    QCOMPARE(menu.MenuButtonCount(), 0);
    QCOMPARE(menu.m_iRowCount, 1);
    QCOMPARE(menu.size(), QSize(146, 32));
}

void CVelmarMenuTest::itemFocusIsForwardedAndEndsTheMenu()
{
    CVelmarMenu menu(nullptr);
    menu.AddMenuItem("text", {}, {});
    QSignalSpy spy(&menu, &CVelmarMenu::SignalMenuBtnFocus);
    menu.show();
    Q_EMIT menu.MenuItem(0)->SignalMenuBtnFocus(true);
    QVERIFY(menu.isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, &menu);
    Q_EMIT menu.MenuItem(0)->SignalMenuBtnFocus(false);
    QVERIFY(!menu.isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
}

void CVelmarMenuTest::pressInThePanelSaysThatTheMenuIsWanted()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 1);
    menu.show();
    QSignalSpy spy(&menu, &CVelmarMenu::SignalMenuBtnFocus);
    QTest::mousePress(&menu, Qt::LeftButton, {}, QPoint(10, 1));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
    QVERIFY(menu.isVisible());
    menu.hide();
}

void CVelmarMenuTest::disabledRowKeepsItsMouseFromTheMenu()
{
    QWidget window;
    window.resize(300, 300);
    CVelmarMenu menu(&window);
    menu.AddMenuItem("text", {}, {});
    window.show();
    CVelmarMenuItem* item = menu.MenuItem(0);
    QSignalSpy focus(&menu, &CVelmarMenu::SignalMenuBtnFocus);
    QSignalSpy click(item, &CVelmarMenuItem::SignalMenuItemClicked);
    auto* label = item->findChild<QLabel*>("m_labelText");
    QTest::mousePress(label, Qt::LeftButton);
    QCOMPARE(focus.size(), 1); // an enabled row lets the press through
    focus.clear();
    item->SetEnabled(false);
    QTest::mousePress(label, Qt::LeftButton);
    QTest::mouseRelease(label, Qt::LeftButton);
    QCOMPARE(focus.size(), 0);
    QCOMPARE(click.size(), 0);
}

void CVelmarMenuTest::hideAndShowButtonsByIndex_data()
{
    QTest::addColumn<QList<int>>("indexes");
    QTest::addColumn<QList<int>>("gone");
    QTest::newRow("none") << QList<int>{} << QList<int>{};
    QTest::newRow("first") << QList<int>{0} << QList<int>{0};
    QTest::newRow("last from the end") << QList<int>{-1} << QList<int>{3};
    QTest::newRow("one button by both names") << QList<int>{0, -4} << QList<int>{0};
    QTest::newRow("several") << QList<int>{1, -2} << QList<int>{1, 2};
    QTest::newRow("beyond both ends") << QList<int>{4, -5, INT_MAX, INT_MIN} << QList<int>{};
}

void CVelmarMenuTest::hideAndShowButtonsByIndex()
{
    QFETCH(QList<int>, indexes);
    QFETCH(QList<int>, gone);
    for (const bool open : {false, true}) {
        CVelmarMenu menu(nullptr);
        if (open) {
            menu.show();
        }
        Fill(menu, 4);
        for (int round = 0; round < 2; ++round) {
            menu.HideMenuBtn(indexes);
            QCOMPARE(menu.m_iRowCount, 4 - int(gone.size()));
            for (int row = 0; row < 4; ++row) {
                QCOMPARE(menu.MenuButton(row)->isHidden(), gone.contains(row));
                QCOMPARE(menu.MenuButton(row)->isEnabled(), !gone.contains(row));
            }
            QCOMPARE(menu.height(), menu.m_iRowCount * 28 + 4);
        }
        for (int round = 0; round < 2; ++round) {
            menu.ShowMenuBtn(indexes);
            QCOMPARE(menu.m_iRowCount, 4);
            QVERIFY(!menu.MenuButton(0)->isHidden() && menu.MenuButton(0)->isEnabled());
            QCOMPARE(menu.height(), 116);
        }
        menu.hide();
    }
}

void CVelmarMenuTest::hideAndShowItemsByIndex()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 1);
    menu.AddMenuItem("a", {}, {});
    menu.AddMenuItem("b", {}, {});
    menu.HideMenuItem({-1, 5});
    QVERIFY(menu.MenuItem(1)->isHidden() && !menu.MenuItem(1)->isEnabled());
    QCOMPARE(menu.m_iRowCount, 2);
    QCOMPARE(menu.height(), 2 * 28 + 4);
    menu.ShowMenuItem({1});
    QVERIFY(!menu.MenuItem(1)->isHidden() && menu.MenuItem(1)->isEnabled());
    QCOMPARE(menu.m_iRowCount, 3);
}

void CVelmarMenuTest::hostHiddenRowCountsAsPresentWhileEnabled()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    // Enabled but hidden: still to be hidden, and to be shown.
    menu.MenuButton(0)->hide();
    menu.HideMenuBtn({0});
    QCOMPARE(menu.m_iRowCount, 1);
    // Disabled but visible: still to be hidden, and shown and counted once more.
    menu.MenuButton(1)->setEnabled(false);
    menu.ShowMenuBtn({1});
    QCOMPARE(menu.m_iRowCount, 2);
    QVERIFY(menu.MenuButton(1)->isEnabled());
}

void CVelmarMenuTest::rowsNeverShownYetArePresent()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddMenuItem("item", {}, {});
    menu.ShowMenuBtn({0, 1});
    menu.ShowMenuItem({0});
    QCOMPARE(menu.m_iRowCount, 3);
    QCOMPARE(menu.height(), 3 * 28 + 4);
    menu.MenuButton(0)->hide();
    menu.ShowMenuBtn({0});
    QCOMPARE(menu.m_iRowCount, 4);
}

void CVelmarMenuTest::indexesOutOfRangeAreSafe_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, 2, 100, INT_MIN, INT_MAX}) {
        QTest::addRow("%d", index) << index;
    }
}

void CVelmarMenuTest::indexesOutOfRangeAreSafe()
{
    QFETCH(int, index);
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddMenuItem("item", {}, {});
    menu.AddSplitLine();
    const QSize size = menu.size();
    QCOMPARE(menu.MenuButton(index), nullptr);
    QCOMPARE(menu.MenuItem(index), nullptr);
    menu.RemoveMenuButton(index);
    menu.HideSplitLine(index);
    menu.ShowSplitLine(index);
    QCOMPARE(menu.GetButtonIndex(nullptr), -1);
    QPushButton stranger;
    QCOMPARE(menu.GetButtonIndex(&stranger), -1);
    QCOMPARE(menu.size(), size);
}

void CVelmarMenuTest::removeMenuButtonDeletesIt()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 3);
    const QPointer<QPushButton> second(menu.MenuButton(1));
    QPushButton* third = menu.MenuButton(2);
    menu.RemoveMenuButton(1);
    QVERIFY(second.isNull());
    QCOMPARE(menu.GetButtonIndex(third), 1);
    QCOMPARE(menu.m_iRowCount, 2);
    QCOMPARE(menu.size(), QSize(146, 60));
}

void CVelmarMenuTest::removeAllKeepsTheBoxSizeUntilTheNextRow()
{
    CVelmarMenu menu(nullptr);
    menu.AddListWidgetButton("a");
    menu.AddMenuItem("b", {}, {});
    menu.AddSplitLine();
    const QPointer<QScrollArea> area(menu.m_pScrollArea);
    menu.RemoveAllMenuButtons();
    QVERIFY(area.isNull());
    QCOMPARE(menu.m_pScrollArea, nullptr);
    QCOMPARE(menu.MenuButtonCount() + menu.MenuItemCount() + menu.m_iRowCount + menu.m_iSplitCount, 0);
    QCOMPARE(menu.size(), QSize(146, 128));
    menu.AddDefaultButton("c");
    QCOMPARE(menu.size(), QSize(146, 32));
    menu.RemoveAllMenuButtons();
    QCOMPARE(menu.size(), QSize(146, 4));
    menu.AddListWidgetButton("d");
    QVERIFY(menu.m_pScrollArea);
    QCOMPARE(menu.m_pScrollWidget->size(), QSize(144, 24));
}

void CVelmarMenuTest::fontGoesToPresentAndLaterButtons()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 1);
    menu.SetFont(FontCnBold_16);
    menu.AddDefaultButton("later");
    menu.AddListWidgetButton("list");
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(menu.MenuButton(row)->font(), FontCnBold_16);
    }
}

void CVelmarMenuTest::itemFontGoesToPresentItems()
{
    CVelmarMenu menu(nullptr);
    menu.AddMenuItem("a", {}, "s");
    menu.SetMenuItemFont(FontCnBold_16, FontCn_12);
    QCOMPARE(menu.MenuItem(0)->findChild<QLabel*>("m_labelText")->font(), FontCnBold_16);
    QCOMPARE(menu.MenuItem(0)->findChild<QLabel*>("m_labelShortCut")->font(), FontCn_12);
}

void CVelmarMenuTest::callerMadeButtonJoinsOnce()
{
    CVelmarMenu menu(nullptr);
    auto* button = new CVelmarButton(ButtonTypeText, false, true, 0, nullptr);
    menu.AddMenuButton(button);
    menu.AddMenuButton(button);
    menu.AddMenuButton(nullptr);
    QCOMPARE(menu.MenuButtonCount(), 1);
    QCOMPARE(menu.MenuButton(0), button);
    QCOMPARE(menu.ui->m_layoutWidgetMenu->stretch(0), 4);
    QCOMPARE(menu.size(), QSize(146, 32));
}

void CVelmarMenuTest::showingASecondPanelHidesTheFirst()
{
    CVelmarMenu first(nullptr);
    CVelmarMenu second(nullptr);
    first.show();
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, &first);
    second.show();
    QVERIFY(!first.isVisible());
    QVERIFY(second.isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, &second);
    second.show();
    QVERIFY(second.isVisible());
    second.hide();
    QVERIFY(!second.isVisible());
}

void CVelmarMenuTest::hideForgetsTheCurrentMenuWhoeverHoldsIt()
{
    CVelmarMenu first(nullptr);
    CVelmarMenu second(nullptr);
    second.show();
    first.hide();
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    QVERIFY(second.isVisible());
    first.show();
    QVERIFY(second.isVisible()); // it is not known to be open any more
    first.hide();
}

void CVelmarMenuTest::baseCallsPassTheStaticPointerBy()
{
    CVelmarMenu menu(nullptr);
    static_cast<QWidget*>(&menu)->show();
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    menu.show();
    static_cast<QWidget*>(&menu)->hide();
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, &menu);
}

void CVelmarMenuTest::deletedMenuIsNoLongerCurrent()
{
    auto* menu = new CVelmarMenu(nullptr);
    menu->show();
    delete menu;
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    CVelmarMenu next(nullptr);
    next.show();
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, &next);
}

void CVelmarMenuTest::menuMayBeDeletedFromTheClickOfItsButton()
{
    for (const bool list : {false, true}) {
        QPointer<CVelmarMenu> menu(new CVelmarMenu(nullptr));
        if (list) {
            menu->AddListWidgetButton("a");
        } else {
            menu->AddDefaultButton("a");
        }
        connect(menu->MenuButton(0), &QPushButton::clicked, this, [menu] { delete menu; });
        menu->show();
        QTest::mouseClick(menu->MenuButton(0), Qt::LeftButton);
        QVERIFY(menu.isNull());
    }
}

void CVelmarMenuTest::menuMayBeDeletedFromTheClickOfItsRow_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("the menu's focus signal") << 0;
    QTest::newRow("the row's focus signal") << 1;
    QTest::newRow("the row's click") << 2;
    QTest::newRow("a click that was no choice") << 3;
    QTest::newRow("a press that is no click yet") << 4;
}

void CVelmarMenuTest::menuMayBeDeletedFromTheClickOfItsRow()
{
    QFETCH(int, signal);
    QPointer<CVelmarMenu> menu(new CVelmarMenu(nullptr));
    menu->AddMenuItem("a", {}, {});
    CVelmarMenuItem* item = menu->MenuItem(0);
    const auto end = [menu] { delete menu; };
    if (signal == 0 || signal == 4) {
        connect(menu, &CVelmarMenu::SignalMenuBtnFocus, this, end);
    } else if (signal == 2) {
        connect(item, &CVelmarMenuItem::SignalMenuItemClicked, this, end);
    } else {
        connect(item, &CVelmarMenuItem::SignalMenuBtnFocus, this, end);
    }
    item->m_bHasSubMenu = signal == 3;
    menu->show();
    if (signal == 4) {
        QTest::mousePress(item, Qt::LeftButton);
    } else {
        QTest::mouseRelease(item, Qt::LeftButton);
    }
    QVERIFY(menu.isNull());
}

void CVelmarMenuTest::menuMayBeDeletedWhileTheNextOneOpens()
{
    // Whoever sees the first panel go may end the second.
    class Watch : public QObject
    {
    public:
        QPointer<QObject> victim;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Hide) {
                delete victim;
            }
            return false;
        }
    };
    CVelmarMenu first(nullptr);
    QPointer<CVelmarMenu> second(new CVelmarMenu(nullptr));
    Watch watch;
    watch.victim = second;
    first.installEventFilter(&watch);
    first.show();
    second->show();
    QVERIFY(second.isNull());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CVelmarMenuTest::rowsDeletedByTheHostAreForgotten()
{
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddMenuItem("item", {}, {});
    QWidget* split = menu.AddSplitLine();
    delete menu.MenuButton(0);
    delete menu.MenuItem(0);
    delete split;
    QCOMPARE(menu.MenuButtonCount(), 1);
    QCOMPARE(menu.MenuItemCount(), 0);
    QCOMPARE(menu.m_iRowCount, 1);
    QTRY_COMPARE(menu.size(), QSize(146, 32));
    menu.HideSplitLine(0);
    menu.RemoveAllMenuButtons();
    QCOMPARE(menu.size(), QSize(146, 4));
}

void CVelmarMenuTest::sizesOutOfRangeAreSafe_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, -1, INT_MIN, INT_MAX}) {
        QTest::addRow("%d", size) << size;
    }
}

void CVelmarMenuTest::sizesOutOfRangeAreSafe()
{
    QFETCH(int, size);
    CVelmarMenu menu(nullptr);
    Fill(menu, 2);
    menu.AddMenuItem("item", {}, {});
    menu.AddListWidgetButton("list");
    menu.SetWindowWidth(size);
    menu.SetWindowHeight(size);
    menu.AddSplitLine();
    QVERIFY(menu.width() >= 0 && menu.height() >= 0);
    menu.RemoveAllMenuButtons();
    menu.SetWindowWidth(144);
    menu.SetWindowHeight(22);
    menu.AddDefaultButton("row");
    QCOMPARE(menu.size(), QSize(146, 32));
}

void CVelmarMenuTest::oddTextsAreKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("line feeds") << "one\ntwo\n\nthree";
    QTest::newRow("long") << QString(10000, QChar('w'));
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
}

void CVelmarMenuTest::oddTextsAreKept()
{
    QFETCH(QString, text);
    CVelmarMenu menu(nullptr);
    menu.AddDefaultButton(text);
    menu.AddMenuItem(text, text, text);
    menu.show();
    QCOMPARE(menu.MenuButton(0)->text(), text);
    QCOMPARE(menu.MenuItem(0)->text(), text);
    QCOMPARE(menu.size(), QSize(146, 60));
    QCOMPARE(menu.MenuButton(0)->size(), QSize(144, 24));
    QVERIFY(!menu.grab().isNull());
    menu.hide();
}

void CVelmarMenuTest::rowsAddedToAnOpenMenuAreLaidOutTogether()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    window.show();
    menu.show();
    Fill(menu, 3);
    menu.AddSplitLine();
    QCOMPARE(menu.height(), 3 * 28 + 4 + 13);
    QTRY_COMPARE(menu.MenuButton(2)->geometry(), QRect(1, 60, 144, 24));
    QVERIFY(menu.MenuButton(0)->isVisible());
    menu.RemoveAllMenuButtons();
    for (int row = 0; row < 7; ++row) {
        menu.AddListWidgetButton("list");
    }
    QTRY_COMPARE(menu.MenuButton(6)->geometry(), QRect(0, 144, 144, 24));
    QVERIFY(menu.m_pScrollArea->isVisible());
    // Hidden, emptied and deleted while a layout waits.
    menu.AddListWidgetButton("more");
    menu.RemoveAllMenuButtons();
    menu.hide();
    QCoreApplication::processEvents();
    QVERIFY(menu.ui->m_layoutWidgetMenu->isEnabled());
    // Rows of an open menu that go before they were laid out.
    menu.show();
    Fill(menu, 4);
    menu.AddMenuItem("item", {}, {});
    QWidget* split = menu.AddSplitLine();
    menu.RemoveMenuButton(3);
    Fill(menu, 1);
    delete menu.MenuButton(0);
    delete menu.MenuItem(0);
    delete split;
    QTRY_COMPARE(menu.height(), 3 * 28 + 4);
    QTRY_COMPARE(menu.MenuButton(2)->y(), 60);
    menu.hide();
}

void CVelmarMenuTest::rowOfAnOpenListStandsAtItsPlaceAtOnce()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    menu.AddListWidgetButton("0");
    window.show();
    menu.show();
    for (int row = 1; row < 9; ++row) {
        menu.AddListWidgetButton(QString::number(row));
        QCOMPARE(menu.MenuButton(row)->geometry(), QRect(0, row * 24, 144, 24));
        QVERIFY(menu.MenuButton(row)->isVisible());
        QCOMPARE(menu.m_pScrollWidget->size(), QSize(144, (row + 1) * 24));
        QCoreApplication::processEvents();
        QCOMPARE(menu.m_pScrollArea->verticalScrollBar()->maximum(), qMax(0, (row - 4) * 24));
    }
    // Widened rows and those that come after them.
    menu.SetWindowWidth(200);
    menu.AddListWidgetButton("9");
    QTRY_COMPARE(menu.MenuButton(0)->geometry(), QRect(0, 0, 200, 24));
    QCOMPARE(menu.MenuButton(9)->geometry(), QRect(0, 9 * 24, 200, 24));
    // One that went from the middle leaves no hole.
    menu.RemoveMenuButton(2);
    menu.AddListWidgetButton("10");
    QTRY_COMPARE(menu.MenuButton(9)->geometry(), QRect(0, 9 * 24, 200, 24));
    QCOMPARE(menu.MenuButton(2)->geometry(), QRect(0, 2 * 24, 200, 24));
    menu.hide();
}

void CVelmarMenuTest::rowOfAnOpenListWithGapsIsLeftToTheLayout()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    for (int row = 0; row < 3; ++row) {
        menu.AddListWidgetButton(QString::number(row));
    }
    window.show();
    menu.show();
    menu.HideMenuBtn({-1});
    menu.AddListWidgetButton("3");
    QTRY_COMPARE(menu.MenuButton(3)->geometry(), QRect(0, 2 * 24, 144, 24));
    menu.ShowMenuBtn({2});
    QTRY_COMPARE(menu.MenuButton(3)->geometry(), QRect(0, 3 * 24, 144, 24));
    QCOMPARE(menu.MenuButton(2)->geometry(), QRect(0, 2 * 24, 144, 24));
    menu.hide();
}

void CVelmarMenuTest::layoutTakesOverWhenAnOpenListRests()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    menu.AddListWidgetButton("0");
    window.show();
    menu.show();
    menu.AddListWidgetButton("1");
    menu.AddListWidgetButton("2");
    QVERIFY(!menu.m_pScrollLayout->isEnabled());
    QTRY_VERIFY(menu.m_pScrollLayout->isEnabled());
    QVERIFY(menu.ui->m_layoutWidgetMenu->isEnabled());
    QCOMPARE(menu.MenuButton(2)->geometry(), QRect(0, 48, 144, 24));
    // What the host does to a row shows again.
    menu.MenuButton(1)->hide();
    menu.m_pScrollWidget->setFixedHeight(48);
    QTRY_COMPARE(menu.MenuButton(2)->geometry(), QRect(0, 24, 144, 24));
    menu.hide();
}

void CVelmarMenuTest::listClosedBeforeItsLayoutOpensInOrder()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    menu.AddListWidgetButton("0");
    window.show();
    menu.show();
    menu.AddListWidgetButton("1");
    menu.hide();
    menu.AddListWidgetButton("2");
    menu.show();
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(menu.MenuButton(row)->geometry(), QRect(0, row * 24, 144, 24));
    }
    menu.hide();
}

void CVelmarMenuTest::rowsOutOfViewAreNotPaintedUntilTheyAreScrolledTo()
{
    QWidget window;
    window.resize(400, 400);
    CVelmarMenu menu(&window);
    for (int row = 0; row < 20; ++row) {
        menu.AddListWidgetButton("row");
    }
    menu.hide();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSet<QObject*> painted;
    class Watch : public QObject
    {
    public:
        explicit Watch(QSet<QObject*>& seen)
            : m_seen(seen)
        {}
        bool eventFilter(QObject* object, QEvent* event) override
        {
            if (event->type() == QEvent::Paint) {
                m_seen.insert(object);
            }
            return false;
        }

    private:
        QSet<QObject*>& m_seen;
    };
    Watch watch(painted);
    for (int row = 0; row < 20; ++row) {
        menu.MenuButton(row)->installEventFilter(&watch);
    }
    menu.show();
    QTRY_VERIFY(painted.contains(menu.MenuButton(0)) && painted.contains(menu.MenuButton(4)));
    QVERIFY(!painted.contains(menu.MenuButton(5)));
    menu.m_pScrollArea->verticalScrollBar()->setValue(15 * 24);
    QTRY_VERIFY(painted.contains(menu.MenuButton(15)) && painted.contains(menu.MenuButton(19)));
    QVERIFY(!painted.contains(menu.MenuButton(10)));
    // A row changed out of view is painted as it is now.
    menu.MenuButton(0)->setStyleSheet("QPushButton{background:#ff0000;border:none;}");
    menu.MenuButton(0)->setText(QString());
    menu.m_pScrollArea->verticalScrollBar()->setValue(0);
    QTRY_COMPARE(window.grab().toImage().pixelColor(60, 16), QColor("#ff0000"));
    menu.hide();
}

void CVelmarMenuTest::buttonsDoNotTakeADialogsReturnKey()
{
    QDialog dialog;
    CVelmarMenu menu(&dialog);
    Fill(menu, 1);
    menu.AddListWidgetButton("list");
    dialog.show();
    QVERIFY(!menu.MenuButton(0)->autoDefault() && !menu.MenuButton(0)->isDefault());
    QVERIFY(!menu.MenuButton(1)->autoDefault() && !menu.MenuButton(1)->isDefault());
}

void CVelmarMenuTest::manyRowsCostWhatFewDo_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("plain") << 0;
    QTest::newRow("scrolling") << 1;
    QTest::newRow("scrolling, open, one in each turn of the event loop") << 2;
    QTest::newRow("scrolling, opening") << 3;
}

void CVelmarMenuTest::manyRowsCostWhatFewDo()
{
    QFETCH(int, kind);
    const auto perRow = [kind](int rows) {
        QWidget window;
        window.resize(400, 400);
        CVelmarMenu menu(&window);
        menu.hide();
        window.show();
        if (kind == 2) {
            menu.show();
        }
        ProcessorTime time;
        for (int row = 0; row < rows; ++row) {
            if (kind == 0) {
                menu.AddDefaultButton(QStringLiteral("row"));
            } else {
                menu.AddListWidgetButton(QStringLiteral("row"));
            }
            if (kind == 2) {
                QCoreApplication::processEvents();
            }
        }
        if (kind == 3) {
            time = ProcessorTime();
            menu.show();
            QCoreApplication::processEvents();
        }
        const double cost = time.Microseconds() / rows;
        menu.hide();
        return cost;
    };
    perRow(100);
    const double few = LeastOfFive([&perRow] { return perRow(100); });
    // The event loop's turns take most of their time for painting, so fewer rows have to do.
    const int rows = kind == 2 ? kMany / 5 : kMany;
    const double many = perRow(rows);
    qInfo("%.1f us per row at 100, %.1f at %d: %.2f", few, many, rows, many / few);
    // Growth with the number of rows would be a factor of twenty or a hundred.
    QVERIFY(many < kGrowthAllowed * few);
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarMenuTest)

#include "CVelmarMenuTest.moc"

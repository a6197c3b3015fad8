#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <tests/documentation/Example.h>

EXAMPLE(CCustomMenuItem)
{
    // [example]
    auto* menu = new CCustomMenu(window);
    const QString tick = ":/icon/connect/ico_connect_set.png";
    menu->AddMenuItem("Grid", "G", tick, tick, tick);
    menu->UpdateItemSize();
    menu->RefreshSize();
    CCustomMenuItem* grid = menu->MenuButton(0);
    grid->SetBtnState(true, true); // a state row, ticked: a click leaves the menu open
    QObject::connect(grid, &CCustomMenuItem::SignalMenuItemClicked, grid,
                     [=] { grid->SetBtnState(!grid->GetBtnState(), true); });
    // [/example]
    menu->show();
    QVERIFY(grid->GetBtnState());
    QTest::mouseClick(grid, Qt::LeftButton);
    QVERIFY(!grid->GetBtnState());
    QVERIFY(menu->isVisible());
}

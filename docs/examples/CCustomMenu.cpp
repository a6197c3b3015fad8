#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <tests/documentation/Example.h>

EXAMPLE(CCustomMenu)
{
    // [example]
    auto* menu = new CCustomMenu(window);
    menu->AddMenuItem("Open", "Ctrl+O", {}, {}, {});
    menu->AddSplitLine();
    CCustomMenu* recent = menu->AddButtonWithSubMenu("Recent", {}, {}, {}, {});
    recent->AddMenuItem(1, "Gearbox cover.cnc", {}, {}, {});
    menu->SetMenuStyle(MenuStyleDark);
    menu->UpdateItemSize(); // once, after the last row
    menu->RefreshSize();
    menu->show(); // a CMenuBtnHelper would do that
    QObject::connect(menu->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked, window,
                     [=] { window->setWindowTitle("open"); });
    // [/example]
    QCOMPARE(menu->MenuButtonCount(), 2);
    QCOMPARE(menu->GetCustomMenu(menu->MenuButton(1)), recent);
    QTest::mouseClick(menu->MenuButton(0), Qt::LeftButton);
    QVERIFY(menu->isHidden());
    QCOMPARE(window->windowTitle(), "open");
}

#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>

#include <tests/documentation/Example.h>

#include <QPushButton>

EXAMPLE(CVelmarMenu)
{
    // [example]
    auto* menu = new CVelmarMenu(window);
    menu->hide();
    menu->SetMenuStyle(MenuStyleWhite); // before the rows
    menu->AddDefaultButton("Connect…");
    menu->AddDefaultButton("Disconnect");
    menu->AddSplitLine();
    menu->AddMenuItem("Settings", ":/icon/connect/ico_connect_set.png", "Ctrl+,");
    QObject::connect(menu->MenuButton(0), &QPushButton::clicked, menu, [=] { menu->hide(); });
    menu->move(40, 40);
    menu->show(); // closes any other CVelmarMenu
    // [/example]
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->MenuButtonCount(), 2);
    QCOMPARE(menu->MenuItemCount(), 1);
    menu->MenuButton(0)->click();
    QVERIFY(menu->isHidden());
}

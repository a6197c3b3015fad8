#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>

#include <tests/documentation/Example.h>

EXAMPLE(CVelmarMenuItem)
{
    // [example]
    auto* menu = new CVelmarMenu(window);
    menu->hide();
    menu->AddMenuItem("Settings", ":/icon/connect/ico_connect_set.png", "Ctrl+,");
    CVelmarMenuItem* settings = menu->MenuItem(0);
    QObject::connect(settings, &CVelmarMenuItem::SignalMenuItemClicked, window,
                     [=] { window->setWindowTitle("settings"); });
    menu->show();
    // [/example]
    QTest::mouseClick(settings, Qt::LeftButton);
    QCOMPARE(window->windowTitle(), "settings");
    QVERIFY(menu->isHidden()); // a click on such a row hides the menu by itself
}

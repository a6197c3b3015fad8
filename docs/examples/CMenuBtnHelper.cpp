#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CMenuBtnHelper.h>

#include <tests/documentation/Example.h>

#include <QPushButton>

EXAMPLE(CMenuBtnHelper)
{
    // [example]
    auto* helper = new CMenuBtnHelper(panel); // the focus goes there when a press closes a menu
    helper->SetMenuPos(0, 30);
    for (int i = 0; i < 2; ++i) {
        auto* button = new QPushButton(i == 0 ? "File" : "View", window);
        button->setGeometry(i * 60, 0, 60, 30);
        auto* menu = new CCustomMenu(window); // the same parent as the button's
        menu->AddMenuItem(i == 0 ? "Open" : "Grid", {}, {}, {}, {});
        menu->RefreshSize();
        menu->hide();
        helper->RegisterMenuBtn(button, menu);
        button->show();
    }
    // [/example]
    const QList<CCustomMenu*> menus = window->findChildren<CCustomMenu*>(QString(), Qt::FindDirectChildrenOnly);
    const QList<QPushButton*> buttons = window->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    QTest::mousePress(buttons.first(), Qt::LeftButton);
    QTest::mouseRelease(buttons.first(), Qt::LeftButton);
    QTRY_VERIFY(menus.first()->isVisible());
    QCOMPARE(menus.first()->pos(), QPoint(0, 30));
}

#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <tests/documentation/Example.h>

EXAMPLE(CToolBarItem)
{
    // [example]
    auto* block = new CToolBarItem("Machining", window);
    const QString icon = ":/icon/connect/ico_machine.png";
    block->AddItem(icon, "Milling", 0, {});
    block->AddItem(icon, "Engraving", 1, {});
    block->AddItemVertical({icon, icon}, {"Copy", "Paste"}, {2, 3}, {icon, icon});
    const QList<CToolButton*> buttons = block->CreateToolBlock(false); // in the order of their description
    for (CToolButton* button : buttons)
        QObject::connect(button, &QToolButton::clicked, window, [=] { window->setWindowTitle(button->text()); });
    window->addToolBar(block);
    // [/example]
    QCOMPARE(buttons.size(), 4);
    QVERIFY(buttons.at(2)->IsVerticalBtn());
    buttons.at(1)->click();
    QCOMPARE(window->windowTitle(), "Engraving");
}

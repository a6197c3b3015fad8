#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CToolBarItem.h>

#include <tests/documentation/Example.h>

EXAMPLE(CTabToolWidget)
{
    // [example]
    auto* ribbon = new CTabToolWidget(window);
    auto* page = new QMainWindow; // a page of its own main window takes the blocks
    auto* block = new CToolBarItem("Machining", page);
    block->AddItem(":/icon/connect/ico_machine.png", "Milling", 0, {});
    block->CreateToolBlock(false);
    page->addToolBar(block);
    ribbon->addTab(page, "Start");
    ribbon->setFixedHeight(110);
    window->setMenuWidget(ribbon);
    // [/example]
    QCOMPARE(ribbon->count(), 1);
    QTRY_VERIFY(block->isVisible());
}

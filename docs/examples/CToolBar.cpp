#include <CustomControls/toolbar/CToolBar.h>

#include <tests/documentation/Example.h>

#include <QAction>

EXAMPLE(CToolBar)
{
    // [example]
    auto* bar = new CToolBar(CToolBar::ToolBarModeSlim, window);
    bar->setProperty("GroupName", "Edit");
    QAction* undo = bar->addAction("Undo");
    bar->addAction("Redo");
    QObject::connect(undo, &QAction::triggered, window, [=] { window->setWindowTitle("undone"); });
    window->addToolBar(bar);
    // [/example]
    QCOMPARE(bar->sizeHint().height(), 41);
    undo->trigger();
    QCOMPARE(window->windowTitle(), "undone");
}

#include <CustomControls/CToolBarStyle.h>

#include <tests/documentation/Example.h>

#include <QToolBar>

EXAMPLE(CToolBarStyle)
{
    // [example]
    auto* bar = new QToolBar(window);
    auto* style = new CToolBarStyle;
    style->setParent(window); // a widget does not own its style
    bar->setStyle(style);
    bar->addAction("Undo");
    bar->addAction("Redo");
    window->addToolBar(bar);
    // [/example]
    QCOMPARE(bar->style()->pixelMetric(QStyle::PM_ToolBarHandleExtent, nullptr, bar), 9);
    QCOMPARE(bar->style()->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, bar), 2);
    QCOMPARE(bar->style()->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, bar), 4);
}

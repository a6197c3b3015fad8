#include <CustomControls/toolbar/CTabWidget.h>

#include <tests/documentation/Example.h>

#include <QLabel>
#include <QTabBar>

EXAMPLE(CTabWidget)
{
    // [example]
    auto* tabs = new CTabWidget(panel);
    tabs->addTab(new QLabel("The page of the first tab"), "Start");
    tabs->addTab(new QLabel("The page of the second tab"), "View");
    layout->addWidget(tabs);
    // [/example]
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabBar()->metaObject()->className(), "CTabBar");
}

#include <CustomControls/toolbar/CTabBar.h>

#include <tests/documentation/Example.h>

EXAMPLE(CTabBar)
{
    // [example]
    auto* tabs = new CTabBar(panel);
    tabs->addTab("Start");
    tabs->addTab("View");
    QObject::connect(tabs, &QTabBar::currentChanged, window,
                     [=](int index) { window->setWindowTitle(tabs->tabText(index)); });
    layout->addWidget(tabs);
    // [/example]
    QCOMPARE(tabs->sizeHint().height(), 30);
    tabs->setCurrentIndex(1);
    QCOMPARE(window->windowTitle(), "View");
}

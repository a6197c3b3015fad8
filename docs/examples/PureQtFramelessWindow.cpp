#include <CustomControls/frameless/PureQtFramelessWindow.h>

#include <tests/documentation/Example.h>

#include <QLabel>

EXAMPLE(PureQtFramelessWindow)
{
    // [example]
    auto* pane = new PureQtFramelessWindow(window);
    auto* bar = new QLabel("  Position", pane);
    bar->setFixedHeight(32);
    pane->setMenuWidget(bar);
    pane->addTitleBar(bar);               // moves the window
    pane->setContentsMargins(8, 8, 8, 8); // the edges need room without widgets
    QObject::connect(pane, &PureQtFramelessWindow::titleDblClick, pane,
                     [=] { pane->isMaximized() ? pane->showNormal() : pane->showMaximized(); });
    QObject::connect(pane, &PureQtFramelessWindow::windowStateChange, pane, &QWidget::showNormal);
    pane->show();
    // [/example]
    QVERIFY(QTest::qWaitForWindowExposed(pane));
    QTest::mouseDClick(bar, Qt::LeftButton);
    QTRY_VERIFY(pane->isMaximized());
}

#include <CustomControls/frameless/FramelessMainWindow.h>

#include <tests/documentation/Example.h>

#include <QPushButton>

EXAMPLE(FramelessMainWindow)
{
    // [example]
    auto* main = new FramelessMainWindow(window);
    auto* bar = new QWidget(main);
    auto* maximise = new QPushButton("Maximise", bar);
    maximise->setCheckable(true);
    bar->setFixedHeight(40);
    main->setMenuWidget(bar); // at the top left corner, as wide as the window
    main->setTitleBar(bar);   // the bar moves the window, its button stays a button
    QObject::connect(main, &FramelessMainWindow::windowStateChange, maximise, &QPushButton::setChecked);
    QObject::connect(maximise, &QPushButton::clicked, main,
                     [=](bool on) { on ? main->showMaximized() : main->showNormal(); });
    main->show();
    // [/example]
    QVERIFY(main->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(QTest::qWaitForWindowExposed(main));
    maximise->click();
    QTRY_VERIFY(main->isMaximized());
    QVERIFY(maximise->isChecked());
}

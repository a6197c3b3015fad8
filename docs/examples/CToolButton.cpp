#include <CustomControls/StatefulIcon.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <tests/documentation/Example.h>

EXAMPLE(CToolButton)
{
    // [example]
    auto* button = new CToolButton(panel);
    button->setText("Milling");
    button->setIcon(StatefulIcon::create(":/icon/connect/ico_machine.png", ":/icon/connect/ico_machine.png", 24));
    button->setIconSize(QSize(24, 24));
    button->SetSharedWidth(button->fontMetrics().horizontalAdvance(button->text()));
    QObject::connect(button, &QToolButton::clicked, window, [=] { window->setWindowTitle("milling"); });
    QObject::connect(button, &CToolButton::SignalBtnDisabledClick, window, [=] { window->setWindowTitle("no model"); });
    layout->addWidget(button);
    // [/example]
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(window->windowTitle(), "milling");
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(window->windowTitle(), "no model");
}

#include <CustomControls/buttons/CIconButton.h>

#include <tests/documentation/Example.h>

#include <QSignalSpy>

EXAMPLE(CIconButton)
{
    // [example]
    auto* button = new CIconButton(panel);
    button->SetIcon(":/icon/connect/ico_machine.png");
    button->SetText("Generate toolpath");
    button->setStyleSheet("QPushButton{background:#188553; color:#ffffff; border:none; border-radius:4px;}");
    button->setFixedSize(240, 44);
    QObject::connect(button, &QPushButton::clicked, window, &QWidget::close);
    layout->addWidget(button);
    // [/example]
    QVERIFY(button->text().isEmpty()); // QPushButton's own caption is not used
    button->click();
    QVERIFY(!window->isVisible());
}

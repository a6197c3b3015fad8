#include <CustomControls/StatefulIcon.h>

#include <tests/documentation/Example.h>

#include <QPushButton>

EXAMPLE(StatefulIcon)
{
    // [example]
    auto* button = new QPushButton(panel);
    button->setCheckable(true);
    button->setIcon(StatefulIcon::create(":/icon/connect/ico_machine.png", ":/icon/connect/ico_connect_set.png", 16));
    button->setIconSize(QSize(16, 16));
    layout->addWidget(button);
    // [/example]
    const QImage on = button->icon().pixmap(16, QIcon::Normal, QIcon::On).toImage();
    QVERIFY(!on.isNull());
    QCOMPARE(button->icon().pixmap(16, QIcon::Disabled, QIcon::On).toImage(), on);
    QVERIFY(button->icon().pixmap(16, QIcon::Normal, QIcon::Off).toImage() != on);
}

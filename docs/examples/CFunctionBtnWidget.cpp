#include <CustomControls/buttons/CFunctionBtnWidget.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/documentation/Example.h>

#include <QListWidget>
#include <QScrollBar>

EXAMPLE(CFunctionBtnWidget)
{
    // [example]
    auto* list = new QListWidget(panel);
    for (int i = 1; i <= 40; ++i)
        list->addItem(QString("Contour %1").arg(i));
    auto* strip = new CFunctionBtnWidget(list->verticalScrollBar(), panel);
    const QList<CVelmarButton*> buttons = strip->InitialButton2({"Cancel", "Generate"});
    QObject::connect(buttons.last(), &CVelmarButton::SignalClicked, window, &QWidget::close);
    panel->setStyleSheet("background:#2b2b2b; color:#ffffff;"); // the strip is made for a dark panel
    layout->addWidget(list);
    layout->addWidget(strip);
    // [/example]
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(buttons.last()->GetButtonText(), "Generate");
    QTest::mouseClick(buttons.last(), Qt::LeftButton);
    QVERIFY(!window->isVisible());
}

#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <tests/documentation/Example.h>

EXAMPLE(CToolButtonVertical)
{
    // [example]
    int widest = 0;
    for (const char* text : {"Copy", "Paste", "Mirror"}) {
        auto* button = new CToolButtonVertical(panel);
        button->setText(text);
        button->setIcon(QIcon(":/icon/connect/ico_machine.png"));
        button->setIconSize(QSize(16, 16));
        widest = qMax(widest, button->fontMetrics().horizontalAdvance(button->text()));
        layout->addWidget(button);
    }
    for (auto* button : panel->findChildren<CToolButtonVertical*>())
        button->SetGroupWidth(widest);
    // [/example]
    const QList<CToolButtonVertical*> stack = panel->findChildren<CToolButtonVertical*>();
    QCOMPARE(stack.size(), 3);
    QCOMPARE(stack.at(0)->sizeHint(), stack.at(2)->sizeHint());
    QCOMPARE(stack.at(0)->sizeHint().height(), 24);
}

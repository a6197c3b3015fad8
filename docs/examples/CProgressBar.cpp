#include <CustomControls/CProgressWidget/CProgressBar.h>

#include <tests/documentation/Example.h>

EXAMPLE(CProgressBar)
{
    // [example]
    auto* bar = new CProgressBar(panel);
    bar->setTextVisible(false); // the style's own percentage; SetTextVisible() is this class's
    bar->setStyleSheet("QProgressBar{border:none; border-radius:8px; background:#e2e2e2;}"
                       "QProgressBar::chunk{border-radius:8px; background:#188553;}");
    bar->SetColor("#333333", "#f5f5f5"); // over the groove, over the filled part
    bar->setFixedHeight(16);
    bar->setValue(40);
    layout->addWidget(bar);
    // [/example]
    QCOMPARE(bar->value(), 40);
    QVERIFY(!bar->grab().isNull());
}

#include <CustomControls/feedback/CWatermarkWidget.h>

#include <tests/documentation/Example.h>

#include <QLabel>

EXAMPLE(CWatermarkWidget)
{
    // [example]
    auto* watermark = new CWatermarkWidget(panel);
    watermark->setGeometry(panel->rect()); // the area to be marked
    watermark->show();
    watermark->ShowWatermark();
    // In the host's moveEvent:   watermark->AdjustWatermark(false);
    // In the host's resizeEvent: watermark->setGeometry(panel->rect()); watermark->AdjustWatermark(true);
    // [/example]
    auto* mark = watermark->findChild<QLabel*>();
    QVERIFY(mark && mark->isVisible());
    QCOMPARE(mark->geometry().topLeft(), panel->mapToGlobal(QPoint(0, 0)));
    QCOMPARE(mark->size(), panel->size());
}

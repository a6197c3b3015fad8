#include <CustomControls/feedback/ToastWidget.h>

#include <tests/documentation/Example.h>

#include <QPointer>
#include <QTimer>

EXAMPLE(ToastWidget)
{
    // [example]
    auto* toast = new ToastWidget(ToastWidget::ToastCustomText, panel, "Tool 2 is longer than the magazine knows.");
    toast->move(panel->mapToGlobal(QPoint((panel->width() - toast->width()) / 2, 40)));
    toast->show();
    QTimer::singleShot(3000, toast, &QObject::deleteLater); // it has no timer of its own
    // [/example]
    QVERIFY(toast->isVisible());
    QVERIFY(toast->isWindow());
    QCOMPARE(toast->y(), panel->mapToGlobal(QPoint(0, 40)).y());
}

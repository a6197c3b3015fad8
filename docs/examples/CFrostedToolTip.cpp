#include <CustomControls/feedback/CFrostedToolTip.h>

#include <tests/documentation/Example.h>

#include <QPointer>

EXAMPLE(CFrostedToolTip)
{
    // [example]
    auto* tip = new CFrostedToolTip("Generate G-code", nullptr);
    tip->move(panel->mapToGlobal(QPoint(8, 18)));
    tip->show();
    QObject::connect(window, &QObject::destroyed, tip, &CFrostedToolTip::Hide); // fades, then deletes itself
    // [/example]
    const QPointer<CFrostedToolTip> watched(tip);
    QVERIFY(tip->isVisible());
    tip->Hide();
    QTRY_VERIFY(!watched);
}

#include <CustomControls/CCustomAppStyle.h>

#include <tests/documentation/Example.h>

#include <QApplication>

EXAMPLE(CCustomAppStyle)
{
    const int usual = QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay);
    // [example]
    QApplication::setStyle(new CCustomAppStyle); // before the first window; the application owns it
    // [/example]
    QVERIFY(usual != 200);
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), 200);
    QApplication::setStyle("Fusion");
}

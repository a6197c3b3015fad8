#include <CustomControls/buttons/CHintButton.h>

#include <tests/documentation/Example.h>

EXAMPLE(CHintButton)
{
    // [example]
    auto* hint = new CHintButton(panel);
    hint->setText("?");
    hint->setFixedSize(24, 24);
    hint->SetToolTipText("The depth counts from the stock's upper face.");
    hint->SetPositionOffset(QPoint(14, 14));
    layout->addWidget(hint);
    // [/example]
    QTest::mouseClick(hint, Qt::LeftButton); // a click pins the note
    QVERIFY(hint->IsToolTipVisible());
    hint->HideToolTip();
    QVERIFY(!hint->IsToolTipVisible());
}

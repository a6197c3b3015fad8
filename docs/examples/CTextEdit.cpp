#include <CustomControls/fields/CTextEdit.h>

#include <tests/documentation/Example.h>

#include <QDoubleSpinBox>

EXAMPLE(CTextEdit)
{
    // [example]
    auto* angle = new CTextEdit(panel, "Rotation", "0", "°", 110);
    angle->SetRange(0.0, 360.0);
    angle->SetDecimals(1);
    angle->SetValue(-30.0, 1, true); // wrapped into the range: 330
    QObject::connect(angle, &CTextEdit::SignalEditDataChanged, window,
                     [=] { window->setWindowTitle(QString::number(angle->GetEditData())); });
    layout->addWidget(angle);
    // [/example]
    QCOMPARE(angle->GetEditData(), 330.0);
    angle->SetValue(400.0); // out of range: the default value takes its place
    QCOMPARE(angle->GetEditData(), 0.0);
    QVERIFY(window->windowTitle().isEmpty()); // a value from the program is never told
}

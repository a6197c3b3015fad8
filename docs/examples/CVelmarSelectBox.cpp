#include <CustomControls/machine/CVelmarSelectBox.h>

#include <tests/documentation/Example.h>

#include <QLineEdit>
#include <QPointer>

EXAMPLE(CVelmarSelectBox)
{
    // [example]
    auto* box = new CVelmarSelectBox(window); // deletes itself when it closes
    box->SetBoxInfo(":/icon/connect/ico_machine.png", "Rename machine", "Rename");
    box->SetHintText("Up to 20 letters");
    box->SetBaseSize(320, 160);
    box->SetChildUI(new QLineEdit("Mill 1"));
    box->show();
    // [/example]
    const QPointer<CVelmarSelectBox> watched(box);
    QCOMPARE(box->size(), QSize(320, 160));
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!watched);
}

#include <CustomControls/fields/CSelectBox.h>

#include <tests/documentation/Example.h>

EXAMPLE(CSelectBox)
{
    // [example]
    auto* vacuum = new CSelectBox("Vacuum", false, "Check that the table is level before you start.", panel);
    auto* seal = new CSelectBox("Test the seal first", false, {}, panel);
    seal->SetCheckable(false);
    QObject::connect(vacuum, &CSelectBox::signalSelectBoxToggled, seal, &CSelectBox::SetCheckable);
    vacuum->OpenLeftBorder(true); // the head of a group
    layout->addWidget(vacuum);
    layout->addWidget(seal);
    // [/example]
    seal->SetChecked(true);
    QVERIFY(!seal->IsChecked()); // cannot be on yet
    vacuum->SetChecked(true);
    seal->SetChecked(true);
    QVERIFY(seal->IsChecked());
}

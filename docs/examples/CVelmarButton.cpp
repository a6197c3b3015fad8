#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/documentation/Example.h>

EXAMPLE(CVelmarButton)
{
    // [example]
    auto* button = new CVelmarButton(ButtonTypeIconTextChoose, false, true, 0, panel);
    button->SetButtonSize(140, 36);
    button->setFixedSize(140, 36);
    const QString icon = "url(:/icon/connect/ico_machine.png)";
    button->SetButtonIcon(icon, icon, icon, icon);
    button->SetButtonText("Finishing", false);
    button->SetButtonTextPos(0, 0, 0, 0, 90, 36); // the room that the caption may take beside the icon
    button->SetBackgroundSolid(0xffffff, 0x0f5f3a, 0xd6e9df, 0x188553); // normal, pressed, hover, chosen
    QObject::connect(button, &CVelmarButton::SignalClicked, button, [=] { button->SetChooseFocus(true); });
    layout->addWidget(button);
    // [/example]
    QCOMPARE(button->GetButtonText(), "Finishing");
    QVERIFY(!button->GetChooseFocusState());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button->GetChooseFocusState());
}

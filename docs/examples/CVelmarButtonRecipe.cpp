#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/documentation/Example.h>

// [example]
/** The house's button of a command: green for the chief one of its place, white for the others. */
static CVelmarButton* CreateHouseButton(const QString& text, bool chief, QWidget* parent)
{
    auto* button = new CVelmarButton(parent); // a caption on solid colours, at any size
    button->SetButtonText(text, false);
    button->setFixedSize(QFontMetrics(button->GetButtonTextFont()).horizontalAdvance(text) + 48, 34);
    button->SetBtnRadius(4);
    button->SetBackgroundSolid(chief ? 0x188553 : 0xffffff, 0x126641, chief ? 0x2ab475 : 0xd9eee4, 0x188553);
    button->SetTextColor(chief ? "#ffffff" : "#333333", "#ffffff", chief ? "#ffffff" : "#188553", "#ffffff");
    return button;
}
// [/example]

EXAMPLE(CVelmarButtonRecipe)
{
    auto* save = CreateHouseButton("Save", true, panel);
    auto* discard = CreateHouseButton("Discard the changes", false, panel);
    layout->addWidget(save);
    layout->addWidget(discard);
    QCoreApplication::processEvents();
    QCOMPARE(save->grab().toImage().pixelColor(6, 17), QColor(0x188553));
    QCOMPARE(discard->grab().toImage().pixelColor(6, 17), QColor(0xffffff));
    QSignalSpy clicked(save, &CVelmarButton::SignalClicked);
    QTest::mouseClick(save, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
}

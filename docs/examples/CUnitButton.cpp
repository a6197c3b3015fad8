#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/fields/CTextEdit.h>

#include <tests/documentation/Example.h>

#include <QHBoxLayout>

EXAMPLE(CUnitButton)
{
    // [example]
    auto* angle = new CTextEdit(panel, "Rotation", "0", "°", 110);
    auto* presets = new QHBoxLayout;
    for (const int degrees : {45, 90, 180}) {
        auto* preset = new CUnitButton(QString::number(degrees), "°", nullptr);
        QObject::connect(preset, &QPushButton::clicked, angle, [=] { angle->SetValue(degrees); });
        presets->addWidget(preset); // the layout gives it its parent
    }
    layout->addWidget(angle);
    layout->addLayout(presets);
    // [/example]
    const QList<CUnitButton*> all = panel->findChildren<CUnitButton*>();
    QCOMPARE(all.size(), 3);
    QCOMPARE(all.first()->size(), QSize(48, 26));
    all.at(1)->click();
    QCOMPARE(angle->GetEditData(), 90.0);
}

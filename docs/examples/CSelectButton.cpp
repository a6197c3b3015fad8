#include <CustomControls/buttons/CSelectButton.h>

#include <tests/documentation/Example.h>

#include <QButtonGroup>
#include <QHBoxLayout>

EXAMPLE(CSelectButton)
{
    // [example]
    auto* row = new QHBoxLayout;
    auto* group = new QButtonGroup(panel); // one of many
    for (const char* name : {"jade", "copper", "metal"}) {
        auto* tile = new CSelectButton(panel);
        tile->setIcon(QString(":/icon/selectbox/material/img_material_%1.png").arg(name));
        tile->setText(name);
        tile->setFixedSize(96, 88);
        group->addButton(tile);
        row->addWidget(tile);
    }
    layout->addLayout(row);
    // [/example]
    QCOMPARE(group->buttons().size(), 3);
    QTest::mouseClick(group->buttons().at(1), Qt::LeftButton);
    QCOMPARE(group->checkedButton(), group->buttons().at(1));
}

#include <CustomControls/menus/CTableComboBox.h>

#include <tests/documentation/Example.h>

#include <QHeaderView>
#include <QTableWidget>

EXAMPLE(CTableComboBox)
{
    // [example]
    auto* table = new QTableWidget(2, 2, panel);
    table->verticalHeader()->setDefaultSectionSize(32);
    for (int row = 0; row < table->rowCount(); ++row) {
        auto* box = new CTableComboBox(table);
        box->addItems({"Conventional", "Climb"});
        table->setCellWidget(row, 1, box);
    }
    layout->addWidget(table);
    // [/example]
    auto* box = qobject_cast<CTableComboBox*>(table->cellWidget(1, 1));
    QVERIFY(box);
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->itemDelegate()->sizeHint(QStyleOptionViewItem(), box->model()->index(0, 0)).height(), 24);
}

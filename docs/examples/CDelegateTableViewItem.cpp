#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <tests/documentation/Example.h>

#include <QTableWidget>

EXAMPLE(CDelegateTableViewItem)
{
    // [example]
    auto* table = new QTableWidget(1, 3, panel);
    table->setItemDelegateForColumn(1, new CDelegateTableViewItem(table)); // columns 1 and 2 only
    auto* item = new QTableWidgetItem(QIcon(":/icon/connect/ico_machine.png"), "Mill 1");
    item->setForeground(QColor("#333333")); // it paints in the colour and the font that the model gives
    table->setItem(0, 1, item);
    layout->addWidget(table);
    // [/example]
    auto* delegate = table->itemDelegateForColumn(1);
    QVERIFY(!delegate->createEditor(table, QStyleOptionViewItem(), table->model()->index(0, 1))); // not for editing
}

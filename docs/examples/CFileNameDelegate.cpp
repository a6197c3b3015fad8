#include <CustomControls/tables/CFileNameDelegate.h>

#include <tests/documentation/Example.h>

#include <QListWidget>

EXAMPLE(CFileNameDelegate)
{
    // [example]
    auto* list = new QListWidget(panel);
    auto* delegate = new CFileNameDelegate(list);
    delegate->SetElideMode(Qt::ElideMiddle); // keeps the ending
    list->setItemDelegate(delegate);
    for (const char* name : {"Gearbox cover, second side.cnc", "Bracket.cnc"}) {
        auto* item = new QListWidgetItem(QIcon(":/icon/connect/ico_machine.png"), name, list);
        item->setSizeHint(QSize(0, 28)); // 24 or more
    }
    layout->addWidget(list);
    // [/example]
    QCOMPARE(list->count(), 2);
    QVERIFY(!delegate->createEditor(list, QStyleOptionViewItem(), list->model()->index(0, 0)));
}

#include <CustomControls/tables/CDelegateLineEdit.h>

#include <tests/documentation/Example.h>

#include <QLineEdit>
#include <QTableWidget>

EXAMPLE(CDelegateLineEdit)
{
    // [example]
    auto* table = new QTableWidget(2, 3, panel);
    auto* numbers = new CDelegateLineEdit(table); // a view does not own its delegates
    table->setItemDelegateForColumn(2, numbers);
    QObject::connect(numbers, &CDelegateLineEdit::SignalDataChanged, window,
                     [=](double value) { window->setWindowTitle(QString::number(value)); });
    layout->addWidget(table);
    // [/example]
    table->setItem(0, 2, new QTableWidgetItem("1.5"));
    table->editItem(table->item(0, 2));
    auto* editor = table->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->setText("12.25");
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(window->windowTitle(), "12.25");
    QTRY_COMPARE(table->item(0, 2)->text(), "12.25");
}

#include <CustomControls/menus/CComboBox.h>

#include <tests/documentation/Example.h>

EXAMPLE(CComboBox)
{
    // [example]
    auto* box = new CComboBox(panel);
    box->SetBoxSize(200, 28, 0);
    for (const char* material : {"Jade", "Wood", "Wax"}) {
        box->AddComboItem(material);
        box->AddItemValue(QString(material).toLower()); // a list of its own, kept in step by the host
    }
    QObject::connect(box, &QComboBox::currentIndexChanged, window,
                     [=](int index) { window->setWindowTitle(box->GetItemValue(index)); });
    layout->addWidget(box);
    // [/example]
    QCOMPARE(box->currentText(), "Jade");
    box->setCurrentIndex(2);
    QCOMPARE(window->windowTitle(), "wax");
    QVERIFY(box->IsItemContained("Wood"));
    QVERIFY(!box->IsItemContained("wood"));
}

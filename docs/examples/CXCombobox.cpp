#include <CustomControls/menus/CXCombobox.h>

#include <tests/documentation/Example.h>

EXAMPLE(CXCombobox)
{
    // [example]
    auto* box = new CXCombobox(nullptr);
    box->addItems({"Conventional", "Climb"});
    layout->addWidget(box); // the layout gives it its parent
    QObject::connect(box, &CXCombobox::SignalFocusOut, window,
                     [=](int index) { window->setWindowTitle(box->itemText(index)); });
    // [/example]
    box->setCurrentIndex(1);
    QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(box, &leaves);
    QCOMPARE(window->windowTitle(), "Climb");
}

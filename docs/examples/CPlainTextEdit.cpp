#include <CustomControls/CustomControls.h>

#include <tests/documentation/Example.h>

#include <QPlainTextEdit>

EXAMPLE(CPlainTextEdit)
{
    const CustomControls library; // what a host uses of the library anyway: it has to be loaded
    // [example]
    // Its header is not installed: it is made by its name, and used as the toolkit's own.
    void* made = QMetaType::fromName("CPlainTextEdit").create();
    auto* notes = qobject_cast<QPlainTextEdit*>(static_cast<QObject*>(made));
    layout->addWidget(notes);
    notes->setPlainText("G0 X0 Y0");
    // [/example]
    QCOMPARE(notes->metaObject()->className(), "CPlainTextEdit");
    QVERIFY(!notes->toPlainText().isEmpty());
}

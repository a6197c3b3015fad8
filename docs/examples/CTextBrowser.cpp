#include <CustomControls/CustomControls.h>

#include <tests/documentation/Example.h>

#include <QTextBrowser>

EXAMPLE(CTextBrowser)
{
    const CustomControls library; // what a host uses of the library anyway: it has to be loaded
    // [example]
    // Its header is not installed: it is made by its name, and used as the toolkit's own.
    void* made = QMetaType::fromName("CTextBrowser").create();
    auto* manual = qobject_cast<QTextBrowser*>(static_cast<QObject*>(made));
    layout->addWidget(manual);
    manual->setHtml("<h3>Zeroing</h3><p>Move the tool to the stock's corner.</p>");
    // [/example]
    QCOMPARE(manual->metaObject()->className(), "CTextBrowser");
    QVERIFY(!manual->toPlainText().isEmpty());
}

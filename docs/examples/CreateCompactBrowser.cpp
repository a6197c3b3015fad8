#include <CustomControls/buttons/CompactBrowser.h>

#include <tests/documentation/Example.h>

#include <QTextBrowser>

EXAMPLE(CreateCompactBrowser)
{
    // [example]
    QTextBrowser* text = CreateCompactBrowser(
        280, "Zero the tool before you start the job. The spindle has to stand still, and the cover has to be closed.");
    layout->addWidget(text); // from here on the panel owns it
    // [/example]
    QCOMPARE(text->width(), 280);
    QTRY_VERIFY(text->height() > text->fontMetrics().height()); // as high as its lines, once the event loop has run
    QVERIFY(text->isReadOnly());
}

#include <CustomControls/frameless/FramelessDialog.h>

#include <tests/documentation/Example.h>

#include <QDialogButtonBox>
#include <QLabel>

EXAMPLE(FramelessDialog)
{
    // [example]
    auto* dialog = new FramelessDialog(window);
    auto* bar = new QLabel("  Tool library", dialog);
    bar->setFixedHeight(32);
    auto* rows = new QVBoxLayout(dialog);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(bar);
    rows->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok, dialog));
    dialog->setTitleBar(bar); // where its child widgets are not
    dialog->open();
    // [/example]
    QVERIFY(dialog->windowFlags().testFlag(Qt::FramelessWindowHint));
    QTRY_VERIFY(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(dialog->isVisible()); // Escape never closes it
}

#include <CustomControls/machine/CFixedSizePopWidget.h>

#include <tests/documentation/Example.h>

#include <QLabel>

namespace {
// [example]
class RenameBox : public CFixedSizePopWidget
{
public:
    using CFixedSizePopWidget::CFixedSizePopWidget;

private:
    QSize GetTitleSize() override { return {width(), 32}; } // this strip moves the window
    void SlotClose() override { close(); }
    void SlotConfirm() override { setWindowTitle("renamed"), close(); }
};

// [/example]
} // namespace

EXAMPLE(CFixedSizePopWidget)
{
    // [example]
    auto* box = new RenameBox(window);
    box->setFixedSize(320, 120);
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(new QLabel("Return renames, Escape leaves.", box));
    box->show();
    // [/example]
    QVERIFY(box->isWindow());
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(box->windowTitle(), "renamed");
    QVERIFY(!box->isVisible());
}

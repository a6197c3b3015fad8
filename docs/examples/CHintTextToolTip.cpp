#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintTextToolTip.h>

#include <tests/documentation/Example.h>

EXAMPLE(CHintTextToolTip)
{
    // [example]
    auto* first = new CHintButton(panel);
    auto* note = new CHintTextToolTip(first, window);
    note->setText("Both values count from the stock's upper face.");
    first->setText("?");
    first->SetToolTip(note); // as the button of SetToolTipText() would have it, but the host's
    layout->addWidget(first);
    // [/example]
    first->ShowToolTip(false);
    QVERIFY(note->isVisible());
    QVERIFY(note->width() <= 370);
    first->HideToolTip();
}

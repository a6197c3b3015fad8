#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintToolTip.h>
#include <CustomControls/buttons/CompactBrowser.h>

#include <tests/documentation/Example.h>

#include <QTextBrowser>

namespace {
// [example]
class PictureNote : public CHintToolTip
{
public:
    PictureNote(QWidget* button, QWidget* parent)
        : CHintToolTip(button, parent)
    {
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(CreateCompactBrowser(240, "Zero the tool before you start the job."));
    }
};

// [/example]
} // namespace

EXAMPLE(CHintToolTip)
{
    // [example]
    auto* hint = new CHintButton(panel);
    auto* note = new PictureNote(hint, window);
    hint->setText("?");
    hint->SetToolTip(note); // the note stays the host's
    layout->addWidget(hint);
    // [/example]
    hint->ShowToolTip(true);
    QVERIFY(note->isVisible());
    QVERIFY(hint->IsToolTipVisible());
    hint->HideToolTip();
}

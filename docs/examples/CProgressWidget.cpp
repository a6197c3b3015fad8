#include <CustomControls/CProgressWidget/CProgressWidget.h>

#include <tests/documentation/Example.h>

#include <QPointer>

namespace {
void RebuildPart(int) {}
} // namespace

EXAMPLE(CProgressWidget)
{
    // [example]
    QPointer<CProgressWidget> progress = CProgressWidget::CreateAutoWidget("Please wait", "Rebuilding");
    for (int part = 1; part <= 4; ++part) {
        RebuildPart(part);
        QCoreApplication::processEvents(); // or the job runs on a thread and tells by signals
        if (progress)
            progress->setText(QString("Part %1 of 4").arg(part));
    }
    CProgressWidget::FreeAutoWidget(progress, true); // harmless when the dialog has gone
    // [/example]
    QTRY_VERIFY(!progress);
}

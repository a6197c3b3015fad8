#include <benchmarks/Comparison.h>
#include <benchmarks/Waiting.h>

#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>

#include <QCoreApplication>
#include <QImage>
#include <QProgressDialog>

#include <memory>

namespace {

const QString kMessage = QStringLiteral("重建中，请稍候");
constexpr int kValue = 40;

const QString kDialogSheet = QStringLiteral(
    "QProgressDialog{background:#f6f6f6;border:1px solid #bbbbbb;border-radius:4px;}"
    "QLabel{background:transparent;border:none;color:#333333;}"
    "QProgressBar::chunk{border-top-left-radius:4px;border-bottom-left-radius:4px;background-color:"
    "qlineargradient(spread:repeat, x1:0.033, y1:0.001, x2:0, y2:0.002 stop:0 #1c9a60, stop:0.5 #1c9a60, "
    "stop:0.501 #1a8e58, stop:1 #1a8e58);}"
    "QProgressBar{border:1px solid rgb(185,185,185);border-radius:5px;background:rgb(219,219,219);}");

std::unique_ptr<QProgressDialog> MakeToolkitDialog(const QString& sheet)
{
    auto dialog = std::make_unique<QProgressDialog>(kMessage, QString(), 0, 100);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    dialog->setAutoClose(false);
    dialog->setMinimumWidth(580);
    dialog->setStyleSheet(sheet);
    return dialog;
}

void Paint(QWidget& dialog)
{
    dialog.show();
    QCoreApplication::processEvents();
    dialog.repaint();
}

Comparison::Run Toolkit(const QString& sheet)
{
    return [sheet](benchmark::State& state) {
        for ([[maybe_unused]] auto step : state) {
            const auto dialog = MakeToolkitDialog(sheet);
            dialog->setValue(kValue);
            Paint(*dialog);
        }
    };
}

void MakeAndShow(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state) {
        CProgressWidget dialog(nullptr);
        dialog.setText(kMessage);
        dialog.setValue(kValue, true);
        Paint(dialog);
    }
}

double WaitWithDialog(int value)
{
    CProgressWidget dialog(nullptr);
    dialog.setText(kMessage);
    dialog.setValue(value, true);
    dialog.show();
    return Waiting::ProcessorTimeOfASecond();
}

template <typename Bar>
Comparison::Run PaintBar(bool ownText)
{
    return [ownText](benchmark::State& state) {
        Bar bar;
        bar.setTextVisible(!ownText);
        bar.resize(396, 24);
        bar.setMaximum(100);
        bar.setValue(50);
        QImage image(bar.size(), QImage::Format_ARGB32_Premultiplied);
        for ([[maybe_unused]] auto step : state) {
            bar.render(&image);
        }
    };
}

const Comparison open = Comparison("progress dialog: make, show, paint")
                            .Ours(MakeAndShow)
                            .SameLook(Toolkit(kDialogSheet))
                            .Plain(Toolkit(QString()))
                            .Goal(2.0);

// The counterpart is the animation alone, which any such dialog needs.
const Comparison rest = Comparison("progress dialog: processor time of a second at rest, beside the animation")
                            .Counted([] { return WaitWithDialog(0); }, Waiting::ProcessorTimeOfAnimation);

const Comparison striped = Comparison("progress dialog: the same with moving stripes")
                               .Counted([] { return WaitWithDialog(kValue); }, Waiting::ProcessorTimeOfAnimation);

const Comparison bar = Comparison("progress bar: paint with a two-coloured text")
                           .Ours(PaintBar<CProgressBar>(true))
                           .SameLook(PaintBar<QProgressBar>(false))
                           .Goal(2.0);

} // namespace

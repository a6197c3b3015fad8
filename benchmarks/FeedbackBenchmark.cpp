#include <benchmarks/Comparison.h>

#include <CustomControls/buttons/CHintTextToolTip.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace {

const QString kText = QStringLiteral("双击模型进行编辑");

void ShowAndPaint(QWidget& window)
{
    window.show();
    window.repaint();
}

// What a host would build by hand: a frameless window with a label in it.
void ShowLabelWindow(Qt::WindowFlags flags, const QString& sheet)
{
    QWidget window(nullptr, flags | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setStyleSheet(sheet);
    auto* layout = new QHBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(kText, &window));
    ShowAndPaint(window);
}

Comparison::Run LabelWindow(Qt::WindowFlags flags, const QString& sheet)
{
    return [flags, sheet](benchmark::State& state) {
        for ([[maybe_unused]] auto step : state) {
            ShowLabelWindow(flags, sheet);
        }
    };
}

const QString kToastSheet =
    QStringLiteral("QLabel{background:#DB2E2E;border-radius:6px;color:#FFFFFF;font-size:30px;}");
const QString kTipSheet = QStringLiteral("QLabel{background:rgba(24,24,24,220);border:1px solid "
                                         "rgb(45,45,45);border-radius:4px;color:#eeeeee;padding:12px;}");
const QString kNoteSheet = QStringLiteral(
    "QLabel{color:#333333;padding:6px 8px;background:#FFFFFF;border:1px solid #E0E0E0;border-radius:4px;}");

const Comparison toast = Comparison("toast: make, show, paint")
                             .Ours([](benchmark::State& state) {
                                 for ([[maybe_unused]] auto step : state) {
                                     ToastWidget toast(ToastWidget::ToastModelEdit, nullptr, QString());
                                     ShowAndPaint(toast);
                                 }
                             })
                             .SameLook(LabelWindow(Qt::Tool, kToastSheet))
                             .Plain(LabelWindow(Qt::Tool, QString()))
                             .Goal(2.0);

const Comparison frostedTip = Comparison("frosted tip: make, show, paint")
                                  .Ours([](benchmark::State& state) {
                                      for ([[maybe_unused]] auto step : state) {
                                          CFrostedToolTip tip(kText, nullptr);
                                          ShowAndPaint(tip);
                                      }
                                  })
                                  .SameLook(LabelWindow(Qt::ToolTip, kTipSheet))
                                  .Plain(LabelWindow(Qt::ToolTip, QString()))
                                  .Goal(2.0);

const Comparison note = Comparison("hint note: make, show, paint")
                            .Ours([](benchmark::State& state) {
                                for ([[maybe_unused]] auto step : state) {
                                    CHintTextToolTip note(nullptr, nullptr);
                                    note.setText(kText);
                                    ShowAndPaint(note);
                                }
                            })
                            .SameLook(LabelWindow(Qt::Tool, kNoteSheet))
                            .Plain(LabelWindow(Qt::Tool, QString()))
                            .Goal(2.0);

// The mouse over a button, as the application delivers it: with a note shown, each event passes the note first.
void MoveOverButton(benchmark::State& state)
{
    QPushButton button;
    button.resize(100, 40);
    for ([[maybe_unused]] auto step : state) {
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 20), QPointF(50, 20), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &move);
    }
}

const Comparison events = Comparison("hint note: an event of the application beside a shown note")
                              .Ours([](benchmark::State& state) {
                                  CHintTextToolTip note(nullptr, nullptr);
                                  note.setText(kText);
                                  note.show();
                                  MoveOverButton(state);
                              })
                              .SameLook(MoveOverButton)
                              .Goal(1.05);

Comparison::Run ResizeWatermark(int step)
{
    return [step](benchmark::State& state) {
        CWatermarkWidget watermark;
        watermark.resize(800, 500);
        watermark.ShowWatermark();
        int width = 800;
        for ([[maybe_unused]] auto round : state) {
            width = width == 800 ? 800 + step : 800;
            watermark.resize(width, 500);
            watermark.AdjustWatermark(true);
        }
    };
}

// Beside the one that has to tile again.
const Comparison watermark =
    Comparison("watermark: resize by one pixel").Ours(ResizeWatermark(1)).SameLook(ResizeWatermark(10)).Goal(0.5);

} // namespace

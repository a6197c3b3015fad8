#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CHintTextToolTip.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include <memory>

namespace {

const QString kText = QStringLiteral("双击模型进行编辑");
constexpr int kEvents = 1000;
constexpr double kEventGoal = 1.05;
constexpr double kResizeGoal = 0.5;

constexpr char kToastLook[] = "QLabel{background:#DB2E2E;border-radius:6px;color:#FFFFFF;font-size:30px;}";
constexpr char kTipLook[] = "QLabel{background:rgba(24,24,24,220);border:1px solid rgb(45,45,45);border-radius:4px;"
                            "color:#eeeeee;padding:12px;}";
constexpr char kNoteLook[] = "QLabel{color:#333333;padding:6px 8px;background:#FFFFFF;border:1px solid #E0E0E0;"
                             "border-radius:4px;}";

// What a host would build by hand: a frameless window with a label in it.
QWidget* LabelWindow(Qt::WindowFlags flags, const char* sheet)
{
    auto* window = new QWidget(nullptr, flags | Qt::FramelessWindowHint);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setAttribute(Qt::WA_TranslucentBackground);
    if (sheet) {
        window->setStyleSheet(QLatin1String(sheet));
    }
    auto* layout = new QHBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(kText, window));
    return window;
}

void AddNotice(const char* name, const std::function<QWidget*()>& ours, Qt::WindowType type, const char* look,
               bool opensAgain)
{
    Cast cast{name, "QLabel in a window"};
    cast.subjects[VariantOurs].make = [ours](QWidget*) {
        QWidget* notice = ours();
        notice->setAttribute(Qt::WA_DeleteOnClose, false);
        return notice;
    };
    cast.subjects[VariantSameLook].make = [type, look](QWidget*) { return LabelWindow(type, look); };
    cast.subjects[VariantPlain].make = [type](QWidget*) { return LabelWindow(type, nullptr); };
    cast.bWindow = true;
    cast.bOpens = opensAgain;
    Life::AddComparisons(cast);
}

// The mouse over a button, as the application delivers it: with a note shown, each event passes the note first.
Comparison::Round MoveOverButton(bool withNote)
{
    return [withNote](Ledger& ledger) {
        std::unique_ptr<CHintTextToolTip> note;
        if (withNote) {
            note = std::make_unique<CHintTextToolTip>(nullptr, nullptr);
            note->setText(kText);
            note->show();
        }
        QPushButton button;
        button.resize(100, 40);
        ledger.Measure("a thousand events", [&button] {
            for (int i = 0; i < kEvents; ++i) {
                QMouseEvent move(QEvent::MouseMove, QPointF(50, 20), QPointF(50, 20), Qt::NoButton, Qt::NoButton,
                                 Qt::NoModifier);
                QCoreApplication::sendEvent(&button, &move);
            }
        });
    };
}

Comparison::Round ResizeWatermark(int step)
{
    return [step](Ledger& ledger) {
        CWatermarkWidget watermark;
        watermark.resize(800, 500);
        watermark.ShowWatermark();
        ledger.Measure("resize", [&] {
            for (const int width : {800 + step, 800}) {
                watermark.resize(width, 500);
                watermark.AdjustWatermark(true);
            }
        });
    };
}

} // namespace

void AddNoticeComparisons()
{
    AddNotice(
        "hint note",
        [] {
            auto* note = new CHintTextToolTip(nullptr, nullptr);
            note->setText(kText);
            return note;
        },
        Qt::Tool, kNoteLook, true);
    AddNotice(
        "frosted tip", [] { return new CFrostedToolTip(kText, nullptr); }, Qt::ToolTip, kTipLook, true);
    AddNotice(
        "toast", [] { return new ToastWidget(ToastWidget::ToastModelEdit, nullptr, QString()); }, Qt::Tool, kToastLook,
        true);
    Comparison::Add({"hint note on the screen",
                     "no note",
                     {MoveOverButton(true), MoveOverButton(false), nullptr},
                     {{"a thousand events", kEventGoal}}});
    Comparison::Add({"watermark, by one pixel",
                     "by so many that it has to tile again",
                     {ResizeWatermark(1), ResizeWatermark(10), nullptr},
                     {{"resize", kResizeGoal}}});
}

#include <benchmarks/Idle.h>

#include <benchmarks/IdleApplication.h>
#include <benchmarks/Life.h>
#include <benchmarks/Meter.h>

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QEventLoop>
#include <QLabel>
#include <QMovie>
#include <QTimer>

#include <memory>

namespace {

constexpr QSize kStage(900, 700);
constexpr int kSettleMs = 500;
constexpr int kIdleMs = 10000;
constexpr int kWaitMs = 1000;
constexpr int kWaitRounds = 3;
constexpr int kQuickMs = 100;
constexpr int kValue = 40;

const QString kText = QStringLiteral("重建中，请稍候");

void Spin(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(Comparison::IsQuick() ? kQuickMs : ms, &loop, &QEventLoop::quit);
    loop.exec();
}

void BookWaiting(Ledger& ledger)
{
    Spin(kSettleMs);
    ledger.Measure("a second of waiting", [] { Spin(kWaitMs); });
}

// The picture that each of the dialogs shows, by the toolkit's own means, and nothing else.
void WaitWithAnimation(Ledger& ledger)
{
    QLabel label;
    QMovie movie(QStringLiteral(":/icon/gif_pop_bac.gif"));
    label.setMovie(&movie);
    movie.start();
    label.show();
    BookWaiting(ledger);
}

void WaitWithProgress(Ledger& ledger, int value)
{
    CProgressWidget dialog(nullptr);
    dialog.setText(kText);
    dialog.setValue(value, true);
    dialog.show();
    BookWaiting(ledger);
}

void WaitWithBox(Ledger& ledger)
{
    const CVelmarMessageBox box(nullptr, 0, MsgIconLoading, kText, kText, false, false, {});
    BookWaiting(ledger);
}

void AddWaiting(const char* name, const Comparison::Round& ours)
{
    Comparison::Add({name, "the bare animation", {ours, WaitWithAnimation, nullptr}, {}, kWaitRounds, false, false});
}

} // namespace

std::vector<Line> Idle::Run()
{
    auto* const application = static_cast<IdleApplication*>(QCoreApplication::instance());
    std::vector<std::unique_ptr<QWidget>> widgets;
    std::vector<Line> lines;
    for (const Cast& cast : Life::Casts()) {
        Line& line = lines.emplace_back();
        line.strControl = cast.strControl;
        line.strPhase = "ten seconds at rest";
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Cast& cast = Life::Casts()[i];
        for (int variant = 0; variant < VariantCount; ++variant) {
            const Subject& subject = cast.subjects[variant];
            if (!subject.make) {
                continue;
            }
            QWidget* window = nullptr;
            if (!cast.bWindow) {
                window = widgets.emplace_back(std::make_unique<QWidget>()).get();
                window->resize(kStage);
                window->show();
            }
            QWidget* widget = subject.make(window);
            if (!window) {
                window = widgets.emplace_back(widget).get();
            }
            if (subject.show) {
                subject.show(widget);
            } else {
                widget->show();
            }
            application->Watch(window, &lines[i].dCosts[variant]);
        }
    }
    Spin(kSettleMs);
    application->SetWatching(true);
    Spin(kIdleMs);
    application->SetWatching(false);
    while (!widgets.empty()) {
        widgets.pop_back();
    }
    return lines;
}

void Idle::AddWaitingDialogs()
{
    AddWaiting("loading box", WaitWithBox);
    AddWaiting("progress dialog at rest", [](Ledger& ledger) { WaitWithProgress(ledger, 0); });
    AddWaiting("progress dialog with moving stripes", [](Ledger& ledger) { WaitWithProgress(ledger, kValue); });
}

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

// A control on a window of its own, or as one, on the screen.
class Shown
{
public:
    Shown(const Cast& cast, const Subject& subject)
    {
        if (!cast.bWindow) {
            m_pWindow = std::make_unique<QWidget>();
            m_pWindow->resize(kStage);
            m_pWindow->show();
        }
        QWidget* widget = subject.make(m_pWindow.get());
        if (!m_pWindow) {
            m_pWindow.reset(widget);
        }
        if (subject.show) {
            subject.show(widget);
        } else {
            widget->show();
        }
    }
    QWidget* Window() const { return m_pWindow.get(); }

private:
    std::unique_ptr<QWidget> m_pWindow;
};

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
    std::vector<Line> lines;
    for (const Cast& cast : Life::Casts()) {
        Line& line = lines.emplace_back();
        line.strControl = cast.strControl;
        line.strPhase = "ten seconds at rest";
    }
    const auto forEach = [&lines](bool animated, const auto& rest) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const Cast& cast = Life::Casts()[i];
            for (int variant = 0; variant < VariantCount; ++variant) {
                const Subject& subject = cast.subjects[variant];
                if (subject.make && cast.bAnimated == animated) {
                    rest(cast, subject, lines[i].dCosts[variant]);
                }
            }
        }
    };
    forEach(true, [](const Cast& cast, const Subject& subject, double& seconds) {
        const Shown shown(cast, subject);
        Spin(kSettleMs);
        Meter::Start();
        Spin(kIdleMs);
        seconds = Meter::Stop("idle");
    });
    std::vector<Shown> shown;
    forEach(false, [&](const Cast& cast, const Subject& subject, double& seconds) {
        application->Watch(shown.emplace_back(cast, subject).Window(), &seconds);
    });
    Spin(kSettleMs);
    application->SetWatching(true);
    Spin(kIdleMs);
    application->SetWatching(false);
    while (!shown.empty()) {
        shown.pop_back();
    }
    return lines;
}

void Idle::AddWaitingDialogs()
{
    AddWaiting("loading box", WaitWithBox);
    AddWaiting("progress dialog at rest", [](Ledger& ledger) { WaitWithProgress(ledger, 0); });
    AddWaiting("progress dialog with moving stripes", [](Ledger& ledger) { WaitWithProgress(ledger, kValue); });
}

#include <benchmarks/Life.h>

#include <benchmarks/Meter.h>

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <memory>

namespace {

constexpr QSize kStage(900, 700);
constexpr int kRepaints = 10;
constexpr int kChanges = 5;
constexpr int kOpenings = 3;
constexpr int kInstances = 20;

// Sizes of growth, and how often each is filled, so that small ones take time that a clock can tell.
struct Growth
{
    int iEntries;
    int iTimes;
};
constexpr Growth kGrowths[] = {{10, 20}, {100, 8}, {1000, 2}, {10000, 1}};
constexpr int kQuickEntries = 100;
constexpr int kGrowthRounds = 1;

std::vector<Cast>& Registry()
{
    static std::vector<Cast> casts;
    return casts;
}

void Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// A control on a window of its own, or as one.
class Stage
{
public:
    Stage(const Subject& subject, bool isWindow)
        : m_subject(subject)
        , m_bWindow(isWindow)
    {
        m_window.resize(kStage);
        if (!m_bWindow) {
            m_window.show();
            Life::PaintNow(&m_window);
        }
    }
    ~Stage()
    {
        delete m_pWidget.data();
        Settle();
    }
    Q_DISABLE_COPY_MOVE(Stage)

    void Make() { m_pWidget = m_subject.make(m_bWindow ? nullptr : &m_window); }
    void Show()
    {
        if (m_subject.show) {
            m_subject.show(m_pWidget);
        } else {
            m_pWidget->show();
        }
        QCoreApplication::sendPostedEvents();
    }
    void Paint() { Life::PaintNow(m_pWidget); }
    void Change(bool on)
    {
        m_subject.change(m_pWidget, on);
        Paint();
    }
    void Open()
    {
        if (m_subject.open) {
            m_subject.open(m_pWidget);
        } else {
            Show();
        }
        Life::PaintNow(m_subject.popup ? m_subject.popup(m_pWidget) : m_pWidget.data());
    }
    void Close()
    {
        if (m_subject.close) {
            m_subject.close(m_pWidget);
        } else {
            m_pWidget->hide();
        }
        if (m_bWindow) {
            QCoreApplication::processEvents();
        } else {
            Life::PaintNow(&m_window);
        }
    }
    QWidget* Widget() const { return m_pWidget; }

private:
    const Subject& m_subject;
    bool m_bWindow;
    QWidget m_window;
    QPointer<QWidget> m_pWidget;
};

Comparison::Round LifeOf(const Cast& cast, const Subject& subject)
{
    return [cast, subject](Ledger& ledger) {
        Stage stage(subject, cast.bWindow);
        double onScreen = ledger.Measure("make", [&] { stage.Make(); });
        if (cast.bShowIsOpening) {
            onScreen += ledger.Measure("first opening", [&] {
                stage.Show();
                stage.Paint();
            });
        } else {
            onScreen += ledger.Measure("show", [&] { stage.Show(); });
            onScreen += ledger.Measure("first paint", [&] { stage.Paint(); });
        }
        ledger.Book("all up to here", onScreen);
        ledger.Measure(
            "repaint", [&] { stage.Widget()->repaint(); }, kRepaints);
        if (subject.change) {
            stage.Change(true);
            stage.Change(false);
            const auto change = [&] {
                stage.Change(true);
                stage.Change(false);
            };
            ledger.Measure("state change", change, kChanges);
        }
        if (cast.bOpens) {
            if (subject.open) {
                ledger.Measure("first opening", [&] { stage.Open(); });
            }
            stage.Close();
            for (int i = 0; i < kOpenings; ++i) {
                ledger.Measure("open", [&] { stage.Open(); });
                ledger.Measure("close", [&] { stage.Close(); });
            }
        }
    };
}

// What several together take, on one window: what they share doesn't count.
double BytesOfInstance(const Cast& cast, const Subject& subject)
{
    QWidget window;
    window.resize(kStage);
    window.show();
    Life::PaintNow(&window);
    std::vector<std::unique_ptr<QWidget>> widgets;
    const int instances = Comparison::IsQuick() ? 1 : kInstances;
    widgets.reserve(std::size_t(instances));
    const double before = Meter::AllocatedBytes();
    for (int i = 0; i < instances; ++i) {
        QWidget* widget = widgets.emplace_back(subject.make(cast.bWindow ? nullptr : &window)).get();
        if (subject.show) {
            subject.show(widget);
        } else {
            widget->show();
        }
        Life::PaintNow(widget);
    }
    const double bytes = (Meter::AllocatedBytes() - before) / instances;
    widgets.clear();
    Settle();
    return bytes;
}

Comparison::Round MemoryOf(const Cast& cast, const Subject& subject)
{
    return [cast, subject](Ledger& ledger) {
        if (!Comparison::IsQuick()) {
            BytesOfInstance(cast, subject); // fills caches
        }
        ledger.Book("memory", BytesOfInstance(cast, subject));
    };
}

Comparison::Round GrowthOf(const Cast& cast, const Subject& subject)
{
    return [cast, subject](Ledger& ledger) {
        for (const Growth& growth : kGrowths) {
            const int times = Comparison::IsQuick() ? 1 : growth.iTimes;
            if (Comparison::IsQuick() && growth.iEntries > kQuickEntries) {
                break;
            }
            const std::string phase = "entry of " + std::to_string(growth.iEntries);
            double cost = 0.0;
            for (int i = 0; i < times; ++i) {
                Stage stage(subject, cast.bWindow);
                stage.Make();
                if (cast.bGrowsOpen) {
                    stage.Show();
                    stage.Paint();
                }
                Meter::Start();
                subject.fill(stage.Widget(), 0, growth.iEntries);
                QCoreApplication::sendPostedEvents();
                cost += Meter::Stop(cast.strControl + '/' + phase);
            }
            ledger.Book(phase, cost / times / growth.iEntries);
        }
    };
}

} // namespace

void Life::PaintNow(QWidget* widget)
{
    QWidget* const window = widget->window();
    QCoreApplication::processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window, &update);
}

void Life::AddComparisons(const Cast& cast)
{
    if (!cast.bGrowthOnly) {
        Registry().push_back(cast);
    }
    Comparison life{cast.strControl, cast.strCounterpart, {}, cast.goals};
    Comparison memory{cast.strControl, cast.strCounterpart, {}, cast.goals, 1, false, false};
    Comparison growth{cast.strControl, cast.strCounterpart, {}, cast.goals, kGrowthRounds, false, false};
    bool grows = false;
    for (int variant = 0; variant < VariantCount; ++variant) {
        const Subject& subject = cast.subjects[variant];
        if (!subject.make) {
            continue;
        }
        life.rounds[variant] = LifeOf(cast, subject);
        memory.rounds[variant] = MemoryOf(cast, subject);
        if (subject.fill) {
            growth.rounds[variant] = GrowthOf(cast, subject);
            grows = true;
        }
    }
    if (!cast.bGrowthOnly) {
        Comparison::Add(life);
        Comparison::Add(memory);
    }
    if (grows) {
        Comparison::Add(growth);
    }
}

const std::vector<Cast>& Life::Casts()
{
    return Registry();
}

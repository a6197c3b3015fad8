#include <benchmarks/Comparison.h>

#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPushButton>

#include <memory>
#include <utility>

namespace {

constexpr int kPlainEntries = 5;
constexpr int kScrollingEntries = 20;
constexpr int kFew = 100;
constexpr int kMany = 10000;

constexpr char kLook[] =
    "QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}"
    "QComboBox:hover,QComboBox:on{border:2px solid #0071bc;padding-left:5px;}"
    "QComboBox::drop-down{width:24px;background:transparent;border-left:0px;}"
    "QComboBox QAbstractItemView{background:#212024;color:#c7cfd6;border:1px solid #151515;"
    "selection-background-color:#0071bc;}"
    "QComboBox QAbstractItemView::item{height:30px;padding-left:8px;}";

QString Text(int entry)
{
    return QStringLiteral("entry %1").arg(entry);
}

// The window system lets a widget wait some milliseconds for its painting; a pop-up of its own is painted at once. Both
// are made to paint here and now, so that the same work is compared.
void PaintNow(QWidget* window)
{
    QCoreApplication::processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window, &update);
}

// Whether anything of what opened was painted since it was asked last.
class PaintWatch : public QObject
{
public:
    void Watch(QWidget* watched) { watched->installEventFilter(this); }

    bool TakePainted() { return std::exchange(m_bPainted, false); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_bPainted = m_bPainted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_bPainted = false;
};

class OurBox
{
public:
    explicit OurBox(int entries)
        : m_pBox(new CComboBox(&m_window))
    {
        m_window.resize(600, 500);
        m_pBox->SetBoxSize(200, 28, 0);
        for (int entry = 0; entry < entries; ++entry) {
            m_pBox->AddComboItem(Text(entry));
        }
        m_pList = m_window.findChild<CVelmarMenu*>();
        m_watch.Watch(m_pList->MenuButton(0));
        m_window.show();
        PaintNow(&m_window);
    }

    bool Open()
    {
        m_pBox->showPopup();
        PaintNow(&m_window);
        return m_watch.TakePainted();
    }

    void Close()
    {
        m_pBox->hidePopup();
        PaintNow(&m_window);
    }

private:
    QWidget m_window;
    CComboBox* m_pBox;
    CVelmarMenu* m_pList;
    PaintWatch m_watch;
};

template <bool sameLook>
class ToolkitBox
{
public:
    explicit ToolkitBox(int entries)
        : m_pBox(new QComboBox(&m_window))
    {
        m_window.resize(600, 500);
        m_pBox->setFixedSize(200, 28);
        if (sameLook) {
            m_pBox->setStyleSheet(QLatin1String(kLook));
        }
        for (int entry = 0; entry < entries; ++entry) {
            m_pBox->addItem(Text(entry));
        }
        m_watch.Watch(m_pBox->view()->viewport());
        m_window.show();
        PaintNow(&m_window);
    }

    bool Open()
    {
        m_pBox->showPopup();
        PaintNow(m_pBox->view()->window());
        return m_watch.TakePainted();
    }

    void Close()
    {
        m_pBox->hidePopup();
        PaintNow(&m_window);
    }

private:
    QWidget m_window;
    QComboBox* m_pBox;
    PaintWatch m_watch;
};

// An opening up to the moment when the list is painted.
template <class Box>
Comparison::Run OpenAgain(int entries)
{
    return [entries](benchmark::State& state) {
        Box box(entries);
        if (!box.Open()) {
            state.SkipWithError("the list is not painted");
        }
        box.Close();
        for ([[maybe_unused]] auto step : state) {
            box.Open();
            state.PauseTiming();
            box.Close();
            state.ResumeTiming();
        }
    };
}

// The first opening alone, in which the list's widgets get their looks.
template <class Box>
Comparison::Run OpenFirst(int entries)
{
    return [entries](benchmark::State& state) {
        for ([[maybe_unused]] auto step : state) {
            state.PauseTiming();
            auto box = std::make_unique<Box>(entries);
            state.ResumeTiming();
            if (!box->Open()) {
                state.SkipWithError("the list is not painted");
                return;
            }
            state.PauseTiming();
            box.reset();
            state.ResumeTiming();
        }
    };
}

enum Filling
{
    FillingClosed,
    FillingOpen,
    // Open, and the event loop turns after each row, as with rows that come from elsewhere.
    FillingOpenOneByOne,
};

template <typename Add>
double SecondsToFill(int entries, Filling filling, Add add)
{
    QElapsedTimer timer;
    timer.start();
    for (int entry = 0; entry < entries; ++entry) {
        add(Text(entry));
        if (filling == FillingOpenOneByOne) {
            QCoreApplication::processEvents();
        }
    }
    // What the additions left for the event loop counts too.
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) / 1e9;
}

Comparison Growth(const char* name, double (*fill)(int rows, Filling filling), Filling filling)
{
    return Comparison(name).Growth([fill, filling](int rows) { return fill(rows, filling); }, kFew, kMany).Goal(1.5);
}

struct MenuStage
{
    explicit MenuStage(Filling filling)
    {
        window.resize(600, 500);
        menu.hide();
        window.show();
        if (filling != FillingClosed) {
            menu.show();
        }
        QCoreApplication::processEvents();
    }

    QWidget window;
    CVelmarMenu menu{&window};
};

double FillPlain(int rows, Filling filling)
{
    MenuStage stage(filling);
    return SecondsToFill(rows, filling, [&stage](const QString& text) { stage.menu.AddDefaultButton(text); });
}

double FillScrolling(int rows, Filling filling)
{
    MenuStage stage(filling);
    return SecondsToFill(rows, filling, [&stage](const QString& text) { stage.menu.AddListWidgetButton(text); });
}

double FillItems(int rows, Filling filling)
{
    MenuStage stage(filling);
    return SecondsToFill(rows, filling, [&stage](const QString& text) { stage.menu.AddMenuItem(text, {}, {}); });
}

double FillBox(int entries, Filling filling)
{
    QWidget window;
    window.resize(600, 500);
    CComboBox box(&window);
    box.SetBoxSize(200, 28, 0);
    box.AddComboItem(QStringLiteral("first"));
    if (filling != FillingClosed) {
        window.show();
        box.showPopup();
    }
    QCoreApplication::processEvents();
    return SecondsToFill(entries, filling, [&box](const QString& text) { box.AddComboItem(text); });
}

Comparison OpeningAgain(const char* name, int entries)
{
    return Comparison(name)
        .Ours(OpenAgain<OurBox>(entries))
        .SameLook(OpenAgain<ToolkitBox<true>>(entries))
        .Plain(OpenAgain<ToolkitBox<false>>(entries))
        .Goal(1.0);
}

Comparison OpeningFirst(const char* name, int entries)
{
    return Comparison(name)
        .Ours(OpenFirst<OurBox>(entries))
        .SameLook(OpenFirst<ToolkitBox<true>>(entries))
        .Plain(OpenFirst<ToolkitBox<false>>(entries))
        .Goal(1.0);
}

const Comparison openFirst = OpeningFirst("combo: first opening, 20 entries", kScrollingEntries);
const Comparison openPlain = OpeningAgain("combo: opening, 5 entries", kPlainEntries);
const Comparison openScrolling = OpeningAgain("combo: opening, 20 entries", kScrollingEntries);
const Comparison openMany = OpeningAgain("combo: opening, 10,000 entries", kMany);

const Comparison growPlain = Growth("machine menu: row, closed", FillPlain, FillingClosed);
const Comparison growPlainOpen = Growth("machine menu: row, open", FillPlain, FillingOpen);
const Comparison growList = Growth("machine menu: list row, closed", FillScrolling, FillingClosed);
const Comparison growListOpen = Growth("machine menu: list row, open", FillScrolling, FillingOpen);
const Comparison growListOneByOne =
    Growth("machine menu: list row, open, one by one", FillScrolling, FillingOpenOneByOne);
const Comparison growItems = Growth("machine menu: icon row, closed", FillItems, FillingClosed);
const Comparison growBox = Growth("combo: entry, closed", FillBox, FillingClosed);
const Comparison growBoxOpen = Growth("combo: entry, list open", FillBox, FillingOpen);
const Comparison growBoxOneByOne = Growth("combo: entry, list open, one by one", FillBox, FillingOpenOneByOne);

} // namespace

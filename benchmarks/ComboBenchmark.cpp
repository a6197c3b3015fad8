#include <benchmarks/Comparison.h>

#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>

#include <memory>

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

struct Stage
{
    Stage() { window.resize(600, 500); }

    bool Show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }

    QWidget window;
};

// One opening up to the moment when the list is painted, and its closing.
Comparison::Run OpenOurs(int entries)
{
    return [entries](benchmark::State& state) {
        Stage stage;
        auto* box = new CComboBox(&stage.window);
        box->SetBoxSize(200, 28, 0);
        for (int entry = 0; entry < entries; ++entry) {
            box->AddComboItem(Text(entry));
        }
        auto* list = stage.window.findChild<CVelmarMenu*>();
        if (!stage.Show()) {
            state.SkipWithError("the window does not show");
            return;
        }
        for ([[maybe_unused]] auto step : state) {
            box->showPopup();
            QCoreApplication::processEvents();
            if (!list->isVisible()) {
                state.SkipWithError("the list does not open");
                return;
            }
            list->hide();
            QCoreApplication::processEvents();
        }
    };
}

Comparison::Run OpenToolkit(int entries, bool sameLook)
{
    return [entries, sameLook](benchmark::State& state) {
        Stage stage;
        auto* box = new QComboBox(&stage.window);
        box->setFixedSize(200, 28);
        if (sameLook) {
            box->setStyleSheet(QLatin1String(kLook));
        }
        for (int entry = 0; entry < entries; ++entry) {
            box->addItem(Text(entry));
        }
        if (!stage.Show()) {
            state.SkipWithError("the window does not show");
            return;
        }
        for ([[maybe_unused]] auto step : state) {
            box->showPopup();
            QCoreApplication::processEvents();
            if (!box->view()->isVisible()) {
                state.SkipWithError("the pop-up does not open");
                return;
            }
            box->hidePopup();
            QCoreApplication::processEvents();
        }
    };
}

template <typename Add>
double SecondsToFill(QWidget& window, int entries, bool open, Add add)
{
    if (open) {
        window.show();
    }
    QElapsedTimer timer;
    timer.start();
    for (int entry = 0; entry < entries; ++entry) {
        add(Text(entry));
    }
    // What the additions left for the event loop counts too.
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) / 1e9;
}

double FillPlain(int rows, bool open)
{
    CVelmarMenu menu(nullptr);
    return SecondsToFill(menu, rows, open, [&menu](const QString& text) { menu.AddDefaultButton(text); });
}

double FillScrolling(int rows, bool open)
{
    CVelmarMenu menu(nullptr);
    return SecondsToFill(menu, rows, open, [&menu](const QString& text) { menu.AddListWidgetButton(text); });
}

double FillItems(int rows)
{
    CVelmarMenu menu(nullptr);
    return SecondsToFill(menu, rows, false, [&menu](const QString& text) { menu.AddMenuItem(text, {}, {}); });
}

double FillBox(int entries)
{
    QWidget window;
    CComboBox box(&window);
    return SecondsToFill(window, entries, false, [&box](const QString& text) { box.AddComboItem(text); });
}

const Comparison openPlain = Comparison("combo: open and close, 5 entries")
                                 .Ours(OpenOurs(kPlainEntries))
                                 .SameLook(OpenToolkit(kPlainEntries, true))
                                 .Plain(OpenToolkit(kPlainEntries, false))
                                 .Goal(1.0);

const Comparison openScrolling = Comparison("combo: open and close, 20 entries")
                                     .Ours(OpenOurs(kScrollingEntries))
                                     .SameLook(OpenToolkit(kScrollingEntries, true))
                                     .Plain(OpenToolkit(kScrollingEntries, false))
                                     .Goal(1.0);

const Comparison growPlain = Comparison("machine menu: row, closed")
                                 .Growth([](int rows) { return FillPlain(rows, false); }, kFew, kMany)
                                 .Goal(1.5);
const Comparison growScrolling = Comparison("machine menu: list row, closed")
                                     .Growth([](int rows) { return FillScrolling(rows, false); }, kFew, kMany)
                                     .Goal(1.5);
const Comparison growScrollingOpen = Comparison("machine menu: list row, open")
                                         .Growth([](int rows) { return FillScrolling(rows, true); }, kFew, kMany)
                                         .Goal(1.5);
const Comparison growItems = Comparison("machine menu: icon row, closed").Growth(FillItems, kFew, kMany).Goal(1.5);
const Comparison growBox = Comparison("combo: entry").Growth(FillBox, kFew, kMany).Goal(1.5);

} // namespace

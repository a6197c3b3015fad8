#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace TourLook;

namespace {
/** The list or menu that is open; only one can be. */
CVelmarMenu* List()
{
    return qobject_cast<CVelmarMenu*>(Find(QStringLiteral("CVelmarMenu")));
}

QPushButton* Row(int index)
{
    return List() ? List()->MenuButton(index) : nullptr;
}

QScrollBar* ListScrollBar()
{
    auto* area = List() ? List()->findChild<QScrollArea*>() : nullptr;
    return area && area->isVisible() ? area->verticalScrollBar() : nullptr;
}

QString Outcome(const QString& expected)
{
    return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("comboOutcome")), expected);
}

/** The list stands right under the box and holds so many entries. */
QString IsOpen(const char* box, int entries, bool scrolling)
{
    QWidget* widget = Find(QLatin1String(box));
    if (!widget || !List()) {
        return QStringLiteral("no list is open; ");
    }
    return True(List()->mapToGlobal(QPoint()) == widget->mapToGlobal(QPoint(0, widget->height() + 2)),
                QStringLiteral("the list is not under its box")) +
           True(List()->MenuButtonCount() == entries,
                QStringLiteral("the list has %1 entries").arg(List()->MenuButtonCount())) +
           True(bool(ListScrollBar()) == scrolling, QStringLiteral("the list is of the other form"));
}

QString IsClosed()
{
    return True(!List(), QStringLiteral("the list is still open"));
}

TourStep Open(const QString& step, const char* box, int entries, bool scrolling)
{
    return {step, [box](TourInput& input) { input.Click(Find(QLatin1String(box))); },
            [box, entries, scrolling] { return IsOpen(box, entries, scrolling); }};
}
} // namespace

TourGroup TourCombos(Tour*)
{
    TourGroup group{QStringLiteral("combos"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("combos")));
    steps.push_back(Open(QStringLiteral("open a plain list of five"), "comboTool", 5, false));
    steps.push_back({QStringLiteral("choose an entry"), [](TourInput& input) { input.Click(Row(2)); },
                     [] { return Outcome(QStringLiteral("刀具：球头刀 2 mm")) + IsClosed(); }});
    steps.push_back({QStringLiteral("add a sixth entry"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("comboAddTool"))); },
                     [] {
                         return Equal(QStringLiteral("the count"), Text(QStringLiteral("comboToolCount")),
                                      QStringLiteral("6 把刀具，滚动列表"));
                     }});
    steps.push_back(Open(QStringLiteral("open the scrolling list"), "comboTool", 6, true));
    steps.push_back({QStringLiteral("drag its scroll bar"),
                     [](TourInput& input) {
                         if (QScrollBar* bar = ListScrollBar()) {
                             input.MoveTo(bar, QPoint(3, 10));
                             input.Press();
                             input.MoveTo(bar, QPoint(3, bar->height() / 2));
                             input.MoveTo(bar, QPoint(3, bar->height() - 4));
                             input.Release();
                         }
                     },
                     [] {
                         QScrollBar* bar = ListScrollBar();
                         return True(bar && bar->value() == bar->maximum(), QStringLiteral("it is not at its end"));
                     }});
    steps.push_back({QStringLiteral("choose what came into view"), [](TourInput& input) { input.Click(Row(5)); },
                     [] { return Outcome(QStringLiteral("刀具：备用刀 6 号")) + IsClosed(); }});
    steps.push_back(Open(QStringLiteral("open one box"), "comboMaterial", 4, false));
    steps.push_back(Open(QStringLiteral("open another, which closes the first"), "comboStrategy", 3, false));
    steps.push_back({QStringLiteral("click the box again to close its list"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("comboStrategy"))); }, IsClosed});
    steps.push_back({QStringLiteral("back to five entries"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("comboRemoveTool"))); },
                     [] {
                         return Equal(QStringLiteral("the count"), Text(QStringLiteral("comboToolCount")),
                                      QStringLiteral("5 把刀具，普通列表"));
                     }});
    steps.push_back({QStringLiteral("open a box of the table"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("partMaterial1"))); },
                     [] {
                         auto* box = qobject_cast<QComboBox*>(Find(QStringLiteral("partMaterial1")));
                         return True(box && box->view()->isVisible(), QStringLiteral("its pop-up is not open"));
                     }});
    steps.push_back({QStringLiteral("choose another material"),
                     [](TourInput& input) {
                         input.Key(QStringLiteral("Down"));
                         input.Key(QStringLiteral("Return"));
                     },
                     [] { return Outcome(QStringLiteral("齿轮：亚克力")); }});
    steps.push_back({QStringLiteral("change the spindle's mode"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("spindleMode")));
                         input.Key(QStringLiteral("Down"));
                         input.Key(QStringLiteral("Return"));
                     },
                     [] {
                         auto* box = qobject_cast<QComboBox*>(Find(QStringLiteral("spindleMode")));
                         return True(box && box->currentIndex() == 1 && !box->view()->isVisible(),
                                     QStringLiteral("the second mode is not chosen"));
                     }});
    steps.push_back({QStringLiteral("leave it, which saves"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("machineMenuButton"))); },
                     [] {
                         return Equal(QStringLiteral("the note"), Text(QStringLiteral("spindleSaved")),
                                      QStringLiteral("已保存：自动转速")) +
                                True(List() && List()->MenuItemCount() == 3, QStringLiteral("no menu is open"));
                     }});
    steps.push_back({QStringLiteral("a row of the menu"),
                     [](TourInput& input) { input.Click(List() ? List()->MenuItem(1) : nullptr); },
                     [] { return Outcome(QStringLiteral("机床：回到原点")) + IsClosed(); }});
    return group;
}

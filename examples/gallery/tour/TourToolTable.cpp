#include "../GalleryStyle.h"
#include "Tour.h"
#include "TourLook.h"

#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTableView>

using namespace TourLook;

namespace {
constexpr int TypeColumn = 1;
constexpr int DiameterColumn = 2;

QTableView* Table(const char* name)
{
    return qobject_cast<QTableView*>(Find(QLatin1String(name)));
}

QRect Cell(QTableView* table, int row, int column)
{
    return table ? table->visualRect(table->model()->index(row, column)) : QRect();
}

void ClickCell(TourInput& input, const char* name, int row, int column, int times = 1)
{
    QTableView* table = Table(name);
    for (int i = 0; i < times; ++i) {
        input.Click(table ? table->viewport() : nullptr, Cell(table, row, column).center());
    }
}

/** Empty when the green frame lies over the row. */
QString Framed(const char* name, int row)
{
    QTableView* table = Table(name);
    if (!table) {
        return QStringLiteral("the table does not show; ");
    }
    const QColor seen = ScreenColor(table->viewport(), QPoint(100, Cell(table, row, TypeColumn).top() + 1));
    return Equal(QStringLiteral("the frame of row %1").arg(row), seen.name(), QLatin1String(GalleryStyle::Green));
}

std::function<QString()> Told(const QString& outcome)
{
    return
        [outcome] { return BeginsWith(QStringLiteral("the outcome"), Text(QStringLiteral("toolOutcome")), outcome); };
}
} // namespace

TourGroup TourToolTable(Tour*)
{
    TourGroup group{QStringLiteral("tool-table"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("tool-table")));
    steps.push_back(
        {QStringLiteral("choose an end mill"),
         [](TourInput& input) { ClickCell(input, "roughingTools", 1, TypeColumn); },
         [] { return Told(QStringLiteral("已选择刀具：T2 立铣刀，直径 4 mm"))() + Framed("roughingTools", 1); }});
    steps.push_back({QStringLiteral("a ball end mill is not taken for roughing"),
                     [](TourInput& input) { ClickCell(input, "roughingTools", 3, TypeColumn); },
                     [] {
                         QTableView* table = Table("roughingTools");
                         return True(table && table->currentIndex().row() == 3,
                                     QStringLiteral("the click has not arrived")) +
                                Framed("roughingTools", 1);
                     }});
    steps.push_back({QStringLiteral("choose a ball end mill"),
                     [](TourInput& input) { ClickCell(input, "finishingTools", 3, TypeColumn); },
                     [] { return Told(QStringLiteral("已选择刀具：T4 球头铣刀"))() + Framed("finishingTools", 3); }});
    steps.push_back({QStringLiteral("edit a diameter"),
                     [](TourInput& input) {
                         ClickCell(input, "roughingTools", 1, DiameterColumn, 2);
                         input.Type(QStringLiteral("3.175"));
                     },
                     [] {
                         QWidget* edit = QApplication::focusWidget();
                         return Equal(QStringLiteral("the editor"),
                                      edit ? edit->property("text").toString() : QString(), QStringLiteral("3.175"));
                     }});
    steps.push_back({QStringLiteral("leave it with Return"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     Told(QStringLiteral("已修改刀具：T2 立铣刀，直径 3.175 mm"))});
    steps.push_back({QStringLiteral("confirm the tools"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("confirmTools"))); },
                     [] {
                         auto* list = Box() ? Box()->findChild<QListWidget*>() : nullptr;
                         return Equal(QStringLiteral("the title"), BoxTitle(), QStringLiteral("确认刀具")) +
                                True(list && list->count() == 3, QStringLiteral("there are not two tools"));
                     }});
    steps.push_back({QStringLiteral("answer with Return"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     Told(QStringLiteral("刀具已确认"))});
    return group;
}

TourGroup TourToolConfirmation(Tour*)
{
    TourGroup group{QStringLiteral("tool-confirmation"), QString(), {}, true};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("message-boxes")));
    steps.push_back(
        {QStringLiteral("open boxTools"), [](TourInput& input) { input.Click(Find(QStringLiteral("boxTools"))); },
         [] {
             auto* list = Box() ? Box()->findChild<QListWidget*>() : nullptr;
             if (!list || list->count() != 12) {
                 return QStringLiteral("there is no list of eleven tools; ");
             }
             const auto* name = list->itemWidget(list->item(1))->findChild<QLabel*>(QStringLiteral("toolName"));
             return Equal(QStringLiteral("the first tool"), name ? name->text() : QString(),
                          CorvaneToolBitHelper::instance()->GetToolNameByType(1)) +
                    True(list->verticalScrollBar()->isVisible(), QStringLiteral("the tools cannot be scrolled"));
         }});
    steps.push_back({QStringLiteral("answer with Return"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [] {
                         return True(!Box(), QStringLiteral("the box is still there")) +
                                True(Text(QStringLiteral("boxOutcome")).contains(QStringLiteral("MsgBtnOk")),
                                     QStringLiteral("the outcome is not told"));
                     }});
    return group;
}

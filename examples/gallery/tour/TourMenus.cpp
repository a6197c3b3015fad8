#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QApplication>

using namespace TourLook;

namespace {
constexpr int TextLeft = 30; // behind the icon's column

/** The visible row of that text. */
CCustomMenuItem* Row(const QString& text)
{
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* row = qobject_cast<CCustomMenuItem*>(widget);
        if (row && row->isVisible() && row->text() == text) {
            return row;
        }
    }
    return nullptr;
}

QString Shows(const QString& text, bool shows = true)
{
    return True(
        (Row(text) != nullptr) == shows,
        QStringLiteral("row \"%1\" %2").arg(text, shows ? QStringLiteral("does not show") : QStringLiteral("shows")));
}

QString AllClosed()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (qobject_cast<CCustomMenu*>(widget) && widget->isVisible()) {
            return QStringLiteral("a menu is still open; ");
        }
    }
    return QString();
}

QString Outcome(const QString& text)
{
    return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("menuOutcome")),
                 QStringLiteral("刚才选择：") + text);
}

QString HasColor(QWidget* widget, const QPoint& place, const char* color)
{
    const QColor seen = widget ? ScreenColor(widget, place) : QColor();
    return True(seen == QColor(QLatin1String(color)),
                QStringLiteral("the screen shows %1, not %2").arg(seen.name(), QLatin1String(color)));
}

/** What follows a press on a bar button: its menu below it, and the look that says so. */
QString IsOpen(const char* button, const QString& firstRow)
{
    QWidget* bar = Find(QLatin1String(button));
    return Shows(firstRow) + HasColor(bar, QPoint(3, 3), "#111111") +
           True(bar && Row(firstRow) &&
                    Row(firstRow)->mapToGlobal(QPoint()) - bar->mapToGlobal(QPoint(0, bar->height())) == QPoint(6, 6),
                QStringLiteral("the menu is not below its button"));
}
} // namespace

TourGroup TourMenus(Tour*)
{
    TourGroup group{QStringLiteral("menus"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("menus")));
    steps.push_back({QStringLiteral("press a bar button"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("menuFile"))); },
                     [] {
                         return IsOpen("menuFile", QStringLiteral("新建工程")) + Shows(QStringLiteral("导出 G 代码…")) +
                                True(Row(QStringLiteral("保存")) && !Row(QStringLiteral("保存"))->isEnabled(),
                                     QStringLiteral("there is something to save"));
                     }});
    steps.push_back({QStringLiteral("point at a row with a sub-menu"),
                     [](TourInput& input) { input.MoveTo(Row(QStringLiteral("最近打开"))); },
                     [] {
                         CCustomMenuItem* opener = Row(QStringLiteral("最近打开"));
                         return Shows(QStringLiteral("齿轮箱盖.cnc")) +
                                HasColor(opener, QPoint(TextLeft - 6, opener ? opener->height() - 3 : 0), "#016acb");
                     }});
    steps.push_back({QStringLiteral("choose in the sub-menu"),
                     [](TourInput& input) {
                         // Straight to the right first, as a hand goes.
                         CCustomMenuItem* opener = Row(QStringLiteral("最近打开"));
                         CCustomMenuItem* first = Row(QStringLiteral("支架.cnc"));
                         if (opener && first) {
                             input.MoveTo(opener, QPoint(opener->width() - 4, opener->height() / 2));
                             input.MoveTo(first);
                         }
                         input.Click(Row(QStringLiteral("齿轮箱盖.cnc")));
                     },
                     [] {
                         return AllClosed() + Outcome(QStringLiteral("齿轮箱盖.cnc")) +
                                Equal(QStringLiteral("the project"), Text(QStringLiteral("menuProject")),
                                      QStringLiteral("齿轮箱盖.cnc"));
                     }});
    steps.push_back({QStringLiteral("a state row leaves the menu open"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("menuLook"))); },
                     [] { return IsOpen("menuLook", QStringLiteral("网格")); }});
    steps.push_back({QStringLiteral("switch the axes off"),
                     [](TourInput& input) { input.Click(Row(QStringLiteral("坐标轴"))); },
                     [] {
                         CCustomMenuItem* row = Row(QStringLiteral("坐标轴"));
                         return Outcome(QStringLiteral("坐标轴（关）")) + Shows(QStringLiteral("视角")) +
                                True(row && !row->GetBtnState(), QStringLiteral("the row is still ticked"));
                     }});
    steps.push_back({QStringLiteral("point at the next button"),
                     [](TourInput& input) { input.MoveTo(Find(QStringLiteral("menuEdit"))); },
                     [] { return IsOpen("menuEdit", QStringLiteral("撤销")) + Shows(QStringLiteral("视角"), false); }});
    steps.push_back({QStringLiteral("a disabled row says nothing"),
                     [](TourInput& input) { input.Click(Row(QStringLiteral("重做"))); },
                     [] { return Outcome(QStringLiteral("坐标轴（关）")) + Shows(QStringLiteral("重做")); }});
    steps.push_back({QStringLiteral("point at a disabled button"),
                     [](TourInput& input) { input.MoveTo(Find(QStringLiteral("menuMachine"))); }, AllClosed});
    steps.push_back({QStringLiteral("the menus turn white"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("menuLook"))); },
                     [] { return IsOpen("menuLook", QStringLiteral("网格")); }});
    steps.push_back({QStringLiteral("point at the styles"),
                     [](TourInput& input) { input.MoveTo(Row(QStringLiteral("菜单样式"))); },
                     [] { return Shows(QStringLiteral("白色")); }});
    steps.push_back({QStringLiteral("choose the white one"),
                     [](TourInput& input) {
                         input.MoveTo(Row(QStringLiteral("深色"))); // straight to the right of the row that opened it
                         input.Click(Row(QStringLiteral("白色")));
                     },
                     [] { return AllClosed() + Outcome(QStringLiteral("白色")); }});
    steps.push_back({QStringLiteral("a white menu"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("menuFile"))); },
                     [] {
                         CCustomMenuItem* row = Row(QStringLiteral("另存为…"));
                         return Shows(QStringLiteral("另存为…")) +
                                HasColor(row, QPoint(TextLeft - 6, row ? row->height() - 3 : 0), "#ffffff");
                     }});
    steps.push_back({QStringLiteral("click beside the menu"),
                     [](TourInput& input) {
                         QWidget* view = Find(QStringLiteral("menuView"));
                         input.Click(view, view ? QPoint(view->width() - 20, view->height() - 20) : QPoint());
                     },
                     AllClosed});
    steps.push_back({QStringLiteral("a shortcut"), [](TourInput& input) { input.Key(QStringLiteral("ctrl+x")); },
                     [] {
                         return Outcome(QStringLiteral("剪切")) + Equal(QStringLiteral("the project"),
                                                                        Text(QStringLiteral("menuProject")),
                                                                        QStringLiteral("齿轮箱盖.cnc *"));
                     }});
    return group;
}

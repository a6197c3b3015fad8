#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTextBrowser>

using namespace TourLook;

namespace {
QPlainTextEdit* Notes()
{
    return qobject_cast<QPlainTextEdit*>(Find(QStringLiteral("textNotes")));
}

QTextBrowser* Manual()
{
    return qobject_cast<QTextBrowser*>(Find(QStringLiteral("textManual")));
}

QWidget* Menu()
{
    return Find(QStringLiteral("CCustomMenu"));
}

/** The row of the open context menu at that index. */
QWidget* Row(int index)
{
    auto* menu = qobject_cast<CCustomMenu*>(Menu());
    return menu ? menu->MenuButton(index) : nullptr;
}

QString HasMenu(int rows)
{
    auto* menu = qobject_cast<CCustomMenu*>(Menu());
    return True(menu && menu->MenuButtonCount() == rows, QStringLiteral("no menu of %1 rows is open").arg(rows));
}

QString Clipboard(const QString& beginning)
{
    return BeginsWith(QStringLiteral("the clipboard"), QGuiApplication::clipboard()->text(), beginning) +
           BeginsWith(QStringLiteral("the outcome"), Text(QStringLiteral("textClipboard")),
                      QStringLiteral("剪贴板：") + beginning);
}
} // namespace

TourGroup TourText(Tour*)
{
    TourGroup group{QStringLiteral("text"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("text")));
    steps.push_back(
        {QStringLiteral("open the editor's menu"),
         [](TourInput& input) { input.RightClick(Notes() ? Notes()->viewport() : nullptr, QPoint(120, 90)); },
         [] {
             return HasMenu(4) + True(Row(0) && !Row(0)->isEnabled() && Row(3)->isEnabled(),
                                      QStringLiteral("without a selection nothing can be cut"));
         }});
    steps.push_back({QStringLiteral("select all"), [](TourInput& input) { input.Click(Row(3)); },
                     [] {
                         return True(Notes() && Notes()->textCursor().hasSelection() && !Menu(),
                                     QStringLiteral("nothing is selected"));
                     }});
    steps.push_back(
        {QStringLiteral("cut"),
         [](TourInput& input) { input.RightClick(Notes() ? Notes()->viewport() : nullptr, QPoint(120, 90)); },
         [] {
             return HasMenu(4) + True(Row(0) && Row(0)->isEnabled(), QStringLiteral("the selection cannot be cut"));
         }});
    steps.push_back({QStringLiteral("the text goes to the clipboard"), [](TourInput& input) { input.Click(Row(0)); },
                     [] {
                         return True(Notes() && Notes()->toPlainText().isEmpty() && !Menu(),
                                     QStringLiteral("the text is still there")) +
                                True(QGuiApplication::clipboard()->text().count(QChar::ParagraphSeparator) == 2,
                                     QStringLiteral("the clipboard does not hold three lines"));
                     }});
    steps.push_back({QStringLiteral("type and paste"),
                     [](TourInput& input) {
                         input.Type(QStringLiteral("Z+5 "));
                         input.RightClick(Notes() ? Notes()->viewport() : nullptr, QPoint(60, 40));
                     },
                     [] { return HasMenu(4); }});
    steps.push_back({QStringLiteral("the text is back"), [](TourInput& input) { input.Click(Row(2)); },
                     [] {
                         const QStringList lines =
                             Notes() ? Notes()->toPlainText().split(QLatin1Char('\n')) : QStringList();
                         return True(lines.size() == 3 && lines.first().startsWith(QLatin1String("Z+5 ")),
                                     QStringLiteral("the editor holds %1 lines").arg(lines.size()));
                     }});
    steps.push_back(
        {QStringLiteral("without a selection the browser opens no menu"),
         [](TourInput& input) { input.RightClick(Manual() ? Manual()->viewport() : nullptr, QPoint(60, 60)); },
         [] { return True(!Menu(), QStringLiteral("a menu is open")); }});
    steps.push_back({QStringLiteral("select the manual"),
                     [](TourInput& input) {
                         input.Key(QStringLiteral("ctrl+a"));
                         input.RightClick(Manual() ? Manual()->viewport() : nullptr, QPoint(60, 60));
                     },
                     [] { return HasMenu(1); }});
    steps.push_back({QStringLiteral("copy it"), [](TourInput& input) { input.Click(Row(0)); },
                     [] { return Clipboard(QStringLiteral("装夹")); }});
    return group;
}

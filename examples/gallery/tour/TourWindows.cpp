#include "../GalleryWindow.h"
#include "Tour.h"
#include "TourLook.h"

#include <QAbstractButton>
#include <QLineEdit>

#include <memory>

using namespace TourLook;

namespace {
/** A widget of the window with that name: each has a title bar with buttons of the same names. */
QWidget* In(const QString& window, const QString& name)
{
    QWidget* found = Find(window);
    return found ? found->findChild<QWidget*>(name) : nullptr;
}

QString Outcome(const QString& expected)
{
    return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("windowOutcome")), expected);
}

QString IsMaximized(const QString& window, bool maximized)
{
    QWidget* found = Find(window);
    QWidget* button = In(window, QStringLiteral("titleMaximize"));
    return True(found && found->isMaximized() == maximized,
                QStringLiteral("%1 is%2 maximised").arg(window, QLatin1String(maximized ? " not" : ""))) +
           Equal(QStringLiteral("the button"), button ? button->accessibleName() : QString(),
                 maximized ? QStringLiteral("向下还原") : QStringLiteral("最大化"));
}

/** The free part of a title bar, away from its buttons. */
void GripTitle(TourInput& input, const QString& window)
{
    QWidget* bar = In(window, QStringLiteral("galleryTitleBar"));
    input.MoveTo(bar, bar ? QPoint(bar->width() / 3, bar->height() / 2) : QPoint());
}

QRect Place(const QString& window)
{
    QWidget* found = Find(window);
    return found ? QRect(found->mapToGlobal(QPoint()), found->size()) : QRect();
}

TourStep ClickButton(const QString& step, const QString& window, const QString& button,
                     const std::function<QString()>& missing)
{
    return {step, [window, button](TourInput& input) { input.Click(In(window, button)); }, missing};
}

TourStep DoubleClickTitle(const QString& step, const QString& window, const std::function<QString()>& missing)
{
    return {step,
            [window](TourInput& input) {
                GripTitle(input, window);
                input.DoubleClick();
            },
            missing};
}

/** Drags what lies at @p grip of the window by @p way, and asks @p missing with the places before and after. */
TourStep Drag(const QString& step, const QString& window, const std::function<void(TourInput&)>& grip,
              const QPoint& way, const std::function<QString(const QRect& before, const QRect& after)>& missing)
{
    auto before = std::make_shared<QRect>();
    return {step,
            [=](TourInput& input) {
                *before = Place(window);
                grip(input);
                input.Press();
                for (int part = 0; part < 4; ++part) {
                    input.MoveBy(way / 4);
                }
                input.Release();
            },
            [=] { return missing(*before, Place(window)); }};
}

TourStep DragTitle(const QString& step, const QString& window, const QPoint& way, const QString& outcome = QString())
{
    return Drag(
        step, window, [window](TourInput& input) { GripTitle(input, window); }, way,
        [outcome](const QRect& before, const QRect& after) {
            const QPoint moved = after.topLeft() - before.topLeft();
            return True(moved.x() > 0 && moved.y() > 0 && after.size() == before.size(),
                        QStringLiteral("it moved by %1, %2").arg(moved.x()).arg(moved.y())) +
                   (outcome.isEmpty() ? QString() : Outcome(outcome));
        });
}

TourStep DragCorner(const QString& step, const QString& window, const QPoint& way)
{
    return Drag(
        step, window,
        [window](TourInput& input) {
            QWidget* found = Find(window);
            input.MoveTo(found, found ? found->rect().bottomRight() - QPoint(2, 2) : QPoint());
        },
        way,
        [](const QRect& before, const QRect& after) {
            const QSize grown = after.size() - before.size();
            return True(grown.width() > 0 && grown.height() > 0 && after.topLeft() == before.topLeft(),
                        QStringLiteral("it grew by %1, %2").arg(grown.width()).arg(grown.height()));
        });
}

TourStep Open(const QString& tile, const QString& window, const QString& outcome)
{
    return {QStringLiteral("open ") + window, [tile](TourInput& input) { input.Click(Find(tile)); },
            [window, outcome] {
                return True(Find(window), QStringLiteral("%1 does not show").arg(window)) + Outcome(outcome);
            }};
}

std::function<QString()> Gone(const QString& window)
{
    return [window] { return True(!Find(window), QStringLiteral("%1 is still there").arg(window)); };
}
} // namespace

TourGroup TourWindows(Tour*)
{
    const QString gallery = QStringLiteral("galleryWindow");
    const QString simulation = QStringLiteral("simulationWindow");
    const QString tool = QStringLiteral("toolDialog");
    const QString position = QStringLiteral("positionPanel");
    const QString maximize = QStringLiteral("titleMaximize");
    const QString close = QStringLiteral("titleClose");

    TourGroup group{QStringLiteral("windows"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("frameless-windows")));
    steps.push_back(ClickButton(QStringLiteral("maximise the gallery"), gallery, maximize,
                                [gallery] { return IsMaximized(gallery, true); }));
    steps.push_back(ClickButton(QStringLiteral("restore the gallery"), gallery, maximize,
                                [gallery] { return IsMaximized(gallery, false); }));
    steps.push_back(DoubleClickTitle(QStringLiteral("a double click on the title bar maximises"), gallery,
                                     [gallery] { return IsMaximized(gallery, true); }));
    steps.push_back(DoubleClickTitle(QStringLiteral("another restores"), gallery,
                                     [gallery] { return IsMaximized(gallery, false); }));
    steps.push_back(DragTitle(QStringLiteral("drag the gallery by its title bar"), gallery, QPoint(80, 60)));

    steps.push_back(Open(QStringLiteral("openSimulation"), simulation, QStringLiteral("刀路仿真已打开。")));
    steps.push_back(DragTitle(QStringLiteral("drag the simulation by its title bar"), simulation, QPoint(80, 60),
                              QStringLiteral("刀路仿真：按住了标题栏。")));
    steps.push_back(DragCorner(QStringLiteral("drag a corner of the simulation"), simulation, QPoint(60, 40)));
    steps.push_back(ClickButton(QStringLiteral("maximise the simulation"), simulation, maximize, [simulation] {
        return IsMaximized(simulation, true) + Outcome(QStringLiteral("刀路仿真：窗口已最大化。"));
    }));
    steps.push_back(ClickButton(QStringLiteral("restore the simulation"), simulation, maximize, [simulation] {
        return IsMaximized(simulation, false) + Outcome(QStringLiteral("刀路仿真：窗口已还原。"));
    }));
    steps.push_back(ClickButton(QStringLiteral("close the simulation"), simulation, close, Gone(simulation)));

    steps.push_back(Open(QStringLiteral("openTool"), tool, QStringLiteral("正在编辑刀具。")));
    steps.push_back({QStringLiteral("type a name; Escape does not throw it away"),
                     [tool](TourInput& input) {
                         input.Click(In(tool, QStringLiteral("toolName")));
                         input.Key(QStringLiteral("ctrl+a"));
                         input.Type(QStringLiteral("R5"));
                         input.Key(QStringLiteral("Escape"));
                     },
                     [tool] {
                         auto* name = qobject_cast<QLineEdit*>(In(tool, QStringLiteral("toolName")));
                         return Equal(QStringLiteral("the name"), name ? name->text() : QString(),
                                      QStringLiteral("R5"));
                     }});
    steps.push_back(
        ClickButton(QStringLiteral("maximise the dialog"), tool, maximize, [tool] { return IsMaximized(tool, true); }));
    steps.push_back({QStringLiteral("Escape restores it"),
                     [](TourInput& input) {
                         // A field keeps the release of a key to itself; a button passes it on.
                         input.Key(QStringLiteral("shift+Tab"));
                         input.Key(QStringLiteral("Escape"));
                     },
                     [tool] { return IsMaximized(tool, false); }});
    steps.push_back(ClickButton(QStringLiteral("save"), tool, QStringLiteral("toolSave"),
                                [tool] { return Gone(tool)() + Outcome(QStringLiteral("已保存刀具：R5")); }));

    steps.push_back(Open(QStringLiteral("openPosition"), position, QStringLiteral("机床坐标已打开。")));
    steps.push_back(DragTitle(QStringLiteral("drag the panel by its title bar"), position, QPoint(80, 60)));
    steps.push_back(DragCorner(QStringLiteral("drag a corner of the panel"), position, QPoint(60, 40)));
    steps.push_back(DoubleClickTitle(QStringLiteral("the host answers a double click"), position, [position] {
        return IsMaximized(position, true) + Outcome(QStringLiteral("机床坐标：双击了标题栏。"));
    }));
    steps.push_back(
        {QStringLiteral("dragged while maximised it asks to be restored"),
         [position](TourInput& input) {
             GripTitle(input, position);
             input.Press();
             input.MoveBy(QPoint(20, 20));
             input.MoveBy(QPoint(20, 20));
             input.Release();
         },
         [position] { return IsMaximized(position, false) + Outcome(QStringLiteral("机床坐标：请求还原。")); }});
    steps.push_back(ClickButton(QStringLiteral("close the panel"), position, close, Gone(position)));
    return group;
}

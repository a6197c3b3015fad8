#include "../GalleryWindow.h"
#include "Tour.h"
#include "TourLook.h"

#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QCoreApplication>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QToolButton>

using namespace TourLook;

namespace {
constexpr int WideWidth = 1280;
const QColor Green(73, 135, 89);

// What the ribbon says, in the language of this walk.
QString Said(const char* text)
{
    return QCoreApplication::translate("GalleryRibbon", text);
}

CToolButton* Tool(const char* name)
{
    return qobject_cast<CToolButton*>(Find(QStringLiteral("tool-") + QLatin1String(name)));
}

CTabToolWidget* Ribbon()
{
    return qobject_cast<CTabToolWidget*>(Find(QStringLiteral("galleryRibbon")));
}

QMenu* Menu(const QString& name)
{
    return qobject_cast<QMenu*>(Find(name));
}

QString LogSays(const QString& text)
{
    auto* log = qobject_cast<QPlainTextEdit*>(Find(QStringLiteral("logText")));
    const QString last = log ? log->toPlainText().section(QLatin1Char('\n'), -1) : QString();
    return True(last.endsWith(text), QStringLiteral("the log ends with \"%1\", not \"%2\"").arg(last, text));
}

QString AreThere(const QList<const char*>& tools)
{
    QString missing;
    for (const char* name : tools) {
        missing += True(Tool(name), QStringLiteral("%1 does not show").arg(QLatin1String(name)));
    }
    return missing;
}

/** The visible overflow button; null when all tools have room. */
QWidget* Overflow()
{
    for (QToolButton* button : Ribbon()->findChildren<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
        // The block of the checked tool has one without height.
        if (button->isVisible() && button->height() > 0) {
            return button;
        }
    }
    return nullptr;
}

/** The fill of a tool above its picture, beside that of a tool that nobody points at. */
QString HasFill(const char* name, const char* idle, int alpha)
{
    CToolButton* tool = Tool(name);
    CToolButton* other = Tool(idle);
    if (!tool || !other) {
        return QStringLiteral("the tools do not show; ");
    }
    const QColor ground = ScreenColor(other, QPoint(other->width() / 2, 2));
    const QColor seen = ScreenColor(tool, QPoint(tool->width() / 2, 2));
    const auto mix = [alpha](int top, int bottom) { return bottom + (top - bottom) * alpha / 255; };
    const int distance = std::abs(seen.red() - mix(Green.red(), ground.red())) +
                         std::abs(seen.green() - mix(Green.green(), ground.green())) +
                         std::abs(seen.blue() - mix(Green.blue(), ground.blue()));
    return True(distance <= 6, QStringLiteral("%1 is filled with %2").arg(QLatin1String(name), seen.name()));
}

QString IsChecked(const char* name)
{
    CToolButton* tool = Tool(name);
    return True(tool && tool->isChecked() && CToolBar::m_pBtnChecked == tool,
                QStringLiteral("%1 is not the checked tool").arg(QLatin1String(name)));
}

/** Chinese captions stand in one line; others have their last word below and are never given more than 107 pixels. */
QString CaptionsFit(const char* name)
{
    CToolButton* tool = Tool(name);
    if (!tool) {
        return QStringLiteral("the tool does not show; ");
    }
    if (CorvaneTextHelper::instance()->AppInChineseEnvironment()) {
        return True(tool->SharedTextLines() == 1, QStringLiteral("a Chinese caption wraps"));
    }
    return True(tool->SharedTextLines() > 1 && tool->text().contains(QLatin1Char('\n')),
                QStringLiteral("the last word is not below the others")) +
           True(tool->width() <= 115, QStringLiteral("the tool is %1 wide").arg(tool->width()));
}

TourStep Click(const QString& step, const char* name, const std::function<QString()>& missing)
{
    return {step, [name](TourInput& input) { input.Click(Tool(name)); }, missing};
}

TourStep OpenTab(const QString& step, int index, const std::function<QString()>& missing)
{
    const auto click = [index](TourInput& input) {
        QTabBar* bar = Ribbon() ? Ribbon()->tabBar() : nullptr;
        input.Click(bar, bar ? bar->tabRect(index).center() : QPoint());
    };
    return {step, click, missing};
}

/** The window becomes so narrow that the last tools of the row have no room. */
void Narrow(Tour* tour)
{
    QWidget* window = tour->Window();
    QWidget* last = Tool("fit");
    window->resize(last ? last->mapTo(window, QPoint(last->width() - 10, 0)).x() : 0, window->height());
}
} // namespace

TourGroup TourRibbon(Tour* tour)
{
    TourGroup group{QStringLiteral("ribbon"), QString(), {}};
    group.bEveryLanguage = true;
    auto& steps = group.steps;
    steps.push_back(OpenTab(QStringLiteral("the ribbon is the head of the wide window"), 0, [tour] {
        return Equal(QStringLiteral("the width"), QString::number(tour->Window()->width()),
                     QString::number(WideWidth)) +
               AreThere({"new", "open", "save", "save_as", "export", "connect", "send", "origin", "probe", "select",
                         "measure", "fit", "grid"}) +
               True(!Overflow(), QStringLiteral("there is an overflow button")) + CaptionsFit("connect");
    }));
    steps.push_back({QStringLiteral("point at a tool"), [](TourInput& input) { input.MoveTo(Tool("new")); },
                     [] { return HasFill("new", "open", 51); }});
    steps.push_back(Click(QStringLiteral("use a tool"), "new", [] { return LogSays(Said("已新建工程。")); }));
    steps.push_back(Click(QStringLiteral("a disabled tool tells why"), "send", [] {
        return True(Find(QStringLiteral("ribbonReason")), QStringLiteral("no reason shows")) +
               Equal(QStringLiteral("the reason"), Text(QStringLiteral("nameLabel")), Said("请先连接机床。"));
    }));
    steps.push_back(Click(QStringLiteral("check a tool"), "measure", [] {
        return IsChecked("measure") +
               LogSays(Said("当前工具：%1").arg(Tool("measure") ? Tool("measure")->text().simplified() : QString()));
    }));
    steps.push_back({QStringLiteral("it stays filled when the pointer goes"),
                     [](TourInput& input) { input.MoveTo(Find(QStringLiteral("logText"))); },
                     [] { return HasFill("measure", "select", 102); }});
    steps.push_back(Click(QStringLiteral("check another tool"), "select", [] {
        return IsChecked("select") +
               True(Tool("measure") && !Tool("measure")->isChecked(), QStringLiteral("both are checked"));
    }));
    steps.push_back(Click(QStringLiteral("open a menu"), "open",
                          [] { return True(Menu(QStringLiteral("menu-open")), QStringLiteral("there is no menu")); }));
    steps.push_back({QStringLiteral("choose from the menu"),
                     [](TourInput& input) {
                         QMenu* menu = Menu(QStringLiteral("menu-open"));
                         input.Click(menu, menu ? menu->actionGeometry(menu->actions().at(1)).center() : QPoint());
                     },
                     [] { return LogSays(Said("已打开工程“%1”。").arg(Said("浮雕.cam"))); }});
    steps.push_back(OpenTab(QStringLiteral("the model tab"), 1, [] {
        return AreThere({"import", "repair", "simplify", "stock_box", "stock_cylinder", "stock_model", "material",
                         "align", "rotate", "mirror", "scale"}) +
               True(!Tool("new"), QStringLiteral("the tools of the first tab still show")) + CaptionsFit("align");
    }));
    steps.push_back(OpenTab(QStringLiteral("the machining tab"), 2, [] {
        return AreThere({"rough", "semi", "finish", "thread", "texture", "library", "tool_add", "tool_length",
                         "tool_offset", "generate", "simulate", "collision"}) +
               True(Tool("simulate") && !Tool("simulate")->isEnabled(), QStringLiteral("there is a toolpath already"));
    }));
    steps.push_back(Click(QStringLiteral("one tool enables others"), "generate", [] {
        return True(Tool("simulate") && Tool("simulate")->isEnabled(), QStringLiteral("simulation is disabled")) +
               LogSays(Said("刀路已生成：3 道工序。"));
    }));
    steps.push_back(OpenTab(QStringLiteral("the help tab"), 3, [] {
        return AreThere({"page_buttons", "page_boxes", "page_progress", "log_note", "log_folder", "question", "about"});
    }));
    steps.push_back(Click(QStringLiteral("a tool opens a page"), "page_boxes", [] {
        return True(Find(QStringLiteral("page-message-boxes")), QStringLiteral("the page does not show"));
    }));
    steps.push_back(Click(QStringLiteral("a tool asks"), "about",
                          [] { return Equal(QStringLiteral("the title"), BoxTitle(), Said("关于")); }));
    steps.push_back({QStringLiteral("answer it"), [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [] { return True(!Box(), QStringLiteral("the box is still open")); }});
    steps.push_back(OpenTab(QStringLiteral("back to the first tab"), 0, [] { return AreThere({"new", "fit"}); }));
    steps.push_back({QStringLiteral("the block of the checked tool stays whole in a narrow window"),
                     [tour](TourInput&) { Narrow(tour); },
                     [] {
                         return IsChecked("select") + AreThere({"new", "connect", "select", "measure"});
                     }});
    steps.push_back(Click(QStringLiteral("uncheck the tool"), "select", [] {
        return True(!CToolBar::m_pBtnChecked, QStringLiteral("there is still a checked tool")) +
               LogSays(Said("没有选中的工具。"));
    }));
    steps.push_back({QStringLiteral("then its last tools go under an overflow button"), {}, [] {
                         return True(Overflow(), QStringLiteral("there is no overflow button")) +
                                True(!Tool("fit"), QStringLiteral("the last tools still show")) +
                                AreThere({"new", "connect", "select", "measure"});
                     }});
    steps.push_back({QStringLiteral("it lists what has no room"), [](TourInput& input) { input.Click(Overflow()); },
                     [] {
                         QMenu* menu = Menu(QStringLiteral("overflowMenu"));
                         const QString first = menu ? menu->actions().value(0)->text() : QString();
                         return Equal(QStringLiteral("the first tool"), first, Said("适合窗口"));
                     }});
    steps.push_back({QStringLiteral("use a tool from there"),
                     [](TourInput& input) {
                         QMenu* menu = Menu(QStringLiteral("overflowMenu"));
                         input.Click(menu, menu ? menu->actionGeometry(menu->actions().at(0)).center() : QPoint());
                     },
                     [] { return LogSays(Said("视图已适合窗口。")); }});
    steps.push_back(
        {QStringLiteral("the wide window shows them again"),
         [tour](TourInput&) { tour->Window()->resize(WideWidth, tour->Window()->height()); },
         [] {
             return AreThere({"fit", "grid"}) + True(!Overflow(), QStringLiteral("the overflow button is still there"));
         }});
    return group;
}

#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/StatefulIcon.h>
#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QCoreApplication>
#include <QHoverEvent>
#include <QMainWindow>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kTools = 12;
constexpr int kTabs = 3;
constexpr int kBlocks = 3;
constexpr int kTabTools = 4;
constexpr QRect kRibbonPlace(0, 0, 900, 160);

const QString kIcon = QStringLiteral(":/icon/selectbox/stock/ico_scanning_box.png");
const QString kDisabledIcon = QStringLiteral(":/icon/selectbox/stock/ico_scanning_cylinder.png");

constexpr char kLook[] = "QToolBar{border:none;border-bottom:1px solid rgb(187,187,187);"
                         "border-right:1px solid rgb(187,187,187);spacing:2px;padding:4px;}"
                         "QToolButton{border:none;border-radius:5px;background:transparent;color:rgb(51,51,51);}"
                         "QToolButton:hover{background:rgba(73,135,89,51);}"
                         "QToolButton:pressed,QToolButton:checked{background:rgba(73,135,89,102);}";
constexpr char kTabLook[] = "QTabWidget{background:#34363B;border:none;}"
                            "QTabWidget::pane{background:#EEEEEE;border-top:1px solid #27282e;}"
                            "QTabBar{background:#34363B;color:#676d7a;}"
                            "QTabBar::tab{height:30px;background:#EEEEEE;color:#262626;border:none;padding:0 26px;}"
                            "QTabBar::tab:selected{color:#188553;border-top:4px solid #188553;}"
                            "QTabBar::tab:!selected{color:#eeeeee;background:transparent;margin-top:6px;}";

QString Caption(int index)
{
    return QStringLiteral("Tool %1").arg(index);
}

QToolButton* TextUnderIcon(QWidget* parent, int index)
{
    auto* button = new QToolButton(parent);
    button->setFont(FontCnMedium_13);
    button->setText(Caption(index));
    button->setIcon(StatefulIcon::create(kIcon, kDisabledIcon, 32));
    button->setIconSize(QSize(32, 32));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    return button;
}

QToolBar* Block(QWidget* parent, int tools)
{
    auto* block = new CToolBarItem(QStringLiteral("Group"), parent);
    for (int i = 0; i < tools; ++i) {
        block->AddItem(kIcon, Caption(i), 0, kDisabledIcon);
    }
    block->CreateToolBlock(false);
    return block;
}

void AddTools(QToolBar* bar, int first, int count)
{
    for (int i = first; i < first + count; ++i) {
        bar->addWidget(TextUnderIcon(bar, i));
    }
}

QToolBar* Bar(QWidget* parent, int tools, const char* sheet)
{
    auto* bar = new QToolBar(QStringLiteral("Group"), parent);
    if (sheet) {
        bar->setStyleSheet(QLatin1String(sheet));
    }
    AddTools(bar, 0, tools);
    return bar;
}

using MakeBar = std::function<QToolBar*(QWidget* parent, int tools)>;

// A main window with a row of one bar: where bars belong.
QWidget* Window(const MakeBar& make)
{
    auto* window = new QMainWindow;
    window->resize(1400, 300);
    window->addToolBar(make(window, kTools));
    return window;
}

QWidget* FirstTool(QWidget* window)
{
    auto* bar = window->findChild<QToolBar*>();
    return bar->widgetForAction(bar->actions().first());
}

// The mouse over the first tool.
void HoverTool(QWidget* window, bool on)
{
    QWidget* tool = FirstTool(window);
    const QPointF place = on ? QPointF(5, 5) : QPointF(-1, -1);
    tool->setAttribute(Qt::WA_UnderMouse, on);
    QHoverEvent hover(on ? QEvent::HoverEnter : QEvent::HoverLeave, place, place, QPointF(-1, -1));
    QCoreApplication::sendEvent(tool, &hover);
}

QToolBar* Ours(QWidget* parent, int tools)
{
    return Block(parent, tools);
}

QToolBar* SameLook(QWidget* parent, int tools)
{
    return Bar(parent, tools, kLook);
}

QToolBar* Plain(QWidget* parent, int tools)
{
    return Bar(parent, tools, nullptr);
}

// A row gets blocks of twelve; a block is complete when it is made.
void AddBlocks(QWidget* widget, const MakeBar& make, int count)
{
    auto* window = static_cast<QMainWindow*>(widget);
    for (int left = count; left > 0; left -= kTools) {
        window->addToolBar(make(window, std::min(left, kTools)));
    }
}

void AddBlock()
{
    Cast cast{"tool block", "QToolBar"};
    const MakeBar makes[] = {Ours, SameLook, Plain};
    for (int variant = 0; variant < VariantCount; ++variant) {
        Subject& subject = cast.subjects[variant];
        const MakeBar& make = makes[variant];
        subject.make = [make](QWidget*) { return Window(make); };
        subject.change = HoverTool;
        subject.fill = [make](QWidget* widget, int, int count) { AddBlocks(widget, make, count); };
    }
    cast.bWindow = true;
    cast.bGrowsOpen = false;
    Life::AddComparisons(cast);
}

QWidget* Ribbon(QTabWidget* tabs, const MakeBar& make)
{
    for (int tab = 0; tab < kTabs; ++tab) {
        auto* row = new QMainWindow;
        row->setWindowFlags(Qt::Widget);
        for (int block = 0; block < kBlocks; ++block) {
            row->addToolBar(make(row, kTabTools));
        }
        tabs->addTab(row, QStringLiteral("Tab %1").arg(tab));
    }
    tabs->setGeometry(kRibbonPlace);
    return tabs;
}

void ChooseTab(QWidget* widget, bool on)
{
    static_cast<QTabWidget*>(widget)->setCurrentIndex(on ? 1 : 0);
}

void AddRibbon()
{
    Cast cast{"ribbon", "QTabWidget with QToolBar"};
    cast.subjects[VariantOurs].make = [](QWidget* parent) { return Ribbon(new CTabToolWidget(parent), Ours); };
    cast.subjects[VariantSameLook].make = [](QWidget* parent) {
        auto* tabs = new QTabWidget(parent);
        tabs->setStyleSheet(QLatin1String(kTabLook));
        return Ribbon(tabs, SameLook);
    };
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return Ribbon(new QTabWidget(parent), Plain); };
    for (Subject& subject : cast.subjects) {
        subject.change = ChooseTab;
    }
    Life::AddComparisons(cast);
}

} // namespace

void AddToolBarComparisons()
{
    AddBlock();
    AddRibbon();
}

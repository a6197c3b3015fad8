#include "ToolBarsPage.h"

#include "../GalleryStyle.h"
#include "WorkView.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/CToolBarStyle.h>
#include <CustomControls/StatefulIcon.h>
#include <CustomControls/toolbar/CTabWidget.h>
#include <CustomControls/toolbar/CToolBar.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QProxyStyle>
#include <QVBoxLayout>

namespace {
constexpr int TabsHeight = 148;
constexpr int BenchHeight = 380;
constexpr int SwitchIcon = 16;
constexpr auto BenchSheet = "#toolBarBench{background:#f6f6f6;}";
constexpr auto SwitchSheet = "QToolButton{color:#666666;border:none;border-radius:4px;padding:4px 10px;margin:3px 2px;}"
                             "QToolButton:hover{background:#e6ebe8;}"
                             "QToolButton:checked{color:#188553;background:#e4f2eb;}";

QString Icon(const QString& name)
{
    return QStringLiteral(":/gallery/view/%1.png").arg(name);
}
} // namespace

ToolBarsPage::ToolBarsPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("toolBarOutcome")))
{
    m_pOutcome->setText(tr("换一个标签页，或按下一个工具，这里会显示结果。"));
    AddTabs();
    AddBars();
}

//! [tool-bar-tabs]
void ToolBarsPage::AddTabs()
{
    struct SetUp
    {
        QString name;
        QList<std::pair<QString, QString>> values;
    };
    const SetUp setUps[] = {
        {tr("工作台"),
         {{tr("行程 X"), QStringLiteral("300 mm")},
          {tr("行程 Y"), QStringLiteral("200 mm")},
          {tr("行程 Z"), QStringLiteral("90 mm")}}},
        {tr("主轴"),
         {{tr("最高转速"), QStringLiteral("24000 rpm")},
          {tr("功率"), QStringLiteral("400 W")},
          {tr("夹头"), QStringLiteral("ER11")}}},
        {tr("刀库"),
         {{tr("刀位"), QStringLiteral("8")},
          {tr("换刀时间"), QStringLiteral("6 s")},
          {tr("最长刀具"), QStringLiteral("65 mm")}}},
    };
    auto* tabs = new CTabWidget(nullptr);
    tabs->setObjectName(QStringLiteral("setUpTabs"));
    tabs->setFixedHeight(TabsHeight);
    for (const SetUp& setUp : setUps) {
        auto* page = new QWidget;
        auto* grid = new QGridLayout(page);
        grid->setContentsMargins(20, 16, 20, 16);
        grid->setHorizontalSpacing(24);
        grid->setColumnStretch(1, 1);
        int row = 0;
        for (const auto& [name, value] : setUp.values) {
            auto* caption = new QLabel(name);
            caption->setFont(FontCn_14);
            caption->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Grey)));
            auto* figure = new QLabel(value);
            figure->setFont(FontCnMedium_14);
            grid->addWidget(caption, row, 0);
            grid->addWidget(figure, row, 1);
            ++row;
        }
        tabs->addTab(page, setUp.name);
    }
    connect(tabs, &QTabWidget::currentChanged, this,
            [this, tabs](int index) { m_pOutcome->setText(tr("标签页：%1").arg(tabs->tabText(index))); });
    AddCard(tr("标签页"), tr("深色的标签，文字从不缩写；当前页与标签连成一体。"), QStringLiteral("tool-bar-tabs"))
        ->addWidget(tabs);
}
//! [tool-bar-tabs]

//! [tool-bar-bench]
void ToolBarsPage::AddBars()
{
    // A main window for its rows of tool bars, put into the page as a plain widget.
    auto* bench = new QMainWindow;
    bench->setWindowFlags(Qt::Widget);
    bench->setObjectName(QStringLiteral("toolBarBench"));
    bench->setStyleSheet(QLatin1String(BenchSheet));
    bench->setFixedHeight(BenchHeight);
    auto* view = new WorkView;
    view->setObjectName(QStringLiteral("toolBarView"));
    view->setAccessibleName(tr("工具栏"));
    bench->setCentralWidget(view);
    bench->addToolBar(CreateSides(bench, view));
    bench->addToolBarBreak();
    bench->addToolBar(CreateSwitches(bench, view));
    AddCard(tr("工具栏"), tr("上面是一组工具：两个大按钮和一叠小按钮；下面的细工具栏切换视图里的内容。"),
            QStringLiteral("tool-bar-bench"))
        ->addWidget(bench);
}

CToolBarItem* ToolBarsPage::CreateSides(QMainWindow* bench, WorkView* view)
{
    auto* block = new CToolBarItem(tr("视角"), bench);
    auto* style = new CToolBarStyle(new QProxyStyle(QStringLiteral("Fusion")));
    style->setParent(block);
    block->setStyle(style);
    block->AddItem(Icon(QStringLiteral("isometric")), tr("等轴测"), 0, QString());
    block->AddItem(Icon(QStringLiteral("top")), tr("俯视"), 0, QString());
    block->AddItemVertical({Icon(QStringLiteral("front")), Icon(QStringLiteral("left"))}, {tr("前视"), tr("左视")},
                           {0, 0}, {QString(), QString()});
    const WorkView::Side sides[] = {WorkView::SideIsometric, WorkView::SideTop, WorkView::SideFront,
                                    WorkView::SideLeft};
    const QList<CToolButton*> tools = block->CreateToolBlock(true);
    for (int index = 0; index < tools.size(); ++index) {
        CToolButton* tool = tools.at(index);
        tool->setObjectName(QStringLiteral("benchSide%1").arg(index));
        connect(tool, &CToolButton::clicked, this, [this, tool, view, side = sides[index]] {
            view->SetSide(side);
            m_pOutcome->setText(qobject_cast<CToolButtonVertical*>(tool) ? tr("视角：%1（小按钮）").arg(tool->text())
                                                                         : tr("视角：%1").arg(tool->text()));
        });
    }
    return block;
}

CToolBar* ToolBarsPage::CreateSwitches(QMainWindow* bench, WorkView* view)
{
    struct Switch
    {
        WorkView::Part part;
        const char* name;
        QString text;
    };
    const Switch switches[] = {{WorkView::PartGrid, "grid", tr("网格")},
                               {WorkView::PartAxes, "axes", tr("坐标轴")},
                               {WorkView::PartPath, "path", tr("刀路")}};
    auto* bar = new CToolBar(CToolBar::ToolBarModeSlim, bench);
    bar->setObjectName(QStringLiteral("benchSwitches"));
    bar->setMovable(false);
    bar->setFont(FontCn_13);
    bar->setIconSize(QSize(SwitchIcon, SwitchIcon));
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Switch& item : switches) {
        const QString name = QLatin1String(item.name);
        // Two looks: coloured while the part is shown, grey while it is hidden.
        const QIcon icon =
            StatefulIcon::create(Icon(name + QStringLiteral("_on")), Icon(name + QStringLiteral("_off")), SwitchIcon);
        QAction* action = bar->addAction(icon, item.text);
        action->setCheckable(true);
        action->setChecked(true);
        QWidget* button = bar->widgetForAction(action);
        button->setObjectName(QStringLiteral("benchSwitch-") + name);
        button->setStyleSheet(QLatin1String(SwitchSheet));
        connect(action, &QAction::toggled, this, [this, view, part = item.part, text = item.text](bool shown) {
            view->SetPartVisible(part, shown);
            m_pOutcome->setText(shown ? tr("%1：显示").arg(text) : tr("%1：隐藏").arg(text));
        });
    }
    return bar;
}
//! [tool-bar-bench]

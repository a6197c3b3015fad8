#include "FramelessWindowsPage.h"

#include "../GalleryStyle.h"
#include "../GalleryTile.h"
#include "../windows/PositionPanel.h"
#include "../windows/RenameBox.h"
#include "../windows/SimulationWindow.h"
#include "../windows/StockBox.h"
#include "../windows/ToolDialog.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>

#include <QGridLayout>
#include <QLabel>

FramelessWindowsPage::FramelessWindowsPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("windowOutcome")))
    , m_strJob(tr("齿轮箱盖"))
{
    m_pOutcome->setText(tr("还没有打开窗口。"));

    auto* grid = new QGridLayout;
    grid->setSpacing(12);
    auto* simulation = new GalleryTile(QStringLiteral("openSimulation"),
                                       QStringLiteral(":/icon/simcontrol/ico_process_pop_start_g2.png"), tr("刀路仿真"),
                                       tr("主窗口：贴边、最大化、换屏"));
    auto* tool =
        new GalleryTile(QStringLiteral("openTool"), QStringLiteral(":/icon/selectbox/tool/img_home_tool_qiudao.png"),
                        tr("编辑刀具"), tr("对话框：Esc 不会丢掉输入"));
    auto* position = new GalleryTile(QStringLiteral("openPosition"), QStringLiteral(":/icon/connect/ico_machine.png"),
                                     tr("机床坐标"), tr("浮动面板：自己移动和缩放"));
    connect(simulation, &QPushButton::clicked, this, &FramelessWindowsPage::OpenSimulation);
    connect(tool, &QPushButton::clicked, this, &FramelessWindowsPage::OpenTool);
    connect(position, &QPushButton::clicked, this, &FramelessWindowsPage::OpenPosition);
    grid->addWidget(simulation, 0, 0);
    grid->addWidget(tool, 0, 1);
    grid->addWidget(position, 0, 2);
    for (int column = 0; column < 3; ++column) {
        grid->setColumnStretch(column, 1);
    }
    AddCard(tr("打开窗口"), tr("标题栏由程序自己画；空白处可拖动，双击最大化，边缘可缩放。"),
            QStringLiteral("frameless-windows"))
        ->addLayout(grid);

    AddPopUps();

    auto* kinds = new QGridLayout;
    kinds->setHorizontalSpacing(20);
    kinds->setVerticalSpacing(8);
    const std::pair<QString, QString> rows[] = {
        {QStringLiteral("FramelessMainWindow"), tr("主窗口。移动、缩放、贴边和最大化都交给系统；边缘深 5 像素。")},
        {QStringLiteral("FramelessDialog"), tr("对话框。同样交给系统；Esc 不关闭它，最大化时松开 Esc 还原。")},
        {QStringLiteral("PureQtFramelessWindow"),
         tr("各系统完全一致。自己处理鼠标，边缘深 8 像素；它从不改变自己的状态，只向程序提出请求。")}};
    int row = 0;
    for (const auto& [kind, text] : rows) {
        auto* name = new QLabel(kind);
        name->setFont(FontCnMedium_14);
        name->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Green)));
        auto* label = new QLabel(text);
        label->setFont(FontCn_14);
        label->setWordWrap(true);
        label->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));
        kinds->addWidget(name, row, 0, Qt::AlignTop);
        kinds->addWidget(label, row, 1);
        ++row;
    }
    kinds->setColumnStretch(1, 1);
    AddCard(tr("选择哪一种"), QString(), QString())->addLayout(kinds);
}

FramelessWindowsPage::~FramelessWindowsPage()
{
    delete m_pPanel;
}

//! [pop-ups]
void FramelessWindowsPage::AddPopUps()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(12);
    auto* stock =
        new GalleryTile(QStringLiteral("openStock"), QStringLiteral(":/icon/selectbox/stock/ico_scanning_box.png"),
                        tr("添加毛坯"), QStringLiteral("CVelmarSelectBox"));
    auto* rename = new GalleryTile(QStringLiteral("openRename"), QStringLiteral(":/gallery/ribbon/log_note.png"),
                                   tr("重命名"), QStringLiteral("CFixedSizePopWidget"));
    connect(stock, &QPushButton::clicked, this, &FramelessWindowsPage::OpenStock);
    connect(rename, &QPushButton::clicked, this, &FramelessWindowsPage::OpenRename);
    grid->addWidget(stock, 0, 0);
    grid->addWidget(rename, 0, 1);
    for (int column = 0; column < 3; ++column) {
        grid->setColumnStretch(column, 1);
    }
    grid->addWidget(new QWidget, 0, 2); // in the place of a third tile: these stand below those of the card above
    AddCard(tr("固定大小的弹窗"), tr("拖动标题区移动；回车确认，Esc 关闭；打开时主窗口不可操作。"),
            QStringLiteral("pop-ups"))
        ->addLayout(grid);
}

void FramelessWindowsPage::OpenStock()
{
    auto* box = new StockBox(window()); // deletes itself when it closes
    connect(box, &StockBox::SignalStockAdded, this,
            [this](const QString& kind) { m_pOutcome->setText(tr("已添加毛坯：%1").arg(kind)); });
    CorvaneSignalHelper::instance()->AdjustWindowPosition(box);
    box->show();
}

void FramelessWindowsPage::OpenRename()
{
    auto* box = new RenameBox(m_strJob, window());
    connect(box, &RenameBox::SignalRenamed, this, [this](const QString& name) {
        m_strJob = name;
        m_pOutcome->setText(tr("已重命名为：%1").arg(name));
    });
    CorvaneSignalHelper::instance()->AdjustWindowPosition(box);
    box->show();
}
//! [pop-ups]

//! [frameless-windows]
void FramelessWindowsPage::OpenSimulation()
{
    auto* simulation = new SimulationWindow(window());
    simulation->setAttribute(Qt::WA_DeleteOnClose);
    connect(simulation, &FramelessMainWindow::windowStateChange, this, [this](bool max) {
        m_pOutcome->setText(max ? tr("刀路仿真：窗口已最大化。") : tr("刀路仿真：窗口已还原。"));
    });
    connect(simulation, &FramelessMainWindow::SignalTitleBarMousePressed, this,
            [this] { m_pOutcome->setText(tr("刀路仿真：按住了标题栏。")); });
    m_pOutcome->setText(tr("刀路仿真已打开。"));
    CorvaneSignalHelper::instance()->AdjustWindowPosition(simulation);
    simulation->show();
}
//! [frameless-windows]

//! [frameless-windows]
void FramelessWindowsPage::OpenTool()
{
    auto* dialog = new ToolDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { m_pOutcome->setText(tr("已保存刀具：%1").arg(dialog->ToolName())); });
    connect(dialog, &QDialog::rejected, this, [this] { m_pOutcome->setText(tr("刀具没有改变。")); });
    m_pOutcome->setText(tr("正在编辑刀具。"));
    CorvaneSignalHelper::instance()->AdjustWindowPosition(dialog);
    dialog->open();
}
//! [frameless-windows]

//! [frameless-windows]
void FramelessWindowsPage::OpenPosition()
{
    if (!m_pPanel) {
        m_pPanel = new PositionPanel;
        m_pPanel->setAttribute(Qt::WA_DeleteOnClose);
        m_pPanel->setAttribute(Qt::WA_QuitOnClose, false); // it ends with the main window
        connect(m_pPanel, &PureQtFramelessWindow::windowStateChange, this,
                [this] { m_pOutcome->setText(tr("机床坐标：请求还原。")); });
        connect(m_pPanel, &PureQtFramelessWindow::titleDblClick, this,
                [this] { m_pOutcome->setText(tr("机床坐标：双击了标题栏。")); });
    }
    m_pOutcome->setText(tr("机床坐标已打开。"));
    CorvaneSignalHelper::instance()->AdjustWindowPosition(m_pPanel);
    m_pPanel->show();
    m_pPanel->activateWindow();
}
//! [frameless-windows]

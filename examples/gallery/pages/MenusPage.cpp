#include "MenusPage.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CMenuBtnHelper.h>

#include <QFontMetrics>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int BarHeight = 40;
constexpr int BenchHeight = 400;
constexpr int ButtonPadding = 18;
constexpr int RowHeight = 28;

constexpr auto BenchSheet = "#menuBench{background:#1f2224;}";
constexpr auto ProjectSheet = "QLabel{color:#b0b6ba;background:transparent;}";
// The look of a bar button at rest; the helper brings the open one and later this one again.
constexpr auto ButtonSheet = "QPushButton{outline:-1px;background:transparent;color:#FFFFFF;border:none;}"
                             "QPushButton::hover{background:#111111;}QPushButton::focus{background:#111111;}";
constexpr auto DisabledButtonSheet = "QPushButton{background:transparent;color:#6b7175;border:none;}";

QString IconFile(const QString& name, const char* look)
{
    return name.isEmpty() ? QString() : QStringLiteral(":/gallery/menu/%1_%2.png").arg(name, QLatin1String(look));
}
} // namespace

MenusPage::MenusPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("menuOutcome")))
    , m_pBench(new QFrame)
    , m_pView(new WorkView(m_pBench))
    , m_pProject(new QLabel(m_pBench))
    , m_pHelper(new CMenuBtnHelper(m_pView))
    , m_strProject(tr("支架.cnc"))
{
    m_pOutcome->setText(tr("打开一个菜单并选择，这里和日志里会显示所选的命令。"));
    // A menu closes when the focus goes elsewhere, so a click on the page has to take it.
    setFocusPolicy(Qt::ClickFocus);
    m_pBench->setObjectName(QStringLiteral("menuBench"));
    m_pBench->setStyleSheet(QLatin1String(BenchSheet));
    m_pBench->setFixedHeight(BenchHeight);
    m_pView->setObjectName(QStringLiteral("menuView"));
    m_pView->setAccessibleName(m_strProject);
    m_pProject->setObjectName(QStringLiteral("menuProject"));
    m_pProject->setFont(FontCn_13);
    m_pProject->setStyleSheet(QLatin1String(ProjectSheet));

    auto* bar = new QHBoxLayout;
    bar->setSpacing(0);
    bar->addWidget(AddMenu(QStringLiteral("menuFile"), tr("文件"), FileRows()));
    bar->addWidget(AddMenu(QStringLiteral("menuEdit"), tr("编辑"), EditRows()));
    bar->addWidget(AddMenu(QStringLiteral("menuLook"), tr("视图"), ViewRows()));
    bar->addWidget(AddMenu(QStringLiteral("menuPath"), tr("刀路"), PathRows()));
    QPushButton* machine =
        AddMenu(QStringLiteral("menuMachine"), tr("机床"), {{CommandNone, tr("断开连接"), {}, {}, {}}});
    machine->setEnabled(false); // until one is connected
    machine->setStyleSheet(QLatin1String(DisabledButtonSheet));
    bar->addWidget(machine);
    bar->addWidget(AddMenu(QStringLiteral("menuHelp"), tr("帮助"), HelpRows()));
    bar->addStretch(1);
    bar->addWidget(m_pProject);
    bar->addSpacing(16);
    auto* layout = new QVBoxLayout(m_pBench);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(m_pView, 1);
    m_pHelper->SetMenuPos(0, BarHeight);
    ShowState();
    AddCard(tr("加工程序"), tr("按下打开，再按关闭；打开时移到旁边的按钮即可切换；点击别处关闭。快捷键同样有效。"),
            QStringLiteral("menu-bar"))
        ->addWidget(m_pBench);
}

//! [menu-bar]
QPushButton* MenusPage::AddMenu(const QString& objectName, const QString& text, const QList<Row>& rows)
{
    auto* button = new QPushButton(text, m_pBench);
    button->setObjectName(objectName);
    button->setFont(FontCn_14);
    button->setStyleSheet(QLatin1String(ButtonSheet));
    button->setFixedSize(QFontMetrics(FontCn_14).horizontalAdvance(text) + 2 * ButtonPadding, BarHeight);

    auto* menu = new CCustomMenu(m_pBench);
    Fill(menu, rows);
    m_pHelper->RegisterMenuBtn(button, menu);
    // A menu that closes hands the focus on to whatever is next; a command leaves it in the view.
    connect(menu, &CCustomMenu::SignalItemClicked, m_pView, [view = m_pView] { view->setFocus(); });
    return button;
}
//! [menu-bar]

//! [menu-bar]
void MenusPage::Fill(CCustomMenu* menu, const QList<Row>& rows)
{
    // Separators are as wide as the menu is when they come, so its width has to be known before.
    const QFontMetrics metrics(menu->font());
    int text = 0;
    int shortcut = 0;
    for (const Row& row : rows) {
        text = std::max(text, metrics.horizontalAdvance(row.strText));
        shortcut = std::max(shortcut, metrics.horizontalAdvance(row.strShortcut));
    }
    CCustomMenuItem widest(nullptr, {}, {}, {}, {}, {}, false);
    menu->SetWindowWidth(widest.SetItemSize(0, RowHeight, text, shortcut));
    menu->SetWindowHeight(RowHeight);
    menu->SetMenuStyle(MenuStyleDark);
    for (const Row& row : rows) {
        AddRow(menu, row);
    }
    menu->UpdateItemSize();
    menu->RefreshSize();
    menu->hide();
    m_listMenus.append(menu);
}
//! [menu-bar]

//! [menu-bar]
void MenusPage::AddRow(CCustomMenu* menu, const Row& row)
{
    if (row.strText.isEmpty()) {
        menu->AddSplitLine();
        return;
    }
    if (!row.listBelow.isEmpty()) {
        Fill(menu->AddButtonWithSubMenu(row.strText, {}, {}, {}, {}), row.listBelow);
        return;
    }
    menu->AddMenuItem(row.strText, row.strShortcut, IconFile(row.strIcon, "nor"), IconFile(row.strIcon, "hover"),
                      IconFile(row.strIcon, "off"));
    CCustomMenuItem* item = menu->MenuButton(menu->MenuButtonCount() - 1);
    item->SetButtonId(row.iCommand);
    if (row.iCommand == CommandGrid || row.iCommand == CommandAxes || row.iCommand == CommandPath) {
        item->SetBtnState(true, true);
    }
    connect(item, &CCustomMenuItem::SignalMenuItemClicked, this, [this, item] { Run(item); });
    if (!row.strShortcut.isEmpty()) {
        // The menu shows a shortcut's name; the key is for the program to bind.
        auto* key = new QShortcut(QKeySequence(row.strShortcut), this);
        connect(key, &QShortcut::activated, this, [this, item] {
            if (item->isEnabled()) {
                Run(item);
            }
        });
    }
}
//! [menu-bar]

void MenusPage::Run(CCustomMenuItem* row)
{
    const QString text = row->text();
    m_pOutcome->setText(tr("刚才选择：%1").arg(text));
    switch (row->GetButtonId()) {
    case CommandNew:
        OpenProject(tr("未命名.cnc"));
        break;
    case CommandRecent:
        OpenProject(text);
        break;
    case CommandSave:
        m_bModified = false;
        break;
    case CommandUndo:
        --m_iUndo;
        ++m_iRedo;
        break;
    case CommandRedo:
        ++m_iUndo;
        --m_iRedo;
        break;
    case CommandCopy:
        m_bCopied = true;
        break;
    case CommandCut:
        m_bCopied = true;
        Change();
        break;
    case CommandPaste:
    case CommandDelete:
    case CommandStrategy:
        Change();
        break;
    case CommandCalculate:
        m_bCalculated = true;
        break;
    case CommandGrid:
        ShowPart(row, WorkView::PartGrid);
        break;
    case CommandAxes:
        ShowPart(row, WorkView::PartAxes);
        break;
    case CommandPath:
        ShowPart(row, WorkView::PartPath);
        break;
    case CommandIsometric:
        m_pView->SetSide(WorkView::SideIsometric);
        break;
    case CommandTop:
        m_pView->SetSide(WorkView::SideTop);
        break;
    case CommandFront:
        m_pView->SetSide(WorkView::SideFront);
        break;
    case CommandLeft:
        m_pView->SetSide(WorkView::SideLeft);
        break;
    case CommandDark:
        SetStyle(MenuStyleDark);
        break;
    case CommandWhite:
        SetStyle(MenuStyleWhite);
        break;
    default:
        break;
    }
    ShowState();
    Q_EMIT CorvaneSignalHelper::instance()->signalFilePluginAppendLog(m_pOutcome->text(),
                                                                      QColor(QLatin1String(GalleryStyle::Ink)));
}

void MenusPage::ShowPart(CCustomMenuItem* row, WorkView::Part part)
{
    const bool shown = !row->GetBtnState();
    row->SetBtnState(shown, true);
    m_pView->SetPartVisible(part, shown);
    m_pOutcome->setText(shown ? tr("刚才选择：%1（开）").arg(row->text()) : tr("刚才选择：%1（关）").arg(row->text()));
}

void MenusPage::SetStyle(MenuStyle style)
{
    for (CCustomMenu* menu : std::as_const(m_listMenus)) {
        menu->SetMenuStyle(style);
        for (int index = 0; index < menu->MenuButtonCount(); ++index) {
            menu->MenuButton(index)->SetChooseFocus(false); // the text takes the new colour then
        }
    }
}

void MenusPage::Change()
{
    ++m_iUndo;
    m_iRedo = 0;
    m_bModified = true;
    m_bCalculated = false;
}

void MenusPage::OpenProject(const QString& name)
{
    m_strProject = name;
    m_iUndo = 0;
    m_iRedo = 0;
    m_bModified = false;
    m_bCalculated = false;
}

void MenusPage::Enable(int command, bool enabled)
{
    for (CCustomMenu* menu : std::as_const(m_listMenus)) {
        menu->SetEnabled(command, enabled);
    }
}

void MenusPage::ShowState()
{
    m_pProject->setText(m_bModified ? m_strProject + QStringLiteral(" *") : m_strProject);
    Enable(CommandSave, m_bModified);
    Enable(CommandUndo, m_iUndo > 0);
    Enable(CommandRedo, m_iRedo > 0);
    Enable(CommandPaste, m_bCopied);
    Enable(CommandSimulate, m_bCalculated);
}

QList<MenusPage::Row> MenusPage::FileRows() const
{
    const QList<Row> recent = {
        {CommandRecent, tr("支架.cnc"), {}, {}, {}},      {CommandRecent, tr("齿轮箱盖.cnc"), {}, {}, {}},
        {CommandRecent, tr("铭牌.cnc"), {}, {}, {}},      {},
        {CommandClearRecent, tr("清除列表"), {}, {}, {}},
    };
    return {
        {CommandNew, tr("新建工程"), QStringLiteral("Ctrl+N"), QStringLiteral("new"), {}},
        {CommandOpen, tr("打开工程…"), QStringLiteral("Ctrl+O"), QStringLiteral("open"), {}},
        {CommandNone, tr("最近打开"), {}, {}, recent},
        {},
        {CommandSave, tr("保存"), QStringLiteral("Ctrl+S"), QStringLiteral("save"), {}},
        {CommandSaveAs, tr("另存为…"), QStringLiteral("Ctrl+Shift+S"), {}, {}},
        {},
        {CommandExport, tr("导出 G 代码…"), QStringLiteral("Ctrl+E"), {}, {}},
    };
}

QList<MenusPage::Row> MenusPage::EditRows() const
{
    return {
        {CommandUndo, tr("撤销"), QStringLiteral("Ctrl+Z"), QStringLiteral("undo"), {}},
        {CommandRedo, tr("重做"), QStringLiteral("Ctrl+Y"), QStringLiteral("redo"), {}},
        {},
        {CommandCut, tr("剪切"), QStringLiteral("Ctrl+X"), QStringLiteral("cut"), {}},
        {CommandCopy, tr("复制"), QStringLiteral("Ctrl+C"), QStringLiteral("copy"), {}},
        {CommandPaste, tr("粘贴"), QStringLiteral("Ctrl+V"), QStringLiteral("paste"), {}},
        {CommandDelete, tr("删除"), QStringLiteral("Del"), {}, {}},
    };
}

QList<MenusPage::Row> MenusPage::ViewRows() const
{
    const QList<Row> sides = {
        {CommandIsometric, tr("等轴测"), QStringLiteral("Ctrl+1"), {}, {}},
        {CommandTop, tr("俯视"), QStringLiteral("Ctrl+2"), {}, {}},
        {CommandFront, tr("前视"), QStringLiteral("Ctrl+3"), {}, {}},
        {CommandLeft, tr("左视"), QStringLiteral("Ctrl+4"), {}, {}},
    };
    const QList<Row> styles = {
        {CommandDark, tr("深色"), {}, {}, {}},
        {CommandWhite, tr("白色"), {}, {}, {}},
    };
    return {
        {CommandGrid, tr("网格"), QStringLiteral("G"), QStringLiteral("check"), {}},
        {CommandAxes, tr("坐标轴"), QStringLiteral("A"), QStringLiteral("check"), {}},
        {CommandPath, tr("刀路"), QStringLiteral("P"), QStringLiteral("check"), {}},
        {},
        {CommandNone, tr("视角"), {}, {}, sides},
        {CommandNone, tr("菜单样式"), {}, {}, styles},
    };
}

QList<MenusPage::Row> MenusPage::PathRows() const
{
    const QList<Row> strategies = {
        {CommandStrategy, tr("粗加工"), {}, {}, {}},
        {CommandStrategy, tr("半精加工"), {}, {}, {}},
        {CommandStrategy, tr("精加工"), {}, {}, {}},
    };
    return {
        {CommandNone, tr("添加策略"), {}, {}, strategies},
        {},
        {CommandCalculate, tr("计算刀路"), QStringLiteral("F5"), {}, {}},
        {CommandSimulate, tr("仿真"), QStringLiteral("F6"), {}, {}},
    };
}

QList<MenusPage::Row> MenusPage::HelpRows() const
{
    return {
        {CommandShortcuts, tr("快捷键一览"), QStringLiteral("F1"), {}, {}},
        {CommandAbout, tr("关于"), {}, {}, {}},
    };
}

#include "CombosPage.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CTableComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>
#include <CustomControls/menus/CXCombobox.h>

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {
constexpr int BoxWidth = 200;
constexpr int BoxHeight = 28;
/** The most entries of a plain list, as the box has it by itself. */
constexpr int PlainEntries = 5;
constexpr int RowHeight = 40;
constexpr int MenuWidth = 200;

constexpr auto PanelSheet = "#darkPanel{background:#2b2a2e;border-radius:6px;}";
constexpr auto DarkLabelSheet = "QLabel{color:#c7cfd6;background:transparent;}";
constexpr auto TableSheet =
    "#partTable{background:#ffffff;border:1px solid #e2e2e2;border-radius:4px;gridline-color:#eeeeee;color:#333333;}"
    "#partTable QHeaderView::section{background:#f6f6f6;color:#666666;border:none;border-bottom:1px solid #e2e2e2;"
    "padding-left:3px;}";
constexpr auto SpindleSheet =
    "#spindleMode{background:#ffffff;border:1px solid #c4c4c4;border-radius:4px;padding-left:10px;color:#333333;}"
    "#spindleMode:hover{border-color:#188553;}"
    "#spindleMode::drop-down{border:none;width:24px;image:url(:/icon/ico_current_arrow_down_nor.png);}";

QLabel* CreateDarkLabel(const QString& text, const QFont& font)
{
    auto* label = new QLabel(text);
    label->setFont(font);
    label->setStyleSheet(QLatin1String(DarkLabelSheet));
    return label;
}
} // namespace

CombosPage::CombosPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("comboOutcome")))
{
    m_pOutcome->setText(tr("选择任意一项，这里会显示结果。"));
    AddPanel();
    AddTable();
    BeginRow();
    AddSpindle();
    AddMachineMenu();
    EndRow();
}

//! [combo-panel]
CComboBox* CombosPage::CreateBox(const QString& name, const QString& caption, const QStringList& entries,
                                 QHBoxLayout* row)
{
    auto* box = new CComboBox(this);
    box->setObjectName(name);
    box->SetBoxSize(BoxWidth, BoxHeight, 0);
    for (const QString& entry : entries) {
        box->AddComboItem(entry);
    }
    connect(box, &QComboBox::textActivated, this, [this, caption](const QString& text) { Tell(caption, text); });
    connect(box, &QComboBox::currentTextChanged, this, [this, caption](const QString& text) { Tell(caption, text); });
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    QLabel* label = CreateDarkLabel(caption, FontCn_13);
    label->setBuddy(box);
    column->addWidget(label);
    column->addWidget(box);
    row->addLayout(column);
    return box;
}
//! [combo-panel]

//! [combo-panel]
void CombosPage::AddPanel()
{
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("darkPanel"));
    panel->setStyleSheet(QLatin1String(PanelSheet));
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(20, 16, 20, 18);
    column->setSpacing(16);
    auto* boxes = new QHBoxLayout;
    boxes->setSpacing(24);
    CreateBox(QStringLiteral("comboMaterial"), tr("材料"), {tr("铝合金"), tr("黄铜"), tr("亚克力"), tr("胡桃木")},
              boxes);
    m_pTools = CreateBox(QStringLiteral("comboTool"), tr("刀具"),
                         {tr("平底刀 %1").arg(QStringLiteral("6 mm")), tr("平底刀 %1").arg(QStringLiteral("3 mm")),
                          tr("球头刀 %1").arg(QStringLiteral("2 mm")), tr("钻头 %1").arg(QStringLiteral("1.5 mm")),
                          tr("雕刻刀 %1").arg(QStringLiteral("30°"))},
                         boxes);
    CComboBox* strategy = CreateBox(QStringLiteral("comboStrategy"), tr("加工方式"),
                                    {tr("分层粗加工"), tr("等高精加工"), tr("平行精加工")}, boxes);
    strategy->SetTextAlignment(Qt::AlignCenter);
    boxes->addStretch(1);
    column->addLayout(boxes);

    auto* commands = new QHBoxLayout;
    commands->setSpacing(12);
    QPushButton* add = CreateCommand(tr("添加刀具"), QStringLiteral("comboAddTool"));
    m_pRemoveTool = CreateCommand(tr("移除最后一把"), QStringLiteral("comboRemoveTool"));
    m_pToolCount = CreateDarkLabel(QString(), FontCn_13);
    m_pToolCount->setObjectName(QStringLiteral("comboToolCount"));
    commands->addWidget(add);
    commands->addWidget(m_pRemoveTool);
    commands->addWidget(m_pToolCount);
    commands->addStretch(1);
    column->addLayout(commands);
    connect(add, &QPushButton::clicked, this, [this] {
        m_pTools->AddComboItem(tr("备用刀 %1 号").arg(m_iNextTool++));
        ShowToolCount();
    });
    connect(m_pRemoveTool, &QPushButton::clicked, this, [this] {
        m_pTools->RemoveItem(m_pTools->TextAtIndex(m_pTools->count() - 1));
        ShowToolCount();
    });
    ShowToolCount();
    AddCard(tr("加工参数"), tr("深色面板里的下拉框。到第六项时，列表变成可滚动的。"), QStringLiteral("combo-panel"))
        ->addWidget(panel);
}
//! [combo-panel]

void CombosPage::ShowToolCount()
{
    const int count = m_pTools->count();
    m_pToolCount->setText(count > PlainEntries ? tr("%1 把刀具，滚动列表").arg(count)
                                               : tr("%1 把刀具，普通列表").arg(count));
    m_pRemoveTool->setEnabled(count > 1);
}

//! [combo-table]
void CombosPage::AddTable()
{
    struct Part
    {
        QString name;
        int material;
        int count;
    };
    const Part parts[] = {{tr("底座"), 0, 2}, {tr("齿轮"), 1, 8}, {tr("面板"), 2, 1}};
    enum Column
    {
        ColumnPart,
        ColumnMaterial,
        ColumnSide,
        ColumnCount
    };

    auto* table = new QTableWidget(int(std::size(parts)), 4);
    table->setObjectName(QStringLiteral("partTable"));
    table->setStyleSheet(QLatin1String(TableSheet));
    table->setAccessibleName(tr("零件清单"));
    table->setFont(FontCn_13);
    table->setHorizontalHeaderLabels({tr("零件"), tr("材料"), tr("加工面"), tr("数量")});
    table->horizontalHeader()->setFont(FontCn_13);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setFixedHeight(RowHeight - 4);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setFixedHeight(int(std::size(parts)) * RowHeight + RowHeight - 2);

    const auto addBox = [this, table](int row, Column column, const QString& name, const QStringList& entries,
                                      int current, const QString& part) {
        // A margin around it leaves the grid's lines to be seen.
        auto* cell = new QWidget;
        auto* layout = new QHBoxLayout(cell);
        layout->setContentsMargins(4, 5, 8, 5);
        auto* box = new CTableComboBox(cell);
        box->setObjectName(QStringLiteral("%1%2").arg(name).arg(row));
        box->setAccessibleName(part + QLatin1Char(' ') + table->horizontalHeaderItem(column)->text());
        box->addItems(entries);
        box->setCurrentIndex(current);
        connect(box, &QComboBox::textActivated, this, [this, part](const QString& text) { Tell(part, text); });
        layout->addWidget(box);
        table->setCellWidget(row, column, cell);
    };
    int row = 0;
    for (const Part& part : parts) {
        table->setItem(row, ColumnPart, new QTableWidgetItem(part.name));
        addBox(row, ColumnMaterial, QStringLiteral("partMaterial"),
               {tr("铝合金"), tr("黄铜"), tr("亚克力"), tr("胡桃木")}, part.material, part.name);
        addBox(row, ColumnSide, QStringLiteral("partSide"), {tr("正面"), tr("反面"), tr("双面")}, 0, part.name);
        table->setItem(row, ColumnCount, new QTableWidgetItem(QString::number(part.count)));
        ++row;
    }
    AddCard(tr("零件清单"), tr("表格里的浅色下拉框，用法与 QComboBox 相同。"), QStringLiteral("combo-table"))
        ->addWidget(table);
}
//! [combo-table]

//! [combo-focus]
void CombosPage::AddSpindle()
{
    auto* box = new CXCombobox(nullptr);
    box->setObjectName(QStringLiteral("spindleMode"));
    box->setAccessibleName(tr("主轴"));
    box->setStyleSheet(QLatin1String(SpindleSheet));
    box->setFont(FontCn_14);
    box->setFixedSize(BoxWidth, 32);
    box->addItems({tr("手动转速"), tr("自动转速"), tr("恒定线速度")});
    auto* saved = new QLabel(tr("尚未保存"));
    saved->setObjectName(QStringLiteral("spindleSaved"));
    saved->setFont(FontCn_13);
    connect(box, &CXCombobox::SignalFocusOut, this,
            [box, saved](int index) { saved->setText(tr("已保存：%1").arg(box->itemText(index))); });
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(box);
    row->addWidget(saved);
    row->addStretch(1);
    AddCard(tr("主轴"), tr("离开下拉框时才保存。"), QStringLiteral("combo-focus"))->addLayout(row);
}
//! [combo-focus]

//! [combo-menu]
void CombosPage::AddMachineMenu()
{
    m_pMachineMenu = new CVelmarMenu(this);
    m_pMachineMenu->SetMenuStyle(MenuStyleWhite);
    m_pMachineMenu->SetWindowWidth(MenuWidth);
    m_pMachineMenu->SetWindowHeight(30);
    const auto add = [this](const QString& text, const QString& icon, const QString& shortcut) {
        m_pMachineMenu->AddMenuItem(text, icon, shortcut);
        CVelmarMenuItem* item = m_pMachineMenu->MenuItem(m_pMachineMenu->MenuItemCount() - 1);
        connect(item, &CVelmarMenuItem::SignalMenuItemClicked, this, [this, text] { Tell(tr("机床"), text); });
    };
    add(tr("开始加工"), QStringLiteral(":/icon/simcontrol/ico_process_pop_start_g2.png"), QStringLiteral("F5 "));
    add(tr("回到原点"), QString(), QStringLiteral("Home "));
    m_pMachineMenu->AddSplitLine();
    add(tr("断开连接"), QString(), QString());
    m_pMachineMenu->SetMenuItemFont(FontCn_14, FontCn_12);
    m_pMachineMenu->MenuItem(2)->SetEnabled(false);
    m_pMachineMenu->hide();

    QPushButton* open = CreateCommand(tr("机床操作"), QStringLiteral("machineMenuButton"));
    connect(open, &QPushButton::clicked, this, [this, open] {
        if (m_pMachineMenu->isVisible()) {
            m_pMachineMenu->hide();
            return;
        }
        // Over the button, for the card lies at the lower edge of the page.
        m_pMachineMenu->move(open->mapTo(this, QPoint(0, -m_pMachineMenu->height() - 4)));
        m_pMachineMenu->show();
        m_pMachineMenu->raise();
    });
    // The menu grabs nothing; when it closes is for the host to say.
    connect(qApp, &QApplication::focusChanged, m_pMachineMenu, [this, open](const QWidget*, const QWidget* now) {
        if (now && now != open && now != m_pMachineMenu && !m_pMachineMenu->isAncestorOf(now) &&
            m_pMachineMenu->isVisible()) {
            m_pMachineMenu->hide();
        }
    });
    auto* row = new QHBoxLayout;
    row->addWidget(open);
    row->addStretch(1);
    AddCard(tr("菜单"), tr("带图标、快捷键和分隔线的一层菜单。"), QStringLiteral("combo-menu"))->addLayout(row);
}
//! [combo-menu]

void CombosPage::Tell(const QString& what, const QString& value)
{
    m_pOutcome->setText(tr("%1：%2").arg(what, value));
}

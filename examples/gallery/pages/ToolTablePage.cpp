#include "ToolTablePage.h"

#include "../GalleryStyle.h"
#include "ToolTable.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/messagebox/CVelmarMessageListItem.h>
#include <CustomControls/tables/CFileNameDelegate.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <iterator>
#include <memory>

namespace {
constexpr int EndMill = 1;
constexpr int BallNoseMill = 3;
constexpr int TaperedBallNoseMill = 7;
constexpr int ChosenHeight = 3 * 35 + 2; // a row of titles and one for each table
constexpr int ProgramHead = 34;
constexpr int ProgramRow = 26;
constexpr int SizeWidth = 84;
constexpr auto ChosenSheet = "#chosenTools{background:#f6f6f6;border:1px solid #e2e2e2;border-radius:4px;}";
constexpr auto ProgramsSheet = "#programs{background:#ffffff;border:1px solid #e2e2e2;border-radius:4px;outline:none;"
                               "color:#333333;}"
                               "#programs:focus{border-color:#188553;}"
                               "#programs QHeaderView::section{background:#f6f6f6;color:#666666;border:none;"
                               "padding-left:6px;}";

/** The first six tools of the magazine that is built in, with their measures as numbers. */
QList<MagazineTool> Magazine()
{
    const double measures[][2] = {{6, 50}, {4, 50}, {4, 50}, {4, 50}, {2, 50}, {1, 50}};
    QList<MagazineTool> tools;
    for (const auto& measure : measures) {
        const int number = int(tools.size()) + 1;
        tools.append({number, CorvaneToolBitHelper::instance()->GetIntegerToolTypeByNumber(number, ModelTypeStandard),
                      measure[0], measure[1]});
    }
    return tools;
}
} // namespace

ToolTablePage::ToolTablePage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("toolOutcome")))
{
    m_pOutcome->setText(tr("单击一行选择刀具，双击直径或长度修改数值。"));
    BeginRow();
    m_pRoughing = AddTable(QStringLiteral("roughingTools"), tr("粗加工"), tr("只能选择立铣刀，其余刀具显示为灰色。"),
                           QStringLiteral("tool-tables"), {EndMill});
    m_pFinishing = AddTable(QStringLiteral("finishingTools"), tr("精加工"), tr("只能选择球头铣刀和锥度球头铣刀。"),
                            QStringLiteral("tool-tables"), {BallNoseMill, TaperedBallNoseMill});
    EndRow();
    BeginRow();
    AddConfirmation();
    AddPrograms();
    EndRow();
}

//! [tool-tables]
ToolTable* ToolTablePage::AddTable(const QString& name, const QString& title, const QString& hint,
                                   const QString& source, const QList<int>& types)
{
    auto* table = new ToolTable(Magazine(), types, this);
    table->setObjectName(name);
    table->setAccessibleName(title);
    connect(table, &ToolTable::SignalToolChosen, this, [this, table](int row) {
        ShowTool(tr("已选择刀具："), table, row);
        ShowChosen();
    });
    connect(table, &ToolTable::SignalToolMeasured, this,
            [this, table](int row) { ShowTool(tr("已修改刀具："), table, row); });
    AddCard(title, hint, source)->addWidget(table);
    return table;
}
//! [tool-tables]

void ToolTablePage::ShowTool(const QString& text, const ToolTable* table, int row)
{
    const MagazineTool tool = table->Tool(row);
    m_pOutcome->setText(text + tr("T%1 %2，直径 %3 mm，长度 %4 mm")
                                   .arg(tool.iNumber)
                                   .arg(table->ToolName(row))
                                   .arg(tool.dDiameter)
                                   .arg(tool.dLength));
}

//! [tool-confirmation]
void ToolTablePage::AddConfirmation()
{
    auto* list = new QFrame;
    list->setObjectName(QStringLiteral("chosenTools"));
    list->setStyleSheet(QLatin1String(ChosenSheet));
    list->setFixedHeight(ChosenHeight);
    m_pChosen = new QVBoxLayout(list);
    m_pChosen->setContentsMargins(1, 1, 1, 1);
    m_pChosen->setSpacing(0);
    m_pChosen->addStretch(1);
    ShowChosen();

    QPushButton* confirm = CreateCommand(tr("确认刀具"), QStringLiteral("confirmTools"), true);
    connect(confirm, &QPushButton::clicked, this, &ToolTablePage::Confirm);
    auto* row = new QHBoxLayout;
    row->addWidget(confirm);
    row->addStretch(1);
    QVBoxLayout* card =
        AddCard(tr("开始加工"), tr("加工前列出所选刀具及其库位，由用户确认。"), QStringLiteral("tool-confirmation"));
    card->addWidget(list);
    card->addLayout(row);
}

void ToolTablePage::ShowChosen()
{
    while (m_pChosen->count() > 1) { // the stretch stays
        const std::unique_ptr<QLayoutItem> item(m_pChosen->takeAt(0));
        delete item->widget();
    }
    auto* titles = new CVelmarMessageListItem(this);
    titles->SetIsHeader(true);
    m_pChosen->insertWidget(0, titles);
    if (m_pRoughing->ChosenRow() < 0 && m_pFinishing->ChosenRow() < 0) {
        m_pChosen->insertWidget(1, CreateCaption(tr("还没有选择刀具。")));
    }
    const std::pair<const ToolTable*, MachiningType> tables[] = {{m_pRoughing, MachiningRough},
                                                                 {m_pFinishing, MachiningFinish}};
    for (const auto& [table, type] : tables) {
        const int row = table->ChosenRow();
        if (row < 0) {
            continue;
        }
        const MagazineTool tool = table->Tool(row);
        auto* item = new CVelmarMessageListItem(this);
        item->SetIsHeader(false);
        item->SetContent(table->ToolName(row), QStringLiteral("D%1 L%2").arg(tool.dDiameter).arg(tool.dLength),
                         QString::number(tool.iNumber), type);
        m_pChosen->insertWidget(m_pChosen->count() - 1, item);
    }
}
//! [tool-confirmation]

//! [tool-programs]
void ToolTablePage::AddPrograms()
{
    const std::pair<QString, QString> programs[] = {
        {tr("支架_铝合金_粗加工_6mm平底刀_第3次修订.nc"), QStringLiteral("1.8 MB")},
        {tr("支架_铝合金_精加工_2mm球头刀.nc"), QStringLiteral("6.4 MB")},
        {tr("奖章_黄铜_精加工.nc"), QStringLiteral("3.1 MB")},
        {tr("外壳上盖_亚克力_轮廓与孔_双面装夹_待确认.nc"), QStringLiteral("0.9 MB")},
    };
    auto* list = new QTreeWidget;
    list->setObjectName(QStringLiteral("programs"));
    list->setStyleSheet(QLatin1String(ProgramsSheet));
    list->setAccessibleName(tr("待加工的程序"));
    list->setHeaderLabels({tr("文件"), tr("大小")});
    list->header()->setFont(FontCnMedium_13);
    list->header()->setFixedHeight(ProgramHead);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    list->header()->resizeSection(1, SizeWidth);
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFixedHeight(ProgramHead + ProgramRow * int(std::size(programs)) + 2);
    // Cut in the middle, where two names differ least: the revision at their end still shows.
    auto* names = new CFileNameDelegate(list);
    names->SetElideMode(Qt::ElideMiddle);
    list->setItemDelegateForColumn(0, names);
    for (const auto& [name, size] : programs) {
        auto* item = new QTreeWidgetItem(list, {name, size});
        item->setIcon(0, QIcon(QStringLiteral(":/gallery/menu/program.png")));
        item->setFont(0, FontCn_14);
        item->setFont(1, FontCn_13);
        item->setToolTip(0, name);
        item->setSizeHint(0, QSize(0, ProgramRow));
    }
    connect(list, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* item) { m_pOutcome->setText(tr("程序：%1").arg(item->text(0))); });
    AddCard(tr("待加工的程序"), tr("文件名放不下时省略中间，结尾的修订号仍然可见。"), QStringLiteral("tool-programs"))
        ->addWidget(list);
}
//! [tool-programs]

void ToolTablePage::Confirm()
{
    const auto chosen = [](const ToolTable* table) {
        const int row = table->ChosenRow();
        return row < 0 ? QList<int>() : QList<int>{table->Tool(row).iNumber};
    };
    // The page may go while the window is open: the program can quit under it.
    const QPointer<ToolTablePage> page(this);
    const int code =
        CVelmarMessageBox::ShowGCodeConfirmWindow(window(), MsgBtnOk, MsgIconPop2, tr("确认刀具"), chosen(m_pRoughing),
                                                  {}, chosen(m_pFinishing), {}, -1, ModelTypeStandard);
    if (page) {
        m_pOutcome->setText(code == MsgBtnOk ? tr("刀具已确认，可以开始加工。") : tr("未确认刀具。"));
    }
}

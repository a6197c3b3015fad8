#include "ToolTablePage.h"

#include "ToolTable.h"

#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int EndMill = 1;
constexpr int BallNoseMill = 3;
constexpr int TaperedBallNoseMill = 7;

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
    m_pRoughing =
        AddTable(QStringLiteral("roughingTools"), tr("粗加工"), tr("只能选择立铣刀，其余刀具显示为灰色。"), {EndMill});
    m_pFinishing = AddTable(QStringLiteral("finishingTools"), tr("精加工"), tr("只能选择球头铣刀和锥度球头铣刀。"),
                            {BallNoseMill, TaperedBallNoseMill});
    EndRow();
    AddConfirmation();
}

ToolTable* ToolTablePage::AddTable(const QString& name, const QString& title, const QString& hint,
                                   const QList<int>& types)
{
    auto* table = new ToolTable(Magazine(), types, this);
    table->setObjectName(name);
    connect(table, &ToolTable::SignalToolChosen, this,
            [this, table](int row) { ShowTool(tr("已选择刀具："), table, row); });
    connect(table, &ToolTable::SignalToolMeasured, this,
            [this, table](int row) { ShowTool(tr("已修改刀具："), table, row); });
    AddCard(title, hint)->addWidget(table);
    return table;
}

void ToolTablePage::ShowTool(const QString& text, const ToolTable* table, int row)
{
    const MagazineTool tool = table->Tool(row);
    m_pOutcome->setText(text + tr("T%1 %2，直径 %3 mm，长度 %4 mm")
                                   .arg(tool.iNumber)
                                   .arg(table->ToolName(row))
                                   .arg(tool.dDiameter)
                                   .arg(tool.dLength));
}

void ToolTablePage::AddConfirmation()
{
    QPushButton* confirm = CreateCommand(tr("确认刀具"), QStringLiteral("confirmTools"), true);
    connect(confirm, &QPushButton::clicked, this, &ToolTablePage::Confirm);
    auto* row = new QHBoxLayout;
    row->addWidget(confirm);
    row->addStretch(1);
    AddCard(tr("开始加工"), tr("加工前列出所选刀具及其库位，由用户确认。"))->addLayout(row);
}

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

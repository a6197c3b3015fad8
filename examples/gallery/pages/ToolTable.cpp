#include "ToolTable.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/tables/CDelegateLineEdit.h>
#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <QHeaderView>
#include <QIcon>
#include <QPainter>
#include <QPen>
#include <QStandardItemModel>

#include <iterator>

namespace {
enum Column
{
    ColumnPlace,
    ColumnType,
    ColumnDiameter,
    ColumnLength,
    ColumnCount
};
constexpr int PlaceWidth = 52;
constexpr int MeasureWidth = 84;
constexpr int HeaderHeight = 34;
constexpr int RowHeight = 40;
constexpr QSize PictureSize(60, 28);
constexpr int FrameWidth = 2;
constexpr int FrameRadius = 4;

constexpr auto TableSheet = "ToolTable{border:1px solid #e2e2e2;border-radius:4px;outline:none;background:#ffffff;"
                            "alternate-background-color:#f6f6f6;}"
                            "QHeaderView::section{background:#f6f6f6;color:#666666;border:none;}";

// The index is the type code.
constexpr const char* Pictures[] = {"jiaodao",   "pingdixidao", "ptxd_bk",    "qiudao",
                                    "qiudao_bk", "yuanbixidao", "daojiaodao", "zhuiduqiutoudao"};

QIcon Picture(int type)
{
    return type >= 0 && type < int(std::size(Pictures))
               ? QIcon(QStringLiteral(":/icon/selectbox/tool/img_home_tool_%1.png").arg(QLatin1String(Pictures[type])))
               : QIcon();
}
} // namespace

//! [tool-tables]
ToolTable::ToolTable(const QList<MagazineTool>& tools, const QList<int>& eligibleTypes, QWidget* parent)
    : QTableView(parent)
    , m_tools(tools)
    , m_eligibleTypes(eligibleTypes)
    , m_pModel(new QStandardItemModel(0, ColumnCount, this))
{
    m_pModel->setHorizontalHeaderLabels({tr("库位"), tr("刀具"), tr("直径 mm"), tr("长度 mm")});
    for (const MagazineTool& tool : tools) {
        AddTool(tool);
    }
    setModel(m_pModel);

    setStyleSheet(QLatin1String(TableSheet));
    setShowGrid(false);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::ClickFocus);
    setEditTriggers(QAbstractItemView::DoubleClicked);
    setIconSize(PictureSize);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* numbers = new CDelegateLineEdit(this);
    setItemDelegateForColumn(ColumnDiameter, numbers);
    setItemDelegateForColumn(ColumnLength, numbers);
    setItemDelegateForColumn(ColumnType, new CDelegateTableViewItem(this));
    connect(m_pModel, &QStandardItemModel::itemChanged, this,
            [this](QStandardItem* item) { Q_EMIT SignalToolMeasured(item->row()); });

    QHeaderView* const header = horizontalHeader();
    header->setFont(FontCnMedium_13);
    header->setFixedHeight(HeaderHeight);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(ColumnType, QHeaderView::Stretch);
    header->resizeSection(ColumnPlace, PlaceWidth);
    header->resizeSection(ColumnDiameter, MeasureWidth);
    header->resizeSection(ColumnLength, MeasureWidth);
    header->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(RowHeight);
    setFixedHeight(HeaderHeight + RowHeight * int(tools.size()) + 2);
}
//! [tool-tables]

void ToolTable::AddTool(const MagazineTool& tool)
{
    const int row = m_pModel->rowCount();
    const QColor color(QLatin1String(IsEligible(row) ? GalleryStyle::Ink : "#b8b8b8"));
    auto* place = new QStandardItem(QStringLiteral("T%1").arg(tool.iNumber));
    auto* type =
        new QStandardItem(Picture(tool.iType), CorvaneToolBitHelper::instance()->GetToolNameByType(tool.iType));
    auto* diameter = new QStandardItem(QString::number(tool.dDiameter));
    auto* length = new QStandardItem(QString::number(tool.dLength));
    for (QStandardItem* item : {place, type, diameter, length}) {
        item->setFont(FontCnMedium_14);
        item->setTextAlignment(Qt::AlignCenter);
        item->setData(color, Qt::ForegroundRole);
        item->setEditable(item == diameter || item == length);
    }
    m_pModel->appendRow({place, type, diameter, length});
}

bool ToolTable::IsEligible(int row) const
{
    return row >= 0 && row < m_tools.size() && m_eligibleTypes.contains(m_tools.at(row).iType);
}

MagazineTool ToolTable::Tool(int row) const
{
    CorvaneTextHelper* const texts = CorvaneTextHelper::instance();
    MagazineTool tool = m_tools.value(row);
    tool.dDiameter = texts->SafeStringToDouble(m_pModel->index(row, ColumnDiameter).data().toString());
    tool.dLength = texts->SafeStringToDouble(m_pModel->index(row, ColumnLength).data().toString());
    return tool;
}

QString ToolTable::ToolName(int row) const
{
    return m_pModel->index(row, ColumnType).data().toString();
}

void ToolTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (IsEligible(current.row()) && current.row() != m_iChosenRow) {
        m_iChosenRow = current.row();
        viewport()->update();
        Q_EMIT SignalToolChosen(m_iChosenRow);
    }
}

void ToolTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_iChosenRow < 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(QLatin1String(GalleryStyle::Green)), FrameWidth));
    const int top = rowViewportPosition(m_iChosenRow);
    const QRect frame(0, top, viewport()->width(), rowHeight(m_iChosenRow));
    const int inset = FrameWidth / 2;
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), FrameRadius, FrameRadius);
}

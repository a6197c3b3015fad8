#include <CustomControls/tables/CVelmarTableView.h>

#include <CustomControls/tables/CDelegateLineEdit.h>
#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QStandardItemModel>

#include <iterator>
#include <type_traits>
#include <utility>

static_assert(std::is_trivially_copyable_v<ToolRecord>);

namespace {

constexpr char kTableSheet[] = "QTableView{outline:none;border:none;background-color:rgb(239,239,239);"
                               "alternate-background-color:rgb(246,246,246);}";
constexpr char kHeaderSheet[] = "QHeaderView::section{background-color:rgba(246,246,246,1);"
                                "color:rgba(153,153,153,1);border:none;/*padding-left:10px;*/}";
constexpr char kOverlaySheet[] =
    "background: transparent;border: 2px solid rgb(23, 160, 97);image: url(:/icon/toolbtn/icon_scanning_checked.png);"
    "padding-left: 329px;padding-bottom: 15px;border-radius:4px;";

enum Column
{
    ColumnNumber,
    ColumnType,
    ColumnDiameter,
    ColumnLength,
    ColumnCount
};
constexpr int kRowCount = 6;

constexpr QSize kTableSize(352, 248);
constexpr int kHeaderHeight = 32;
constexpr int kRowHeight = 36;
constexpr int kColumnWidths[ColumnCount] = {30, 176, 55, 85};
constexpr QSize kPictureSize(76, 36);
constexpr QSize kOverlaySize(347, 34);
/** The overlay is a child of the view, not of the viewport: the header, and one pixel on each side of a row of 36. */
constexpr int kOverlayTop = 34;

constexpr QColor kSampleNumberColor(51, 51, 51, 255);
constexpr QColor kEligibleColor(0, 0, 0, 255);
constexpr QColor kIneligibleColor(196, 196, 196, 255);

constexpr double kSampleLength = 50.0;
constexpr int kDigits = 6;

struct ToolType
{
    const char* szPicture;
    const char* szName;
};
// The index is the type code. The class has no translation context of its own.
constexpr ToolType kToolTypes[] = {
    {":/icon/selectbox/tool/img_home_tool_jiaodao.png", QT_TRANSLATE_NOOP("QTableView", "铰刀")},
    {":/icon/selectbox/tool/img_home_tool_pingdixidao.png", QT_TRANSLATE_NOOP("QTableView", "立铣刀")},
    {":/icon/selectbox/tool/img_home_tool_ptxd_bk.png", QT_TRANSLATE_NOOP("QTableView", "避空立铣刀")},
    {":/icon/selectbox/tool/img_home_tool_qiudao.png", QT_TRANSLATE_NOOP("QTableView", "球头铣刀")},
    {":/icon/selectbox/tool/img_home_tool_qiudao_bk.png", QT_TRANSLATE_NOOP("QTableView", "避空球头铣刀")},
    {":/icon/selectbox/tool/img_home_tool_yuanbixidao.png", QT_TRANSLATE_NOOP("QTableView", "圆鼻铣刀")},
    {":/icon/selectbox/tool/img_home_tool_daojiaodao.png", QT_TRANSLATE_NOOP("QTableView", "锥刀")},
    {":/icon/selectbox/tool/img_home_tool_zhuiduqiutoudao.png", QT_TRANSLATE_NOOP("QTableView", "锥度球头铣刀")},
};
constexpr int kEndMill = 1;
constexpr int kBallNoseMill = 3;
constexpr int kTaperedBallNoseMill = 7;

const ToolType& TypeOf(int type)
{
    return kToolTypes[type >= 0 && type < int(std::size(kToolTypes)) ? type : kEndMill];
}

/** The record of a row, or null: record 0 belongs to no row. */
const ToolRecord* FindTool(const QList<ToolRecord>& tools, int row)
{
    const int record = row + 1;
    return row >= 0 && record < tools.size() ? &tools.at(record) : nullptr;
}

QString NumberText(double number)
{
    return QString::number(number, 'g', kDigits);
}

void SetColor(QStandardItem* item, const QColor& color)
{
    // A colour and not a brush: the type column's delegate asks for one.
    item->setData(color, Qt::ForegroundRole);
}

} // namespace

CVelmarTableView::CVelmarTableView(QWidget* parent, bool ballMode)
    : QTableView(parent)
    , m_pModel(new QStandardItemModel(kRowCount, ColumnCount, this))
    , m_bBallMode(ballMode)
{
    setModel(m_pModel);
    setFixedSize(kTableSize);
    setStyleSheet(QLatin1String(kTableSheet));
    InitHeaders();
    setShowGrid(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::ClickFocus);
    setEditTriggers(QAbstractItemView::DoubleClicked);
    for (int column = 0; column < ColumnCount; ++column) {
        setColumnWidth(column, kColumnWidths[column]);
    }
    setAlternatingRowColors(true);
    AddSampleRows();
    setIconSize(kPictureSize);

    m_pLineDelegate = new CDelegateLineEdit(this);
    setItemDelegateForColumn(ColumnLength, m_pLineDelegate);
    setItemDelegateForColumn(ColumnDiameter, m_pLineDelegate);
    m_pItemDelegate = new CDelegateTableViewItem(this);
    setItemDelegateForColumn(ColumnType, m_pItemDelegate);
    for (int row = 0; row < kRowCount; ++row) {
        setRowHeight(row, kRowHeight);
    }

    m_pOverlay = new QLabel(this);
    m_pOverlay->setFixedSize(kOverlaySize);
    m_pOverlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_pOverlay->setStyleSheet(QLatin1String(kOverlaySheet));
    m_pOverlay->hide();
    setCurrentIndex(m_pModel->index(0, ColumnNumber));
}

CVelmarTableView::~CVelmarTableView() = default;

void CVelmarTableView::InitHeaders()
{
    m_pModel->setHorizontalHeaderLabels(
        {QTableView::tr("位置"), QTableView::tr("类型"), QTableView::tr("直径"), QTableView::tr("长度")});
    QHeaderView* const header = horizontalHeader();
    header->setDefaultAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    header->setStyleSheet(QLatin1String(kHeaderSheet));
    header->setFont(FontCnBold_14);
    header->setFixedHeight(kHeaderHeight);
    // The toolkit's own minimum grows with the font; the sizes given here are to hold whatever the font.
    header->setMinimumSectionSize(kColumnWidths[ColumnNumber]);
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->hide();
}

void CVelmarTableView::AddSampleRows()
{
    for (int row = 0; row < kRowCount; ++row) {
        auto* number = new QStandardItem(QString::number(row + 1));
        number->setTextAlignment(Qt::AlignCenter);
        number->setFont(FontCnBold_14);
        number->setForeground(kSampleNumberColor);
        number->setEditable(false);
        m_pModel->setItem(row, ColumnNumber, number);

        auto* type = new QStandardItem(GetToolName(row));
        type->setIcon(QIcon(GetToolIconPath(row)));
        SetColor(type, kEligibleColor);
        type->setFont(FontCnMedium_14);
        type->setEditable(false);
        m_pModel->setItem(row, ColumnType, type);

        const QString texts[] = {QStringLiteral("⌀") + QStringLiteral("4"), NumberText(kSampleLength)};
        for (const int column : {ColumnDiameter, ColumnLength}) {
            auto* measure = new QStandardItem(texts[column - ColumnDiameter]);
            measure->setTextAlignment(Qt::AlignCenter);
            SetColor(measure, kEligibleColor);
            measure->setFont(FontCnMedium_14);
            measure->setEditable(true);
            m_pModel->setItem(row, column, measure);
        }
    }
}

void CVelmarTableView::SetToolList(QList<ToolRecord>& list)
{
    // A copy first: a host that listens to the model may touch its list.
    QList<ToolRecord> tools = list;
    for (int row = 0; row < kRowCount; ++row) {
        if (const ToolRecord* tool = FindTool(tools, row)) {
            ShowTool(row, *tool);
        } else {
            ShowNoTool(row);
        }
    }
    m_listTool = std::move(tools);
}

void CVelmarTableView::ShowTool(int row, const ToolRecord& tool)
{
    const QColor color = IsEligible(tool) ? kEligibleColor : kIneligibleColor;
    for (int column = 0; column < ColumnCount; ++column) {
        QStandardItem* const item = m_pModel->item(row, column);
        SetColor(item, color);
        // A tool that cannot be chosen can be measured all the same.
        item->setEditable(column == ColumnDiameter || column == ColumnLength);
    }
    m_pModel->item(row, ColumnType)->setIcon(QIcon(GetToolIconPath(tool.iToolType)));
    m_pModel->item(row, ColumnType)->setText(GetToolName(tool.iToolType));
    m_pModel->item(row, ColumnDiameter)->setText(NumberText(tool.dDiameter));
    m_pModel->item(row, ColumnLength)->setText(NumberText(tool.dLength));
}

void CVelmarTableView::ShowNoTool(int row)
{
    for (int column = 0; column < ColumnCount; ++column) {
        SetColor(m_pModel->item(row, column), kIneligibleColor);
        m_pModel->item(row, column)->setEditable(false);
    }
    m_pModel->item(row, ColumnType)->setIcon(QIcon());
    for (const int column : {ColumnType, ColumnDiameter, ColumnLength}) {
        m_pModel->item(row, column)->setText(QString());
    }
}

bool CVelmarTableView::IsEligible(const ToolRecord& tool) const
{
    return m_bBallMode ? tool.iToolType == kBallNoseMill || tool.iToolType == kTaperedBallNoseMill
                       : tool.iToolType == kEndMill;
}

ToolRecord CVelmarTableView::GetCurrentTool()
{
    const ToolRecord* const tool = FindTool(m_listTool, m_iCurrentRow);
    return tool ? *tool : ToolRecord();
}

void CVelmarTableView::SelectRow(int row)
{
    if (row < 0 || row >= kRowCount) {
        return;
    }
    m_iCurrentRow = row;
    m_pOverlay->move(0, visualRect(m_pModel->index(row, ColumnNumber)).top() + kOverlayTop);
    m_pOverlay->show();
}

QString CVelmarTableView::GetToolIconPath(int type)
{
    return QLatin1String(TypeOf(type).szPicture);
}

QString CVelmarTableView::GetToolName(int type)
{
    return QTableView::tr(TypeOf(type).szName);
}

void CVelmarTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!current.isValid()) {
        return;
    }
    const ToolRecord* const tool = FindTool(m_listTool, current.row());
    if (tool && IsEligible(*tool)) {
        SelectRow(current.row());
    }
}

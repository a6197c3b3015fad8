#include "TipsPage.h"

#include "../GalleryStyle.h"
#include "JogPalette.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintTextToolTip.h>
#include <CustomControls/buttons/CompactBrowser.h>
#include <CustomControls/feedback/CFrostedToolTip.h>

#include <QClipboard>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int ToolSize = 52;
constexpr int ToolIconSize = 32;
constexpr int HintSize = 20;
constexpr int FieldWidth = 96;
constexpr int NoteWidth = 260;
constexpr int CopiedMs = 1500;
constexpr int CopiedGap = 8;
constexpr int JobWidth = 200;
constexpr auto ToolSheet = "QPushButton{border:1px solid #e2e2e2;border-radius:6px;background:#ffffff;}"
                           "QPushButton:hover{border-color:#188553;background:#f4faf7;}";
constexpr auto HintSheet = "CHintButton{border:none;background:transparent;"
                           "image:url(:/icon/simcontrol/ico_warning_line_b_nor.png);}"
                           "CHintButton:hover{image:url(:/icon/simcontrol/ico_warning_line_b_hover.png);}";
constexpr auto FieldSheet = "QLineEdit{border:1px solid #c4c4c4;border-radius:4px;padding:0 8px;background:#ffffff;"
                            "color:#333333;}QLineEdit:focus{border-color:#188553;}";
constexpr auto JobSheet = "CHintButton{border:1px solid #e2e2e2;border-radius:6px;background:#ffffff;color:#333333;"
                          "padding:4px 10px;}CHintButton:hover{border-color:#188553;background:#f4faf7;}";
constexpr auto NoteSheet = "#noteCard{background:#2b3238;border-radius:6px;}"
                           "#noteTitle{color:#ffffff;background:transparent;}";

/** A note with a heading over a block of text, as a host derives one. */
//! [tip-hints]
class ExplainedNote : public CHintToolTip
{
public:
    ExplainedNote(const QString& title, const QString& text, QWidget* parent)
        : CHintToolTip(nullptr, parent)
    {
        setObjectName(QStringLiteral("explainedNote"));
        auto* card = new QFrame;
        card->setObjectName(QStringLiteral("noteCard"));
        card->setStyleSheet(QLatin1String(NoteSheet));
        auto* heading = new QLabel(title);
        heading->setObjectName(QStringLiteral("noteTitle"));
        heading->setFont(FontCnBold_14);
        auto* column = new QVBoxLayout(card);
        column->setContentsMargins(16, 12, 16, 14);
        column->setSpacing(6);
        column->addWidget(heading);
        column->addWidget(CreateCompactBrowser(NoteWidth, text));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        layout->addWidget(card);
    }
};
//! [tip-hints]
} // namespace

TipsPage::TipsPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("tipOutcome")))
{
    m_pOutcome->setText(tr("把指针停在按钮上，提示会淡入；离开或 3.5 秒后淡出。"));
    BeginRow();
    AddToolBar();
    AddEdges();
    EndRow();
    BeginRow();
    AddParameters();
    AddJobs();
    EndRow();
    AddPosition();
}

void TipsPage::hideEvent(QHideEvent* event)
{
    GalleryPage::hideEvent(event);
    if (m_pPalette) {
        m_pPalette->hide();
    }
}

//! [tip-frosted]
void TipsPage::AddToolBar()
{
    struct Tool
    {
        const char* name;
        const char* icon;
        QString tip;
    };
    const Tool tools[] = {
        {"tipBox", ":/icon/selectbox/stock/ico_scanning_box.png", tr("方料毛坯")},
        {"tipCylinder", ":/icon/selectbox/stock/ico_scanning_cylinder.png", tr("圆料毛坯\n适合四轴加工")},
        {"tipModel", ":/icon/selectbox/stock/ico_scanning_stl.png", tr("<b>导入模型</b><br>支持 STL、STEP 与 OBJ")},
        {"tipAdaptive", ":/icon/selectbox/base/ico_scanning_adaptive.png",
         tr("自适应：毛坯随模型的大小改变，四周各留 2 mm 余量")},
        {"tipStart", ":/icon/simcontrol/ico_process_pop_start_g2.png", tr("开始仿真")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (const Tool& tool : tools) {
        auto* button = new QPushButton;
        button->setObjectName(QLatin1String(tool.name));
        button->setFixedSize(ToolSize, ToolSize);
        button->setIcon(QIcon(QLatin1String(tool.icon)));
        // In their own size, or their large twins would show at another one.
        const QSize own = QPixmap(QLatin1String(tool.icon)).deviceIndependentSize().toSize();
        button->setIconSize(own.boundedTo(QSize(ToolIconSize, ToolIconSize)));
        button->setStyleSheet(QLatin1String(ToolSheet));
        button->setCursor(Qt::PointingHandCursor);
        button->setToolTip(tool.tip); // frosted by the filter that main() gives the whole program
        button->setAccessibleName(QTextDocumentFragment::fromHtml(tool.tip).toPlainText().simplified());
        connect(button, &QPushButton::clicked, this,
                [this, button] { m_pOutcome->setText(tr("点击：%1").arg(button->objectName())); });
        row->addWidget(button);
    }
    row->addStretch(1);
    AddCard(tr("工具栏"), tr("一行、两行、富文本和较长的提示。"), QStringLiteral("tip-frosted"))->addLayout(row);
}
//! [tip-frosted]

//! [tip-edges]
void TipsPage::AddEdges()
{
    const QString names[3][3] = {
        {tr("左上"), tr("上"), tr("右上")}, {tr("左"), tr("收起"), tr("右")}, {tr("左下"), tr("下"), tr("右下")}};
    auto* grid = new QGridLayout;
    grid->setSpacing(6);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const bool isClose = row == 1 && column == 1;
            QPushButton* dock =
                CreateCommand(names[row][column],
                              isClose ? QStringLiteral("dockClose") : QStringLiteral("dock%1%2").arg(column).arg(row));
            connect(dock, &QPushButton::clicked, this, [this, column, row, isClose] {
                if (!m_pPalette) {
                    m_pPalette = new JogPalette(this);
                }
                if (isClose) {
                    m_pPalette->hide();
                } else {
                    m_pPalette->DockAt(column, row);
                }
            });
            grid->addWidget(dock, row, column);
        }
    }
    AddCard(tr("点动面板"), tr("停靠在屏幕的边角；提示不会伸出屏幕。"), QStringLiteral("tip-edges"))->addLayout(grid);
}
//! [tip-edges]

//! [tip-hints]
CHintButton* TipsPage::AddParameter(QGridLayout* grid, const QString& name, const QString& value, const QString& unit,
                                    const QString& hintName)
{
    const int row = grid->rowCount();
    const auto label = [](const QString& text) {
        auto* caption = new QLabel(text);
        caption->setFont(FontCn_14);
        return caption;
    };
    auto* field = new QLineEdit(value);
    field->setObjectName(hintName + QStringLiteral("Field"));
    field->setFont(FontCn_14);
    field->setFixedSize(FieldWidth, 30);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setStyleSheet(QLatin1String(FieldSheet));
    auto* hint = new CHintButton;
    hint->setObjectName(hintName);
    hint->setAccessibleName(tr("%1的说明").arg(name));
    hint->setFixedSize(HintSize, HintSize);
    hint->setStyleSheet(QLatin1String(HintSheet));
    QLabel* caption = label(name);
    caption->setBuddy(field);
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(label(unit), row, 2);
    grid->addWidget(hint, row, 3);
    return hint;
}
//! [tip-hints]

//! [tip-hints]
void TipsPage::AddParameters()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(0, 1);
    AddParameter(grid, tr("主轴转速"), QStringLiteral("12000"), tr("转/分"), QStringLiteral("hintSpeed"))
        ->SetToolTipText(tr("铝合金建议 8000 至 12000 转/分。"));
    AddParameter(grid, tr("进给速度"), QStringLiteral("600"), tr("毫米/分"), QStringLiteral("hintFeed"))
        ->SetToolTipText(tr("进给过快会折断刀具，过慢会烧伤材料。第一次加工请先用建议值的一半，声音和切屑正常后再"
                            "逐步提高。"));

    // A note of the host's own stays open when it is pressed, and when its button is.
    CHintButton* depth =
        AddParameter(grid, tr("每层切深"), QStringLiteral("0.30"), tr("毫米"), QStringLiteral("hintDepth"));
    auto* depthNote = new CHintTextToolTip(depth, this);
    depthNote->setObjectName(QStringLiteral("depthNote"));
    depthNote->setText(tr("不超过刀具直径的一半。"));
    depth->SetToolTip(depthNote);

    CHintButton* life =
        AddParameter(grid, tr("刀具寿命"), QStringLiteral("40"), tr("小时"), QStringLiteral("hintLife"));
    life->SetHoverShow(false);
    life->SetToolTip(new ExplainedNote(
        tr("寿命怎样计算"), tr("按主轴带负载的时间累计，空走不计。铝合金按 1 倍，不锈钢按 2.5 倍计入。"), this));
    AddCard(tr("加工参数"), tr("指针停留或点击感叹号查看说明；刀具寿命只在点击后显示。"), QStringLiteral("tip-hints"))
        ->addLayout(grid);
}
//! [tip-hints]

//! [tip-jobs]
void TipsPage::AddJobs()
{
    const QString jobs[] = {tr("支架_铝合金_粗加工_6mm平底刀_第3次修订.nc"), tr("奖章_黄铜_精加工.nc"),
                            tr("外壳上盖_亚克力_轮廓与孔_3.175mm平底刀_双面装夹_第12次修订_待确认.nc")};
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    int index = 0;
    for (const QString& job : jobs) {
        auto* button = new CHintButton;
        button->setObjectName(QStringLiteral("job%1").arg(++index));
        button->setFont(FontCn_13);
        button->setStyleSheet(QLatin1String(JobSheet));
        button->setFixedSize(JobWidth, 52);
        button->SetAutoWrap(true);
        button->setText(job);
        button->SetToolTipText(job);
        connect(button, &QPushButton::clicked, this, [this, job] { m_pOutcome->setText(tr("打开：%1").arg(job)); });
        column->addWidget(button);
    }
    AddCard(tr("最近的刀路"), tr("长文件名逐字换行，放不下的省略；全名在提示里。"), QStringLiteral("tip-jobs"))
        ->addLayout(column);
}
//! [tip-jobs]

//! [tip-copied]
void TipsPage::AddPosition()
{
    const QString position = QStringLiteral("X 128.450   Y -36.120   Z 12.000");
    auto* figures = new QLabel(position);
    figures->setObjectName(QStringLiteral("tipPosition"));
    figures->setFont(FontCnBold_16);
    figures->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));
    QPushButton* copy = CreateCommand(tr("复制坐标"), QStringLiteral("tipCopy"));
    connect(copy, &QPushButton::clicked, this, [this, copy, position] {
        QGuiApplication::clipboard()->setText(position);
        // A tip that the host shows by itself goes when the host says so, and deletes itself then.
        auto* tip = new CFrostedToolTip(tr("坐标已复制到剪贴板"), this);
        tip->setObjectName(QStringLiteral("tipCopied"));
        tip->move(copy->mapToGlobal(QPoint(0, copy->height() + CopiedGap)));
        tip->show();
        QTimer::singleShot(CopiedMs, tip, &CFrostedToolTip::Hide);
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(figures);
    row->addWidget(copy);
    row->addStretch(1);
    AddCard(tr("机床坐标"), tr("程序也可以自己显示磨砂提示，确认刚才的操作。"), QStringLiteral("tip-copied"))
        ->addLayout(row);
}
//! [tip-copied]

#include "GalleryRibbon.h"

#include "GalleryStyle.h"
#include "OverflowMenu.h"
#include "machine/CurrentMachine.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/CToolBarStyle.h>
#include <CustomControls/feedback/ToastWidget.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QProxyStyle>
#include <QTimer>

namespace {
constexpr int ReasonMs = 4000;
constexpr int ReasonBelow = 16;
const QString MachineColor = QStringLiteral("#dcefe6");
const QString StartColor = QStringLiteral("#fbe7c6");

/**
 * Without the frame that the system's style may put around a tool bar a block is exactly as high as it wants to be, and
 * the picture of the ribbon shows behind the last one.
 */
class RowStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_ToolBarFrameWidth ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/** One for all blocks, which the application outlives. */
CToolBarStyle* BlockStyle()
{
    static const QPointer<CToolBarStyle> style = [] {
        auto* made = new CToolBarStyle(new RowStyle(QStringLiteral("Fusion")));
        made->setParent(qApp);
        return made;
    }();
    return style;
}
} // namespace

GalleryRibbon::GalleryRibbon(QWidget* parent)
    : CTabToolWidget(parent)
    , m_pReasonTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("galleryRibbon"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_pReasonTimer->setSingleShot(true);
    m_pReasonTimer->setInterval(ReasonMs);

    AddHomeTab();
    AddModelTab();
    AddMachiningTab();
    AddHelpTab();
    // Each tab is a row of its own, and the rows are to be of one height, or the pages would jump with the tabs.
    CToolBarItem::UnifyBlocksHeight(findChildren<CToolBarItem*>());
    connect(this, &QTabWidget::currentChanged, this, [this] { delete m_pReason; });
    connect(m_pReasonTimer, &QTimer::timeout, this, [this] { delete m_pReason; });
}

GalleryRibbon::~GalleryRibbon()
{
    delete m_pReason; // the window's child, and about a tool of this ribbon
}

void GalleryRibbon::TakeOver(const GalleryRibbon& other)
{
    setCurrentIndex(other.currentIndex());
    m_bSilent = true;
    for (auto tool = m_tools.cbegin(); tool != m_tools.cend(); ++tool) {
        const CToolButton* before = other.m_tools.value(tool.key());
        tool.value()->setEnabled(before->isEnabled());
        if (before->isChecked()) {
            tool.value()->click(); // its block is to know of it too
        }
    }
    m_bSilent = false;
}

void GalleryRibbon::AddHomeTab()
{
    BeginTab(tr("开始"));
    BeginBlock(tr("文件"));
    AddTool("new", tr("新建"));
    AddTool("open", tr("打开"));
    AddStack({{"save", tr("保存")}, {"save_as", tr("另存为")}, {"export", tr("导出")}});
    EndBlock();
    BeginBlock(tr("机床"));
    AddTool("connect", tr("连接机床"), MachineColor);
    AddTool("send", tr("发送程序"));
    AddStack({{"origin", tr("回原点")}, {"probe", tr("对刀")}});
    EndBlock();
    BeginBlock(tr("视图"));
    AddTool("select", tr("选择"));
    AddTool("measure", tr("测量"));
    AddStack({{"fit", tr("适合窗口")}, {"grid", tr("显示网格")}});
    EndBlock();

    OnClickReport("new", tr("已新建工程。"));
    SetMenu("open", {tr("底座.cam"), tr("浮雕.cam"), tr("齿轮箱盖.cam")}, tr("已打开工程“%1”。"));
    OnClickReport("save", tr("工程已保存。"));
    OnClickReport("save_as", tr("工程已另存为副本。"));
    OnClickReport("export", tr("加工程序已导出。"));
    OnClickOpen("connect", QStringLiteral("machine"));
    OnClickReport("send", tr("加工程序已发送到机床。"));
    OnClickReport("origin", tr("机床正在回原点。"));
    OnClickReport("probe", tr("机床正在对刀。"));
    OnClickReport("fit", tr("视图已适合窗口。"));
    OnClickReport("grid", tr("网格已切换。"));
    MakeCheckable({"select", "measure"});

    const QList<const char*> needMachine = {"send", "origin", "probe"};
    Disable(needMachine, tr("请先连接机床。"));
    connect(CurrentMachine::instance(), &CurrentMachine::SignalChanged, this, [this, needMachine] {
        for (const char* name : needMachine) {
            Tool(name)->setEnabled(CurrentMachine::instance()->IsConnected());
        }
    });
}

void GalleryRibbon::AddModelTab()
{
    BeginTab(tr("模型"));
    BeginBlock(tr("几何"));
    AddTool("import", tr("导入几何"));
    AddStack({{"repair", tr("修复网格")}, {"simplify", tr("简化网格")}});
    EndBlock();
    BeginBlock(tr("毛坯"));
    AddTool("stock_box", tr("方料"));
    AddTool("stock_cylinder", tr("圆料"));
    AddTool("stock_model", tr("模型毛坯"));
    AddTool("material", tr("材料"));
    EndBlock();
    BeginBlock(tr("变换"));
    AddTool("align", tr("居中对齐"));
    AddStack({{"rotate", tr("旋转")}, {"mirror", tr("镜像")}, {"scale", tr("缩放")}});
    EndBlock();

    OnClickReport("import", tr("几何已导入：三角面 12 480 个。"));
    OnClickReport("repair", tr("网格已修复。"));
    OnClickReport("simplify", tr("网格已简化一半。"));
    OnClickReport("stock_box", tr("毛坯：方料。"));
    OnClickReport("stock_cylinder", tr("毛坯：圆料。"));
    OnClickReport("stock_model", tr("毛坯：与模型同形。"));
    SetMenu("material", {tr("木材"), tr("铜"), tr("亚克力"), tr("玉石")}, tr("材料：%1。"));
    OnClickReport("align", tr("模型已移到毛坯中央。"));
    OnClickReport("rotate", tr("模型已旋转 90 度。"));
    OnClickReport("mirror", tr("模型已镜像。"));
    OnClickReport("scale", tr("模型已放大一倍。"));
}

void GalleryRibbon::AddMachiningTab()
{
    BeginTab(tr("加工"));
    BeginBlock(tr("策略"));
    AddTool("rough", tr("粗加工"));
    AddTool("semi", tr("半精加工"));
    AddTool("finish", tr("精加工"));
    AddTool("thread", tr("螺纹"));
    AddTool("texture", tr("纹理"));
    EndBlock();
    BeginBlock(tr("刀具"));
    AddTool("library", tr("刀具库"));
    AddStack({{"tool_add", tr("添加刀具")}, {"tool_length", tr("刀具长度")}, {"tool_offset", tr("刀具补偿")}});
    EndBlock();
    BeginBlock(tr("刀路"));
    AddTool("generate", tr("生成刀路"), StartColor);
    AddTool("simulate", tr("仿真"));
    AddTool("collision", tr("碰撞检查"));
    EndBlock();

    MakeCheckable({"rough", "semi", "finish", "thread", "texture"});
    OnClickReport("library", tr("刀具库：6 把刀具。"));
    OnClickReport("tool_add", tr("已添加一把刀具。"));
    OnClickReport("tool_length", tr("刀具长度：42.0 毫米。"));
    OnClickReport("tool_offset", tr("刀具补偿：0.02 毫米。"));
    OnClickReport("simulate", tr("仿真完成，用时 1 小时 12 分。"));
    OnClickReport("collision", tr("没有碰撞。"));
    Disable({"simulate", "collision"}, tr("请先生成刀路。"));
    OnClick("generate", [this] {
        Report(tr("刀路已生成：3 道工序。"));
        Tool("simulate")->setEnabled(true);
        Tool("collision")->setEnabled(true);
    });
}

void GalleryRibbon::AddHelpTab()
{
    BeginTab(tr("帮助"));
    BeginBlock(tr("控件"));
    AddTool("page_buttons", tr("主题按钮"));
    AddTool("page_boxes", tr("消息框"));
    AddTool("page_progress", tr("进度对话框"));
    EndBlock();
    BeginBlock(tr("日志"));
    AddStack({{"log_note", tr("写入备注")}, {"log_folder", tr("日志位置")}});
    EndBlock();
    BeginBlock(tr("关于"));
    AddTool("question", tr("提问"));
    AddTool("about", tr("关于"));
    EndBlock();

    OnClickOpen("page_buttons", QStringLiteral("buttons"));
    OnClickOpen("page_boxes", QStringLiteral("message-boxes"));
    OnClickOpen("page_progress", QStringLiteral("progress"));
    OnClickReport("log_note", tr("备注：夹具已换。"));
    OnClick("log_folder", [this] { Report(tr("日志文件：%1").arg(QDir::toNativeSeparators(CDebugLog::LogFile()))); });
    OnClick("question", [this] {
        // While the box is open the language may change, and the ribbon with it.
        const QPointer<GalleryRibbon> self(this);
        const int answer = CVelmarMessageBox::ShowWindow(window(), MsgBtnYes | MsgBtnNo, MsgIconPop2, tr("提问"),
                                                         tr("毛坯已夹紧吗？"));
        if (!self) {
            return;
        }
        Report(answer == MsgBtnYes ? tr("回答：是。") : tr("回答：否。"));
    });
    OnClick("about", [this] {
        CVelmarMessageBox::ShowWindow(window(), MsgBtnOk, MsgIconPop1, tr("关于"),
                                      tr("控件陈列室 %1").arg(QCoreApplication::applicationVersion()));
    });
}

void GalleryRibbon::BeginTab(const QString& caption)
{
    // A main window for its row of tool bars: the first bars keep their width when the window narrows.
    m_pRow = new QMainWindow;
    m_pRow->setWindowFlags(Qt::Widget);
    addTab(m_pRow, caption);
}

void GalleryRibbon::BeginBlock(const QString& caption)
{
    m_pBlock = new CToolBarItem(caption, m_pRow);
    m_pBlock->setStyle(BlockStyle());
    m_pBlock->SetSplitLastWordMode(true);
    m_names.clear();
}

void GalleryRibbon::AddTool(const char* name, const QString& caption, const QString& highlight)
{
    const QString path = QStringLiteral(":/gallery/ribbon/%1%2.png");
    const QString icon = path.arg(QLatin1String(name), QString());
    const QString disabled = path.arg(QLatin1String(name), QStringLiteral("_off"));
    const QString disabledIcon = QFile::exists(disabled) ? disabled : QString();
    if (highlight.isEmpty()) {
        m_pBlock->AddItem(icon, caption, 0, disabledIcon);
    } else {
        m_pBlock->AddItemHighlight(icon, caption, 0, disabledIcon, highlight);
    }
    m_names.append(QLatin1String(name));
}

void GalleryRibbon::AddStack(const QList<Row>& rows)
{
    QStringList icons;
    QStringList captions;
    QStringList disabled;
    for (const Row& row : rows) {
        const QString name = QLatin1String(row.first);
        icons.append(QStringLiteral(":/gallery/ribbon/%1.png").arg(name));
        captions.append(row.second);
        const QString off = QStringLiteral(":/gallery/ribbon/%1_off.png").arg(name);
        disabled.append(QFile::exists(off) ? off : QString());
        m_names.append(name);
    }
    m_pBlock->AddItemVertical(icons, captions, QList<int>(rows.size(), 0), disabled);
}

void GalleryRibbon::EndBlock()
{
    const QList<CToolButton*> buttons = m_pBlock->CreateToolBlock(true);
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        buttons.at(i)->setObjectName(QStringLiteral("tool-") + m_names.at(i));
        m_tools.insert(m_names.at(i), buttons.at(i));
    }
    m_pRow->addToolBar(m_pBlock);
    new OverflowMenu(m_pBlock, buttons);
}

CToolButton* GalleryRibbon::Tool(const char* name) const
{
    return m_tools.value(QLatin1String(name));
}

void GalleryRibbon::OnClick(const char* name, const std::function<void()>& action)
{
    connect(Tool(name), &CToolButton::clicked, this, action);
}

void GalleryRibbon::OnClickReport(const char* name, const QString& text)
{
    OnClick(name, [this, text] { Report(text); });
}

void GalleryRibbon::OnClickOpen(const char* name, const QString& page)
{
    OnClick(name, [this, page] { Q_EMIT SignalOpenPage(page); });
}

void GalleryRibbon::SetMenu(const char* name, const QStringList& entries, const QString& report)
{
    auto* menu = new QMenu(Tool(name));
    menu->setObjectName(QStringLiteral("menu-") + QLatin1String(name));
    menu->setFont(FontCn_13);
    menu->setStyleSheet(GalleryStyle::Menu());
    for (const QString& entry : entries) {
        connect(menu->addAction(entry), &QAction::triggered, this,
                [this, entry, report] { Report(report.arg(entry)); });
    }
    // The pointer leaves the tool while the menu has the mouse, and nobody tells the tool.
    connect(menu, &QMenu::aboutToHide, Tool(name), &CToolButton::ClearHover);
    Tool(name)->setMenu(menu);
    Tool(name)->setPopupMode(QToolButton::InstantPopup);
}

void GalleryRibbon::MakeCheckable(const QList<const char*>& names)
{
    for (const char* name : names) {
        CToolButton* tool = Tool(name);
        tool->setCheckable(true);
        m_checkable.append(tool);
        // One tool at a time, over all tabs: the blocks keep track of the checked one, the host unchecks the others.
        connect(tool, &CToolButton::clicked, this, [this, tool](bool checked) {
            for (CToolButton* other : std::as_const(m_checkable)) {
                other->setChecked(other == tool && checked);
            }
            Report(checked ? tr("当前工具：%1").arg(tool->text().simplified()) : tr("没有选中的工具。"));
        });
    }
}

void GalleryRibbon::Disable(const QList<const char*>& names, const QString& reason)
{
    for (const char* name : names) {
        Tool(name)->setEnabled(false);
        connect(Tool(name), &CToolButton::SignalBtnDisabledClick, this, [this, reason] { ShowReason(reason); });
    }
}

void GalleryRibbon::Report(const QString& text) const
{
    if (!m_bSilent) {
        Q_EMIT CorvaneSignalHelper::instance()->signalFilePluginAppendLog(text,
                                                                          QColor(QLatin1String(GalleryStyle::Ink)));
    }
}

void GalleryRibbon::ShowReason(const QString& reason)
{
    delete m_pReason;
    m_pReason = new ToastWidget(ToastWidget::ToastCustomText, window(), reason);
    m_pReason->setObjectName(QStringLiteral("ribbonReason"));
    m_pReason->move(mapToGlobal(QPoint((width() - m_pReason->width()) / 2, height() + ReasonBelow)));
    m_pReason->show();
    m_pReasonTimer->start();
}

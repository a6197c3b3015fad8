#include "PageRegistry.h"

#include "GalleryLanguage.h"
#include "pages/ButtonsPage.h"
#include "pages/CombosPage.h"
#include "pages/FramelessWindowsPage.h"
#include "pages/MachinePage.h"
#include "pages/MenusPage.h"
#include "pages/MessageBoxesPage.h"
#include "pages/ParametersPage.h"
#include "pages/ProgressPage.h"
#include "pages/TextPage.h"
#include "pages/TipsPage.h"
#include "pages/ToastsPage.h"
#include "pages/ToolBarsPage.h"
#include "pages/ToolTablePage.h"
#include "pages/WatermarkPage.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr auto Context = "PageRegistry";

template <class Page>
GalleryPage* Create(const GalleryOptions& options)
{
    return new Page(options);
}

/** Names, parted by blanks. */
QStringList List(const char* names)
{
    return QString::fromUtf8(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}
} // namespace

QString PageEntry::Title() const
{
    return QCoreApplication::translate(Context, pTitle);
}

QString PageEntry::Purpose() const
{
    return QCoreApplication::translate(Context, pPurpose);
}

bool PageEntry::Matches(const QString& search) const
{
    const QStringList places =
        QStringList{QString::fromUtf8(pTitle), GalleryLanguage::InEnglish(Context, pTitle)} + classes + keywords;
    const QStringList words = search.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(), [&places](const QString& word) {
        return std::any_of(places.begin(), places.end(),
                           [&word](const QString& place) { return place.contains(word, Qt::CaseInsensitive); });
    });
}

const QList<PageEntry>& GalleryPages()
{
    // clang-format off
    static const QList<PageEntry> pages = {
        {QStringLiteral("buttons"), QStringLiteral("pages/ButtonsPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "主题按钮"),
         QT_TRANSLATE_NOOP("PageRegistry", "八种类型的按钮，三种背景，可选中、可带气泡。"),
         List("CVelmarButton"),
         List("按钮 气泡 状态灯 导航 渐变 button bubble lamp navigation gradient"), Create<ButtonsPage>},
        {QStringLiteral("parameters"), QStringLiteral("pages/ParametersPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "参数面板"),
         QT_TRANSLATE_NOOP("PageRegistry", "材料、尺寸、角度、开关与工序：一次加工的准备。"),
         List("CTextEdit CSelectBox CSelectButton CIconButton CUnitButton CFunctionBtnWidget"),
         List("数值 开关 材料 工序 number switch field material step"), Create<ParametersPage>},
        {QStringLiteral("menus"), QStringLiteral("pages/MenusPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "菜单栏"),
         QT_TRANSLATE_NOOP("PageRegistry", "按钮与面板组成的菜单栏：图标、快捷键、子菜单、勾选项。"),
         List("CCustomMenu CCustomMenuItem CMenuBtnHelper"),
         List("菜单 快捷键 menu shortcut bar"), Create<MenusPage>},
        {QStringLiteral("tool-bars"), QStringLiteral("pages/ToolBarsPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "工具栏与标签页"),
         QT_TRANSLATE_NOOP("PageRegistry", "成组的工具、细工具栏和深色标签页；窗口上方的功能区也由它们组成。"),
         List("CToolBar CToolBarItem CToolButton CToolButtonVertical CToolBarStyle CTabWidget CTabBar StatefulIcon"),
         List("功能区 图标 视角 ribbon icon tab view CTabToolWidget"), Create<ToolBarsPage>},
        {QStringLiteral("message-boxes"), QStringLiteral("pages/MessageBoxesPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "消息框"),
         QT_TRANSLATE_NOOP("PageRegistry", "一次调用即可提问，返回用户按下的按钮。"),
         List("CVelmarMessageBox"),
         List("对话框 提问 警告 dialog question warning confirm"), Create<MessageBoxesPage>},
        {QStringLiteral("tool-table"), QStringLiteral("pages/ToolTablePage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "刀具与程序"),
         QT_TRANSLATE_NOOP("PageRegistry", "刀库里的刀具：能用的可以选择，直径和长度就地修改；以及等待加工的程序。"),
         List("CDelegateLineEdit CDelegateTableViewItem CFileNameDelegate CVelmarMessageListItem"),
         List("表格 刀库 委托 table delegate magazine"), Create<ToolTablePage>},
        {QStringLiteral("combos"), QStringLiteral("pages/CombosPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "下拉框"),
         QT_TRANSLATE_NOOP("PageRegistry", "面板里的深色下拉框，表格里的浅色下拉框，以及一层菜单。"),
         List("CComboBox CTableComboBox CXCombobox CVelmarMenu CVelmarMenuItem"),
         List("选择 菜单 主轴 combo list menu spindle"), Create<CombosPage>},
        {QStringLiteral("text"), QStringLiteral("pages/TextPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "文本"),
         QT_TRANSLATE_NOOP("PageRegistry", "编辑器和浏览器，右键菜单与整个程序一致。"),
         List("CPlainTextEdit CTextBrowser"),
         List("编辑 复制 粘贴 手册 editor browser copy paste manual"), Create<TextPage>},
        {QStringLiteral("machine"), QStringLiteral("pages/MachinePage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "连接机床"),
         QT_TRANSLATE_NOOP("PageRegistry", "通过有线网络、无线网络或 USB Type-C 找到并连接机床。"),
         List("CSelectMachineBox"),
         List("网络 以太网 无线 标定 network Ethernet Wi-Fi USB calibration"), Create<MachinePage>},
        {QStringLiteral("progress"), QStringLiteral("pages/ProgressPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "进度对话框"),
         QT_TRANSLATE_NOOP("PageRegistry", "长时间任务的进度：由程序给出，或自行缓慢前进。"),
         List("CProgressWidget CProgressBar"),
         List("进度条 百分比 取消 bar percent cancel"), Create<ProgressPage>},
        {QStringLiteral("toasts"), QStringLiteral("pages/ToastsPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "视图提示"),
         QT_TRANSLATE_NOOP("PageRegistry", "加工区上方的红色提示：不抢焦点，鼠标可以穿过。"),
         List("ToastWidget"),
         List("通知 警告 notice warning strip"), Create<ToastsPage>},
        {QStringLiteral("tips"), QStringLiteral("pages/TipsPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "工具提示与说明"),
         QT_TRANSLATE_NOOP("PageRegistry", "磨砂工具提示，以及停留或点击后出现的说明。"),
         List("CHintButton CHintToolTip CHintTextToolTip CFrostedToolTip CreateCompactBrowser"),
         List("悬停 磨砂 帮助 hover frosted help note CCustomAppStyle ToolTipEventFilter"), Create<TipsPage>},
        {QStringLiteral("watermark"), QStringLiteral("pages/WatermarkPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "标记与动画"),
         QT_TRANSLATE_NOOP("PageRegistry", "内部版本的斜纹标记，以及逐帧播放的图片。"),
         List("CWatermarkWidget CVelmarAnimation"),
         List("水印 逐帧 动画 watermark frames animation"), Create<WatermarkPage>},
        {QStringLiteral("frameless-windows"), QStringLiteral("pages/FramelessWindowsPage.cpp"),
         QT_TRANSLATE_NOOP("PageRegistry", "无边框窗口"),
         QT_TRANSLATE_NOOP("PageRegistry", "没有系统边框的主窗口和对话框，标题栏由程序自己画。"),
         List("FramelessMainWindow FramelessDialog PureQtFramelessWindow CVelmarSelectBox CFixedSizePopWidget "
              "CMsgBoxBackground"),
         List("标题栏 窗口 对话框 title window dialog"), Create<FramelessWindowsPage>},
    };
    // clang-format on
    return pages;
}

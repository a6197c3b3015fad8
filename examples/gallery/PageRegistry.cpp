#include "PageRegistry.h"

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
#include "pages/ToolTablePage.h"
#include "pages/WatermarkPage.h"

#include <QCoreApplication>

namespace {
template <class Page>
GalleryPage* Create(const GalleryOptions& options)
{
    return new Page(options);
}

QString Text(const char* text)
{
    return QCoreApplication::translate("PageRegistry", text);
}
} // namespace

const QList<PageEntry>& GalleryPages()
{
    // clang-format off
    static const QList<PageEntry> pages = {
        {QStringLiteral("buttons"), Text(QT_TRANSLATE_NOOP("PageRegistry", "主题按钮")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "八种类型的按钮，三种背景，可选中、可带气泡。")), Create<ButtonsPage>},
        {QStringLiteral("parameters"), Text(QT_TRANSLATE_NOOP("PageRegistry", "参数面板")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "材料、尺寸、角度、开关与工序：一次加工的准备。")), Create<ParametersPage>},
        {QStringLiteral("menus"), Text(QT_TRANSLATE_NOOP("PageRegistry", "菜单栏")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "按钮与面板组成的菜单栏：图标、快捷键、子菜单、勾选项。")), Create<MenusPage>},
        {QStringLiteral("message-boxes"), Text(QT_TRANSLATE_NOOP("PageRegistry", "消息框")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "一次调用即可提问，返回用户按下的按钮。")), Create<MessageBoxesPage>},
        {QStringLiteral("tool-table"), Text(QT_TRANSLATE_NOOP("PageRegistry", "刀具表")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "刀库里的刀具：能用的可以选择，直径和长度就地修改。")), Create<ToolTablePage>},
        {QStringLiteral("combos"), Text(QT_TRANSLATE_NOOP("PageRegistry", "下拉框")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "面板里的深色下拉框，表格里的浅色下拉框，以及一层菜单。")), Create<CombosPage>},
        {QStringLiteral("text"), Text(QT_TRANSLATE_NOOP("PageRegistry", "文本")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "编辑器和浏览器，右键菜单与整个程序一致。")), Create<TextPage>},
        {QStringLiteral("machine"), Text(QT_TRANSLATE_NOOP("PageRegistry", "连接机床")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "通过有线网络、无线网络或 USB Type-C 找到并连接机床。")), Create<MachinePage>},
        {QStringLiteral("progress"), Text(QT_TRANSLATE_NOOP("PageRegistry", "进度对话框")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "长时间任务的进度：由程序给出，或自行缓慢前进。")), Create<ProgressPage>},
        {QStringLiteral("toasts"), Text(QT_TRANSLATE_NOOP("PageRegistry", "视图提示")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "加工区上方的红色提示：不抢焦点，鼠标可以穿过。")), Create<ToastsPage>},
        {QStringLiteral("tips"), Text(QT_TRANSLATE_NOOP("PageRegistry", "工具提示与说明")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "磨砂工具提示，以及停留或点击后出现的说明。")), Create<TipsPage>},
        {QStringLiteral("watermark"), Text(QT_TRANSLATE_NOOP("PageRegistry", "标记与动画")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "内部版本的斜纹标记，以及逐帧播放的图片。")), Create<WatermarkPage>},
        {QStringLiteral("frameless-windows"), Text(QT_TRANSLATE_NOOP("PageRegistry", "无边框窗口")),
         Text(QT_TRANSLATE_NOOP("PageRegistry", "没有系统边框的主窗口和对话框，标题栏由程序自己画。")), Create<FramelessWindowsPage>},
    };
    // clang-format on
    return pages;
}

#include <CustomControls/toolbar/CTabWidget.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/toolbar/CTabBar.h>

namespace {

// The arrows that it names belong to scroll buttons, which are off.
const QString kSheet = QStringLiteral(
    "QTabWidget{background:#34363B;border:none;}QTabWidget::pane{background:#EEEEEE;border-top:1px solid #27282e;}"
    "QTabWidget::pane:top{top:3px;}QTabWidget::tab-bar{left:1px;top:4px;}"
    "QTabBar{background:#34363B;color:#676d7a;margin-top:4px;}"
    "QTabBar::tab{height:30px;background:#EEEEEE;color:#262626;border:none;border-bottom:1px solid red;}"
    "QTabBar::tab:selected{color:#188553;background:#EEEEEE;border-top:4px solid #188553;border-radius:0px;}"
    "QTabBar::tab:!selected{color:#eeeeee;border:none; background:transparent;margin-top:6px;}"
    "QToolButton{background:#34363B;border:none;}"
    "QToolButton::left-arrow{background:#34363B;image:url(:/icon/icon/arrow_l_.png);border:none;"
    "border-left:1px solid #f7282e;border-bottom:1px solid #f7282e;}"
    "QToolButton::left-arrow:hover{background:#f0f0f0;}QToolButton::left-arrow:pressed{background:#f0f0f0;}"
    "QToolButton::left-arrow:disabled{background:#e0e0e0;}"
    "QToolButton::right-arrow{background:#34363B;image:url(:/icon/icon/arrow_r_.png);border:none;"
    "border-bottom:1px solid #f7282e;}"
    "QToolButton::right-arrow:hover{background:#f0f0f0;border-bottom:1px solid #f7282e;}"
    "QToolButton::right-arrow:pressed{background:#f0f0f0;}QToolButton::right-arrow:disabled{background:#e0e0e0;}");

} // namespace

CTabWidget::CTabWidget(QWidget* parent)
    : QTabWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(kSheet);

    auto* tabs = new CTabBar(this);
    setTabBar(tabs);
    tabs->setTabsClosable(false);
    tabs->setFont(FontCnMedium_16);
    tabs->setElideMode(Qt::ElideNone);
    tabs->setUsesScrollButtons(false);
    tabs->setDocumentMode(false);
    tabs->setExpanding(true);
}

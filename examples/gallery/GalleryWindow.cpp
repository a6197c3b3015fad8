#include "GalleryWindow.h"

#include "GalleryPage.h"
#include "GalleryRibbon.h"
#include "GalleryStyle.h"
#include "GalleryTitleBar.h"
#include "LogPane.h"
#include "PageRegistry.h"
#include "StatusLine.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
constexpr int ListWidth = 208;
constexpr int RowHeight = 44;
constexpr auto ListSheet =
    "#pageList{background:#f6f6f6;border:none;border-right:1px solid #e2e2e2;outline:none;padding:16px 12px;}"
    "#pageList::item{color:#333333;border-radius:6px;padding-left:14px;margin-bottom:4px;}"
    "#pageList::item:hover{background:#e6ebe8;}"
    "#pageList::item:selected{background:#188553;color:#ffffff;}";
constexpr auto PageSheet = "#pageScroll,#pageScroll>#qt_scrollarea_viewport{background:#fbfbfb;border:none;}";
} // namespace

GalleryWindow::GalleryWindow(const GalleryOptions& options, QWidget* parent)
    : FramelessMainWindow(parent)
    , m_options(options)
    , m_pPageList(new QListWidget)
    , m_pStack(new QStackedWidget)
{
    setObjectName(QStringLiteral("galleryWindow"));
    setWindowTitle(QStringLiteral("CustomControls"));
    resize(QSize(1280, 900).boundedTo(screen()->availableSize()));

    m_pPageList->setObjectName(QStringLiteral("pageList"));
    m_pPageList->setFixedWidth(ListWidth);
    m_pPageList->setFont(FontCn_15);
    m_pPageList->setStyleSheet(QLatin1String(ListSheet));
    m_pPageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PageEntry& page : GalleryPages()) {
        auto* item = new QListWidgetItem(page.strTitle, m_pPageList);
        item->setSizeHint(QSize(0, RowHeight));
        // Filled when the page is first opened, so that the window is up at once however many pages there are.
        m_pStack->addWidget(new QScrollArea);
    }

    auto* page = new QVBoxLayout;
    page->setSpacing(0);
    page->addWidget(m_pStack, 1);
    page->addWidget(new LogPane);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_pPageList);
    middle->addLayout(page, 1);
    auto* titleBar = new GalleryTitleBar(this, GalleryTitleBar::ButtonsAll, tr("控件陈列室"));
    setTitleBar(titleBar);
    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(titleBar);
    auto* ribbon = new GalleryRibbon;
    layout->addWidget(ribbon);
    layout->addLayout(middle, 1);
    layout->addWidget(new StatusLine);
    setCentralWidget(central);

    connect(m_pPageList, &QListWidget::currentRowChanged, this, &GalleryWindow::ShowRow);
    connect(ribbon, &GalleryRibbon::SignalOpenPage, this, &GalleryWindow::OpenPage);
    m_pPageList->setCurrentRow(0);

    CVelmarMessageBox::SetMainWindow(this);
    CorvaneSignalHelper* helper = CorvaneSignalHelper::instance();
    connect(helper, &CorvaneSignalHelper::signalActiveMainWindow, this, [this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        activateWindow();
    });
    connect(qApp, &QCoreApplication::aboutToQuit, helper, &CorvaneSignalHelper::signalAboutToExit);
    CDebugLog::AddLog(
        QStringLiteral("gallery %1 on Qt %2").arg(QCoreApplication::applicationVersion(), QLatin1String(qVersion())));
}

bool GalleryWindow::OpenPage(const QString& name)
{
    const QList<PageEntry>& pages = GalleryPages();
    for (int row = 0; row < pages.size(); ++row) {
        if (pages.at(row).strName == name) {
            m_pPageList->setCurrentRow(row);
            return true;
        }
    }
    return false;
}

void GalleryWindow::ShowRow(int row)
{
    auto* scroll = qobject_cast<QScrollArea*>(m_pStack->widget(row));
    if (!scroll) {
        return;
    }
    if (!scroll->widget()) {
        const PageEntry& entry = GalleryPages().at(row);
        GalleryPage* page = entry.create(m_options);
        page->setObjectName(QStringLiteral("page-") + entry.strName);
        page->SetHeading(entry.strTitle, entry.strPurpose);
        scroll->setObjectName(QStringLiteral("pageScroll"));
        scroll->setStyleSheet(QLatin1String(PageSheet));
        scroll->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
        scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll->setWidgetResizable(true);
        scroll->setWidget(page);
        page->setAutoFillBackground(false);
    }
    m_pStack->setCurrentIndex(row);
}

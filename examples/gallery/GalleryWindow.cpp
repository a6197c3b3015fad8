#include "GalleryWindow.h"

#include "GalleryLanguage.h"
#include "GalleryPage.h"
#include "GalleryRibbon.h"
#include "GalleryStyle.h"
#include "GalleryTitleBar.h"
#include "LogPane.h"
#include "PageList.h"
#include "PageRegistry.h"
#include "StatusLine.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <memory>

namespace {
constexpr int RibbonPlace = 1; // below the title bar
constexpr auto PageSheet = "#pageScroll,#pageScroll>#qt_scrollarea_viewport{background:#fbfbfb;border:none;}";
} // namespace

GalleryWindow::GalleryWindow(const GalleryOptions& options, QWidget* parent)
    : FramelessMainWindow(parent)
    , m_options(options)
    , m_pPageList(new PageList)
    , m_pStack(new QStackedWidget)
{
    setObjectName(QStringLiteral("galleryWindow"));
    setWindowTitle(QStringLiteral("CustomControls"));
    resize(QSize(1280, 900).boundedTo(screen()->availableSize()));

    for (qsizetype page = 0; page < GalleryPages().size(); ++page) {
        // Filled when the page is first opened, so that the window is up at once however many pages there are.
        auto* scroll = new QScrollArea;
        scroll->setObjectName(QStringLiteral("pageScroll"));
        scroll->setStyleSheet(QLatin1String(PageSheet));
        scroll->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
        scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll->setWidgetResizable(true);
        scroll->setFocusPolicy(Qt::ClickFocus); // with Tab what it holds is reached, which hands it the scrolling keys
        m_pStack->addWidget(scroll);
    }

    auto* page = new QVBoxLayout;
    page->setSpacing(0);
    page->addWidget(m_pStack, 1);
    page->addWidget(new LogPane);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_pPageList);
    middle->addLayout(page, 1);
    m_pTitleBar = new GalleryTitleBar(this, GalleryTitleBar::ButtonsAll);
    m_pLanguage = CreateLanguageButton();
    m_pTitleBar->AddWidget(m_pLanguage);
    setTitleBar(m_pTitleBar);
    auto* central = new QWidget;
    m_pLayout = new QVBoxLayout(central);
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLayout->addWidget(m_pTitleBar);
    m_pLayout->addLayout(middle, 1);
    m_pLayout->addWidget(new StatusLine);
    setCentralWidget(central);
    Retranslate();

    connect(m_pPageList, &PageList::SignalPageOpened, this, &GalleryWindow::ShowPage);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_pPageList, &PageList::FocusSearch);
    m_pPageList->SetCurrentPage(0);
    m_pPageList->setFocus();

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
    for (int page = 0; page < pages.size(); ++page) {
        if (pages.at(page).strName == name) {
            m_pPageList->SetCurrentPage(page);
            return true;
        }
    }
    return false;
}

void GalleryWindow::SetLanguage(const QString& language)
{
    if (language == QLatin1String("zh") || language == QLatin1String("en")) {
        GalleryLanguage::Use(language == QLatin1String("zh"));
    }
}

void GalleryWindow::changeEvent(QEvent* event)
{
    FramelessMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

CVelmarButton* GalleryWindow::CreateLanguageButton()
{
    CVelmarButton* button = m_pTitleBar->CreateButton(QStringLiteral("titleLanguage"), ButtonTypeText);
    connect(button, &CVelmarButton::SignalClicked, this,
            [this] { SetLanguage(GalleryLanguage::IsChinese() ? QStringLiteral("en") : QStringLiteral("zh")); });
    return button;
}

void GalleryWindow::CreateRibbon()
{
    // Goes when the new one has taken over the state of its tools.
    const std::unique_ptr<GalleryRibbon> old(m_pRibbon);
    m_pRibbon = new GalleryRibbon;
    m_pLayout->insertWidget(RibbonPlace, m_pRibbon);
    // A layout shows what it takes in with a posted call, until which the window would stand without a ribbon.
    m_pRibbon->show();
    connect(m_pRibbon, &GalleryRibbon::SignalOpenPage, this, &GalleryWindow::OpenPage);
    if (old) {
        m_pRibbon->TakeOver(*old);
    }
}

void GalleryWindow::ShowPage(int page)
{
    auto* scroll = qobject_cast<QScrollArea*>(m_pStack->widget(page));
    if (!scroll) {
        return;
    }
    if (!scroll->widget()) {
        const PageEntry& entry = GalleryPages().at(page);
        GalleryPage* content = entry.create(m_options);
        content->setObjectName(QStringLiteral("page-") + entry.strName);
        content->SetHeading(entry.Title(), entry.Purpose());
        scroll->setWidget(content);
        content->setAutoFillBackground(false);
    }
    m_pStack->setCurrentIndex(page);
}

void GalleryWindow::Retranslate()
{
    m_pTitleBar->SetSubtitle(tr("控件陈列室"));
    // The other language in its own words, so that whoever cannot read this one finds the way.
    m_pLanguage->SetButtonText(GalleryLanguage::IsChinese() ? QStringLiteral("English") : QStringLiteral("中文"),
                               false);
    m_pLanguage->setAccessibleName(tr("切换到英文"));
    m_pLanguage->setToolTip(tr("切换到英文"));
    CreateRibbon();

    for (int page = 0; page < m_pStack->count(); ++page) {
        auto* scroll = qobject_cast<QScrollArea*>(m_pStack->widget(page));
        const int place = scroll->verticalScrollBar()->value();
        // Taken out with the focus in it, the page would leave the window pointing at what is deleted.
        QWidget* focus = focusWidget();
        if (focus && scroll->isAncestorOf(focus)) {
            focus->clearFocus();
        }
        delete scroll->takeWidget();
        if (page == m_pPageList->CurrentPage()) {
            ShowPage(page);
            // The new page has its height once it is laid out.
            scroll->widget()->adjustSize();
            QCoreApplication::sendPostedEvents(scroll, QEvent::LayoutRequest);
            scroll->verticalScrollBar()->setValue(place);
        }
    }
}

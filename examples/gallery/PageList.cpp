#include "PageList.h"

#include "GalleryStyle.h"
#include "PageRegistry.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
constexpr int ListWidth = 208;
constexpr int SearchHeight = 32; // from 34 on the toolkit would draw the icons at 32
constexpr int RowHeight = 44;
constexpr auto ColumnSheet = "#pageColumn{background:#f6f6f6;border-right:1px solid #e2e2e2;}";
constexpr auto SearchSheet = "#pageSearch{background:#ffffff;border:1px solid #d5d5d5;border-radius:6px;"
                             "padding:0 4px;color:#333333;}"
                             "#pageSearch:hover{border-color:#b8b8b8;}#pageSearch:focus{border-color:#188553;}";
constexpr auto ListSheet =
    "#pageList{background:transparent;border:none;outline:none;}"
    "#pageList::item{color:#333333;border:2px solid transparent;border-radius:6px;padding-left:12px;"
    "margin-bottom:4px;}"
    "#pageList::item:hover{background:#e6ebe8;}"
    "#pageList::item:selected{background:#188553;color:#ffffff;}"
    "#pageList::item:focus{border-color:#9fd8bd;}";
constexpr auto NothingSheet = "#pageNothing{color:#666666;background:transparent;padding:16px 14px;}";
} // namespace

PageList::PageList(QWidget* parent)
    : QWidget(parent)
    , m_pSearch(new QLineEdit)
    , m_pClear(new QAction(this))
    , m_pList(new QListWidget)
    , m_pNothing(new QLabel)
{
    setObjectName(QStringLiteral("pageColumn"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(ColumnSheet));
    setFixedWidth(ListWidth);

    m_pSearch->setObjectName(QStringLiteral("pageSearch"));
    m_pSearch->setFont(FontCn_14);
    m_pSearch->setFixedHeight(SearchHeight);
    m_pSearch->setStyleSheet(QLatin1String(SearchSheet));
    m_pSearch->addAction(QIcon(QStringLiteral(":/gallery/search.png")), QLineEdit::LeadingPosition);
    m_pClear->setIcon(QIcon(QStringLiteral(":/gallery/search_clear.png")));
    m_pClear->setVisible(false);
    m_pSearch->addAction(m_pClear, QLineEdit::TrailingPosition);
    m_pSearch->installEventFilter(this);

    m_pList->setObjectName(QStringLiteral("pageList"));
    m_pList->setFont(FontCn_15);
    m_pList->setStyleSheet(QLatin1String(ListSheet));
    m_pList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pList->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
    for (qsizetype page = 0; page < GalleryPages().size(); ++page) {
        (new QListWidgetItem(m_pList))->setSizeHint(QSize(0, RowHeight));
    }
    m_pNothing->setObjectName(QStringLiteral("pageNothing"));
    m_pNothing->setFont(FontCn_14);
    m_pNothing->setStyleSheet(QLatin1String(NothingSheet));
    m_pNothing->setTextFormat(Qt::PlainText);
    m_pNothing->setWordWrap(true);
    m_pNothing->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_pNothing->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 16, 13, 12);
    layout->setSpacing(12);
    layout->addWidget(m_pSearch);
    layout->addWidget(m_pList, 1);
    layout->addWidget(m_pNothing, 1);
    Retranslate();
    setFocusProxy(m_pList);

    connect(m_pSearch, &QLineEdit::textChanged, this, &PageList::Search);
    connect(m_pClear, &QAction::triggered, m_pSearch, &QLineEdit::clear);
    // While a search runs the list only tells what Return would open.
    connect(m_pList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!IsSearching() && row >= 0) {
            SetCurrentPage(row);
        }
    });
    connect(m_pList, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { SetCurrentPage(m_pList->row(item)); });
    connect(m_pList, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { SetCurrentPage(m_pList->row(item)); });
}

void PageList::SetCurrentPage(int page)
{
    if (page < 0 || page >= m_pList->count() || page == m_iPage) {
        return;
    }
    m_iPage = page;
    m_pList->setCurrentRow(page);
    Q_EMIT SignalPageOpened(page);
}

void PageList::FocusSearch()
{
    m_pSearch->setFocus(Qt::ShortcutFocusReason);
    m_pSearch->selectAll();
}

bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_pSearch || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        Choose(-1);
        return true;
    case Qt::Key_Down:
        Choose(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        SetCurrentPage(m_pList->currentRow());
        return true;
    case Qt::Key_Escape:
        m_pSearch->clear();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PageList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

void PageList::Retranslate()
{
    m_pSearch->setPlaceholderText(tr("搜索页面或类名"));
    m_pSearch->setAccessibleName(tr("搜索页面"));
    m_pSearch->setToolTip(
        tr("搜索页面（%1）").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    m_pClear->setText(tr("清除"));
    m_pList->setAccessibleName(tr("页面"));
    for (int row = 0; row < m_pList->count(); ++row) {
        m_pList->item(row)->setText(GalleryPages().at(row).Title());
    }
    Search();
}

void PageList::Search()
{
    const QString search = m_pSearch->text().trimmed();
    m_pClear->setVisible(!m_pSearch->text().isEmpty());
    int first = -1;
    for (int row = 0; row < m_pList->count(); ++row) {
        const bool matches = GalleryPages().at(row).Matches(search);
        m_pList->setRowHidden(row, !matches);
        if (matches && first < 0) {
            first = row;
        }
    }
    m_pList->setVisible(first >= 0);
    m_pNothing->setVisible(first < 0);
    m_pNothing->setText(tr("没有找到“%1”。按 Esc 显示全部页面。").arg(search));
    if (!IsSearching()) {
        m_pList->setCurrentRow(m_iPage);
    } else if (!m_pList->currentItem() || m_pList->currentItem()->isHidden()) {
        m_pList->setCurrentRow(first);
    }
}

void PageList::Choose(int step)
{
    int row = m_pList->currentRow() + step;
    while (row >= 0 && row < m_pList->count() && m_pList->isRowHidden(row)) {
        row += step;
    }
    if (row >= 0 && row < m_pList->count()) {
        m_pList->setCurrentRow(row);
    }
}

bool PageList::IsSearching() const
{
    return !m_pSearch->text().trimmed().isEmpty();
}

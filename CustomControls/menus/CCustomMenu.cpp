#include <CustomControls/menus/CCustomMenu.h>

#include "ui_CCustomMenu.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/menus/CCustomMenuAccessible.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/MenuHelpers_p.h>
#include <CustomControls/menus/MenuKeyboard.h>

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLayout>
#include <QPointer>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

using MenuHelpers::IsEnabledItself;
using MenuHelpers::WidgetSize;

constexpr int kRowStretch = 1;
constexpr int kSubMenuRowStretch = 4;
constexpr int kSplitStretch = 0;

// A host that marks rows with this property sizes its menu by them, with flatter separators.
constexpr char kRowShown[] = "show";
constexpr int kFlatSplitHeight = 9;

constexpr int kLineMargin = 16;
constexpr int kLineTop = 6;
constexpr int kLineHeight = 1;

constexpr int kSubMenuOverlap = 1;
// The last pixels of a row already lead to its sub-menu.
constexpr int kSubMenuReach = 10;

const QString kRowName = QStringLiteral("Button");
const QString kSubMenuRowName = QStringLiteral("SubButton");
const QString kSubMenuName = QStringLiteral("SubMenu");

const QString kFlatPanel =
    QStringLiteral("QWidget#m_widgetMenu{background-color:#F5F5F5;border:none;border-radius:2px;}");
const QString kDarkPanel =
    QStringLiteral("QWidget#m_widgetMenu{background-color:#181818;border:1px solid #2d2d2d;border-radius:4px;}");
const QString kWhitePanel =
    QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #a1a1a1;border-radius:4px;}");
const QString kSplitSheet = QStringLiteral("background:transparent;");
const QString kLineSheet = QStringLiteral("background:#535557;");

const AccessibleFactory::Registration<CCustomMenu, CCustomMenuAccessible> kAccessible;

} // namespace

CCustomMenu::CCustomMenu(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::CCustomMenu)
{
    ui->setupUi(this);
    setFocusPolicy(Qt::ClickFocus);
    setFont(CorvaneTextHelper::instance()->AppInChineseEnvironment() ? FontCnMedium_14 : FontCnMedium_13);
    ui->m_widgetMenu->installEventFilter(this);
}

CCustomMenu::~CCustomMenu()
{
    // Rows and separators go after this object's own fields and must not report to them any more.
    for (CCustomMenuItem* row : std::as_const(m_listButtons)) {
        row->disconnect(this);
    }
    for (QWidget* line : std::as_const(m_listSplitLines)) {
        line->disconnect(this);
    }
    QList<QPointer<CCustomMenu>> subMenus;
    const QList<CCustomMenu*> allSubMenus = GetCustomMenus();
    for (CCustomMenu* subMenu : allSubMenus) {
        subMenu->disconnect(this);
        subMenu->m_pParentMenu = nullptr;
        subMenus.append(subMenu);
    }
    const QPointer<CCustomMenu> open(m_pOpenSubMenu);
    m_hashSubMenus.clear();
    m_listRowlessSubMenus.clear();
    m_pOpenSubMenu = nullptr;
    if (open) {
        open->hide();
    }
    // Without a parent nobody else would end a sub-menu.
    for (const QPointer<CCustomMenu>& subMenu : std::as_const(subMenus)) {
        if (subMenu && !subMenu->parent()) {
            delete subMenu;
        }
    }
    delete ui;
}

void CCustomMenu::SetWindowWidth(int width)
{
    m_iWidth = width;
}

void CCustomMenu::SetWindowHeight(int height)
{
    m_iItemHeight = height;
}

void CCustomMenu::SetMenuStyle(MenuStyle style)
{
    m_eMenuStyle = style;
    switch (style) {
    case MenuStyleFlat:
        ui->m_widgetMenu->setStyleSheet(kFlatPanel);
        break;
    case MenuStyleDark:
        ui->m_widgetMenu->setStyleSheet(kDarkPanel);
        break;
    case MenuStyleWhite:
        ui->m_widgetMenu->setStyleSheet(kWhitePanel);
        break;
    default:
        return;
    }
    for (CCustomMenuItem* row : std::as_const(m_listButtons)) {
        row->SetMenuStyle(style);
    }
}

void CCustomMenu::AddMenuItem(const QString& text, const QString& shortcut, const QString& icon,
                              const QString& iconHover, const QString& iconDisabled)
{
    AddRow(text, shortcut, icon, iconHover, iconDisabled, false);
}

void CCustomMenu::AddMenuItem(int id, QString text, const QString& shortcut, const QString& icon,
                              const QString& iconHover)
{
    AddRow(text, shortcut, icon, iconHover, QString(), false)->SetButtonId(id);
}

CCustomMenu* CCustomMenu::AddButtonWithSubMenu(const QString& text, const QString& shortcut, const QString& icon,
                                               const QString& iconHover, const QString& iconDisabled)
{
    CCustomMenuItem* row = AddRow(text, shortcut, icon, iconHover, iconDisabled, true);
    auto* subMenu = new CCustomMenu(parentWidget());
    subMenu->m_pParentMenu = this;
    subMenu->hide();
    m_hashSubMenus.insert(row, subMenu);
    subMenu->installEventFilter(this);
    subMenu->setObjectName(kSubMenuName);
    connect(subMenu, &QObject::destroyed, this, [this, subMenu] { SubMenuGone(subMenu); });
    return subMenu;
}

QWidget* CCustomMenu::AddSplitLine()
{
    auto* split = new QWidget;
    const int width = WidgetSize(m_iWidth);
    split->setFixedSize(width, m_iSplitHeight);
    split->setStyleSheet(kSplitSheet);
    auto* line = new QWidget(split);
    line->setGeometry(kLineMargin, kLineTop, width - 2 * kLineMargin, kLineHeight);
    line->setStyleSheet(kLineSheet);

    connect(split, &QObject::destroyed, this, [this, split] { SplitLineGone(split); });
    m_listSplitLines.append(split);
    AddEntry(split, kSplitStretch);
    ++m_iSplitCount;
    RefreshSize();
    PrepareLater(split, split->size());
    return split;
}

void CCustomMenu::SetMenuText(int index, const QString& text)
{
    if (CCustomMenuItem* row = MenuButton(index)) {
        row->SetText(text);
    }
}

void CCustomMenu::SetMenuTextWithId(int id, const QString& text)
{
    if (CCustomMenuItem* row = MenuButtonById(id)) {
        row->SetText(text);
    }
}

void CCustomMenu::UpdateItemSize()
{
    if (m_listButtons.isEmpty()) {
        return;
    }
    int widest = 0;
    for (CCustomMenuItem* row : std::as_const(m_listButtons)) {
        widest = std::max(widest, row->SetItemSize(m_iWidth, m_iItemHeight, m_iMaxTextWidth, m_iMaxShortcutWidth));
    }
    const QMargins margins = ui->m_layoutWidgetMenu->contentsMargins();
    m_iWidth = std::max(m_iWidth, WidgetSize(qint64(widest) + margins.left() + margins.right()));
    setFixedWidth(WidgetSize(m_iWidth));
}

void CCustomMenu::UpdateMenuSize()
{
    const auto count = std::count_if(m_listButtons.cbegin(), m_listButtons.cend(),
                                     [](const CCustomMenuItem* row) { return row->property(kRowShown).toBool(); });
    setFixedSize(WidgetSize(m_iWidth), HeightOf(kFlatSplitHeight, int(count)));
}

void CCustomMenu::RefreshSize()
{
    setFixedSize(WidgetSize(m_iWidth), HeightOf(m_iSplitHeight, m_iButtonCount));
}

CCustomMenuItem* CCustomMenu::MenuButton(int index)
{
    return index >= 0 && index < m_listButtons.size() ? m_listButtons.at(index) : nullptr;
}

CCustomMenuItem* CCustomMenu::MenuButtonById(int id)
{
    const auto row = std::find_if(m_listButtons.cbegin(), m_listButtons.cend(),
                                  [id](const CCustomMenuItem* candidate) { return candidate->GetButtonId() == id; });
    return row == m_listButtons.cend() ? nullptr : *row;
}

int CCustomMenu::GetButtonIndex(CCustomMenuItem* item)
{
    return int(m_listButtons.indexOf(item));
}

int CCustomMenu::MenuButtonCount()
{
    return int(m_listButtons.size());
}

void CCustomMenu::RemoveMenuButton(int index)
{
    if (CCustomMenuItem* row = MenuButton(index)) {
        m_listButtons.removeAt(index);
        delete row;
        --m_iButtonCount;
        RefreshSize();
        HideOrphanedSubMenu();
    }
}

void CCustomMenu::RemoveAllMenuButtons()
{
    const QList<CCustomMenuItem*> rows = std::exchange(m_listButtons, {});
    const QList<QWidget*> lines = std::exchange(m_listSplitLines, {});
    m_iButtonCount = 0;
    m_iSplitCount = 0;
    qDeleteAll(rows);
    qDeleteAll(lines);
    RefreshSize();
    HideOrphanedSubMenu();
}

void CCustomMenu::SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment)
{
    Q_UNUSED(alignment)
}

void CCustomMenu::HideMenuBtn(const QList<QString>& texts)
{
    const QSet<QString> wanted(texts.cbegin(), texts.cend());
    // By index: a chosen row that is hidden says so, and whoever hears it may remove others.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (int index = 0; index < m_listButtons.size(); ++index) {
        CCustomMenuItem* row = m_listButtons.at(index);
        if (IsEnabledItself(row) && wanted.contains(row->text())) {
            row->SetEnabled(false);
            row->hide();
            --m_iButtonCount;
        }
    }
    RefreshSize();
}

void CCustomMenu::ShowMenuBtn(const QList<QString>& texts)
{
    const QSet<QString> wanted(texts.cbegin(), texts.cend());
    // By index: one that comes under the cursor is entered at once, and whoever hears it may remove others.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (int index = 0; index < m_listButtons.size(); ++index) {
        CCustomMenuItem* row = m_listButtons.at(index);
        if (!IsEnabledItself(row) && wanted.contains(row->text())) {
            row->SetEnabled(true);
            row->show();
            ++m_iButtonCount;
        }
    }
    RefreshSize();
}

void CCustomMenu::HideSplitLine(int index)
{
    QWidget* line = m_listSplitLines.value(index);
    if (line && IsEnabledItself(line)) {
        line->hide();
        line->setEnabled(false);
        --m_iSplitCount;
        RefreshSize();
    }
}

void CCustomMenu::ShowSplitLine(int index)
{
    QWidget* line = m_listSplitLines.value(index);
    if (line && !IsEnabledItself(line)) {
        line->show();
        line->setEnabled(true);
        ++m_iSplitCount;
        RefreshSize();
    }
}

CCustomMenu* CCustomMenu::GetCustomMenu(CCustomMenuItem* item) const
{
    return m_hashSubMenus.value(item);
}

QList<CCustomMenu*> CCustomMenu::GetCustomMenus() const
{
    return m_hashSubMenus.values() + m_listRowlessSubMenus;
}

bool CCustomMenu::HasFocus()
{
    const QList<CCustomMenu*> subMenus = GetCustomMenus();
    return hasFocus() || std::any_of(subMenus.cbegin(), subMenus.cend(),
                                     [](const CCustomMenu* subMenu) { return subMenu->hasFocus(); });
}

void CCustomMenu::SetEnabled(int id, bool enabled)
{
    for (CCustomMenuItem* row : std::as_const(m_listButtons)) {
        if (row->GetButtonId() == id) {
            row->SetEnabled(enabled);
        }
    }
}

bool CCustomMenu::eventFilter(QObject* obj, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::PolishRequest && obj == ui->m_widgetMenu && !isVisible()) {
        return true;
    }
    if (type == QEvent::ChildRemoved && obj == ui->m_widgetMenu && !ui->m_layoutWidgetMenu->isEnabled()) {
        // A layout that is held back doesn't let go of its entries by itself. This one may be half destroyed already.
        const QObject* gone = static_cast<QChildEvent*>(event)->child();
        for (int index = ui->m_layoutWidgetMenu->count() - 1; index >= 0; --index) {
            if (ui->m_layoutWidgetMenu->itemAt(index)->widget() == gone) {
                delete ui->m_layoutWidgetMenu->takeAt(index);
                break;
            }
        }
    }
    if (type != QEvent::Enter && type != QEvent::Leave && type != QEvent::Hide) {
        return QWidget::eventFilter(obj, event);
    }
    auto* row = qobject_cast<CCustomMenuItem*>(obj);
    const bool opensSubMenu = row && row->objectName() == kSubMenuRowName;
    if (!row || (!opensSubMenu && row->objectName() != kRowName)) {
        return QWidget::eventFilter(obj, event);
    }

    // Whatever happens here is heard by the host, who may delete the row or the menu.
    const QPointer<CCustomMenu> self(this);
    const QPointer<CCustomMenuItem> item(row);
    if (type == QEvent::Enter && m_pCurrentItem) {
        m_pCurrentItem->SetChooseFocus(false);
        if (!self || !item) {
            return true;
        }
    }
    CCustomMenu* subMenu = opensSubMenu ? GetCustomMenu(row) : nullptr;
    if (type == QEvent::Enter) {
        if (!opensSubMenu && m_pOpenSubMenu) {
            std::exchange(m_pOpenSubMenu, nullptr)->hide();
        } else if (subMenu && row->isEnabled()) {
            OpenSubMenu(row, subMenu);
        }
    } else if (subMenu && (type == QEvent::Hide || !CursorLeftTowardsSubMenu(row))) {
        CloseSubMenu(row, subMenu);
    }
    return self && item ? QWidget::eventFilter(obj, event) : true;
}

void CCustomMenu::showEvent(QShowEvent* event)
{
    Q_EMIT SignalShow();
    QWidget::showEvent(event);
}

bool CCustomMenu::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::PolishRequest:
        // The toolkit would read the sheets of all rows of a menu that waits. They are read when it opens.
        if (!isVisible()) {
            return true;
        }
        break;
    case QEvent::Show:
        TellEvent(this, QAccessible::PopupMenuStart);
        break;
    case QEvent::Hide:
        TellEvent(this, QAccessible::PopupMenuEnd);
        break;
    case QEvent::KeyPress: {
        const QPointer<CCustomMenu> self(this);
        const MenuKeyboard::Outcome outcome = MenuKeyboard::Press(this, static_cast<QKeyEvent*>(event));
        if (outcome == MenuKeyboard::Leaves) {
            hide();
        }
        if (!self || outcome != MenuKeyboard::Ignored) {
            event->accept();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::event(event);
}

CCustomMenuItem* CCustomMenu::AddRow(const QString& text, const QString& shortcut, const QString& icon,
                                     const QString& iconHover, const QString& iconDisabled, bool hasSubMenu)
{
    // Made where the layout would put it anyway: to move a row with its labels costs as much as to make it.
    // With the menu's font, which a parent that wears a sheet doesn't hand down.
    const QFont font = this->font();
    auto* row = new CCustomMenuItem(ui->m_widgetMenu, &font, text, shortcut, icon, iconHover, iconDisabled, hasSubMenu);
    // A sub-menu outlives its row. That of a row which once lay at the same address is not this one's.
    if (CCustomMenu* rowless = m_hashSubMenus.take(row)) {
        m_listRowlessSubMenus.append(rowless);
    }
    if (!hasSubMenu) {
        connect(row, &CCustomMenuItem::SignalMenuItemClicked, this, [this, row] { ItemClicked(row); });
    }
    connect(row, &CCustomMenuItem::SignalFocusChanged, this, [this, row](bool focus) { ItemFocusChanged(row, focus); });
    connect(row, &QObject::destroyed, this, [this, row] { ItemGone(row); });
    row->setObjectName(hasSubMenu ? kSubMenuRowName : kRowName);
    row->installEventFilter(this);

    const QFontMetrics metrics(row->font());
    m_iMaxTextWidth = std::max(m_iMaxTextWidth, metrics.horizontalAdvance(text));
    m_iMaxShortcutWidth = std::max(m_iMaxShortcutWidth, metrics.horizontalAdvance(shortcut));
    row->SetMenuStyle(m_eMenuStyle);

    AddEntry(row, hasSubMenu ? kSubMenuRowStretch : kRowStretch);
    m_listButtons.append(row);
    ++m_iButtonCount;
    RefreshSize();
    const QMargins margins = ui->m_layoutWidgetMenu->contentsMargins();
    PrepareLater(row, QSize(width() - margins.left() - margins.right(), WidgetSize(m_iItemHeight)));
    return row;
}

void CCustomMenu::ItemClicked(CCustomMenuItem* item)
{
    if (item->IsStateButton()) {
        return;
    }
    QPointer<CCustomMenu> root(this);
    hide();
    while (root && root->m_pParentMenu) {
        root = root->m_pParentMenu;
        root->hide();
    }
    if (root) {
        Q_EMIT root->SignalItemClicked();
    }
}

void CCustomMenu::ItemFocusChanged(CCustomMenuItem* item, bool focus)
{
    if (!focus) {
        if (m_pCurrentItem == item) {
            m_pCurrentItem = nullptr;
        }
        return;
    }
    const QPointer<CCustomMenu> self(this);
    const QPointer<CCustomMenuItem> chosen(item);
    if (m_pCurrentItem) {
        m_pCurrentItem->SetChooseFocus(false);
    }
    if (self && chosen) {
        m_pCurrentItem = item;
    }
}

void CCustomMenu::ItemGone(CCustomMenuItem* item)
{
    if (m_pCurrentItem == item) {
        m_pCurrentItem = nullptr;
    }
    if (m_listButtons.removeOne(item)) {
        --m_iButtonCount;
        RefreshSizeLater();
    }
}

void CCustomMenu::SplitLineGone(QWidget* line)
{
    if (m_listSplitLines.removeOne(line)) {
        m_iSplitCount = int(std::count_if(m_listSplitLines.cbegin(), m_listSplitLines.cend(), IsEnabledItself));
        RefreshSizeLater();
    }
}

void CCustomMenu::RefreshSizeLater()
{
    // The layout still holds an entry that is just being deleted, and must not be asked for its size.
    QMetaObject::invokeMethod(
        this,
        [this] {
            RefreshSize();
            HideOrphanedSubMenu();
        },
        Qt::QueuedConnection);
}

void CCustomMenu::HideOrphanedSubMenu()
{
    // A row that is deleted isn't hidden first, and nobody else would close what it had opened.
    const auto opens = [this](CCustomMenuItem* row) { return GetCustomMenu(row) == m_pOpenSubMenu; };
    if (m_pOpenSubMenu && std::none_of(m_listButtons.cbegin(), m_listButtons.cend(), opens)) {
        std::exchange(m_pOpenSubMenu, nullptr)->hide();
    }
}

void CCustomMenu::SubMenuGone(CCustomMenu* subMenu)
{
    if (m_pOpenSubMenu == subMenu) {
        m_pOpenSubMenu = nullptr;
    }
    m_hashSubMenus.removeIf([subMenu](const auto& entry) { return entry.value() == subMenu; });
    m_listRowlessSubMenus.removeOne(subMenu);
}

void CCustomMenu::OpenSubMenu(CCustomMenuItem* item, CCustomMenu* subMenu)
{
    const QPointer<CCustomMenu> self(this);
    const QPointer<CCustomMenuItem> row(item);
    const QPointer<CCustomMenu> opening(subMenu);
    item->SetChooseFocus(true);
    if (!self || !row || !opening) {
        return;
    }
    const int top = ui->m_layoutWidgetMenu->contentsMargins().top();
    subMenu->move(x() + WidgetSize(m_iWidth) - kSubMenuOverlap, y() - top + item->y());
    subMenu->raise();
    if (m_pOpenSubMenu == subMenu) {
        return;
    }
    if (m_pOpenSubMenu) {
        m_pOpenSubMenu->hide();
    }
    if (self && opening) {
        m_pOpenSubMenu = subMenu;
        subMenu->show();
    }
}

void CCustomMenu::CloseSubMenu(CCustomMenuItem* item, CCustomMenu* subMenu)
{
    const QPointer<CCustomMenu> self(this);
    const QPointer<CCustomMenu> closing(subMenu);
    item->SetChooseFocus(false);
    if (closing) {
        closing->hide();
    }
    if (self) {
        m_pOpenSubMenu = nullptr;
    }
}

bool CCustomMenu::CursorLeftTowardsSubMenu(const CCustomMenuItem* item) const
{
    const QPoint cursor = mapFromGlobal(QCursor::pos());
    const QRect row = item->geometry();
    return cursor.x() - row.x() - row.width() >= -kSubMenuReach && cursor.y() >= row.top() &&
           cursor.y() <= row.bottom();
}

void CCustomMenu::AddEntry(QWidget* entry, int stretch)
{
    if (isVisible()) {
        // On the screen each new entry would lay out all the others. One layout after the last of them leads to the
        // same.
        ui->m_layoutWidgetMenu->setEnabled(false);
    }
    ui->m_layoutWidgetMenu->addWidget(entry, stretch);
}

void CCustomMenu::PrepareLater(QWidget* entry, const QSize& size)
{
    // An entry's widgets post some ten requests to be polished, laid out and shown, and with each request the toolkit
    // searches all that wait: entries would cost more the more were added before. One call does for all of this turn.
    QCoreApplication::removePostedEvents(entry);
    const QList<QWidget*> parts = entry->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        QCoreApplication::removePostedEvents(part);
    }
    if (!isVisible()) {
        return; // the menu's showing does it
    }
    // Where the layout is going to put it: shown elsewhere it could come under the cursor and take the hover.
    const QMargins margins = ui->m_layoutWidgetMenu->contentsMargins();
    entry->setGeometry(QRect(QPoint(margins.left(), height() - margins.bottom() - size.height()), size));
    if (m_listNewEntries.isEmpty()) {
        QMetaObject::invokeMethod(this, &CCustomMenu::PrepareNewEntries, Qt::QueuedConnection);
    }
    m_listNewEntries.append(entry);
}

void CCustomMenu::PrepareNewEntries()
{
    const QPointer<CCustomMenu> self(this);
    const QList<QPointer<QWidget>> entries = std::exchange(m_listNewEntries, {});
    const QPoint cursor = ui->m_widgetMenu->mapFromGlobal(QCursor::pos());
    for (const QPointer<QWidget>& entry : entries) {
        if (!entry) {
            continue;
        }
        entry->ensurePolished();
        const QList<QWidget*> parts = entry->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            part->ensurePolished();
        }
        if (entry->layout()) {
            entry->layout()->activate();
        }
        // One that was added on the screen; what the host has hidden meanwhile stays so.
        if (entry->isHidden() && !entry->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
            // The toolkit then searches all entries for the one under the cursor; it need not where that is another.
            ui->m_widgetMenu->setAttribute(Qt::WA_TransparentForMouseEvents, !entry->geometry().contains(cursor));
            entry->show();
            if (!self) {
                return;
            }
            ui->m_widgetMenu->setAttribute(Qt::WA_TransparentForMouseEvents, false);
        }
    }
    if (!ui->m_layoutWidgetMenu->isEnabled()) {
        ui->m_layoutWidgetMenu->setEnabled(true);
        ui->m_layoutWidgetMenu->invalidate();
        ui->m_layoutWidgetMenu->activate();
    }
}

int CCustomMenu::HeightOf(int splitHeight, int rows) const
{
    const QMargins margins = ui->m_layoutWidgetMenu->contentsMargins();
    return WidgetSize(qint64(splitHeight) * m_iSplitCount + qint64(m_iItemHeight) * rows + margins.top() +
                      margins.bottom());
}

#include <CustomControls/menus/CVelmarMenu.h>

#include "ui_CVelmarMenu.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/menus/CVelmarMenuAccessible.h>
#include <CustomControls/menus/CVelmarMenuItem.h>
#include <CustomControls/menus/MenuHelpers_p.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

using MenuHelpers::IsEnabledItself;
using MenuHelpers::WidgetSize;

constexpr int kRowStretch = 4;
constexpr int kListRowStretch = 0;
constexpr int kGap = 4;
constexpr int kRowsInScrollArea = 5;
constexpr int kRowHeightSurplus = 2;
// Rows that stand where they belong already can wait this long, in milliseconds, for what the layout has to say.
constexpr int kLayoutPause = 40;
// The panel's margins: left and right together, top and bottom together.
constexpr int kSideMargins = 2;
constexpr int kEndMargins = 8;

constexpr int kSplitHeight = 9;
constexpr int kLineTop = 4;
constexpr int kLineHeight = 1;

// One sheet for each style, in the order of MenuStyle.
using SheetsOfStyles = std::array<QString, 3>;

const SheetsOfStyles kPanelSheets = {
    QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:none;border-radius:0px;}"),
    QStringLiteral("QWidget#m_widgetMenu{background-color:#212024;border:1px solid #151515;border-radius:2px;}"),
    QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #AAAAAA;border-radius:0px;}"),
};
const QString kDarkButtonSheet =
    QStringLiteral("QPushButton{background:#212024;color:#c7cfd6;border:none;text-align:left;padding-left:8px;}"
                   "QPushButton::hover{background:#0071bc;color:#c7cfd6;}QPushButton::disabled{color:#999999;}");
const SheetsOfStyles kButtonSheets = {
    QStringLiteral(
        "QPushButton{background:#F9F9F9;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:2px;}"
        "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
    kDarkButtonSheet,
    QStringLiteral(
        "QPushButton{background:#FFFFFF;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:0px;}"
        "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
};
const SheetsOfStyles kListButtonSheets = {
    QStringLiteral(
        "QPushButton{background:#F0F0F0;color:#202020;border:none;text-align:left;padding-left:8px;border-radius:2px;}"
        "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
    kDarkButtonSheet,
    QStringLiteral("QPushButton{background:#FFFFFF;color:#202020;border:none;text-align:left;padding-left:8px;}"
                   "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
};
// The 32 pixels on the right make room for a combo box's arrow: the text is centred over the box's text.
const SheetsOfStyles kCentredButtonSheets = {
    QStringLiteral("QPushButton{background:#F0F0F0;color:#2A2929;border:none;text-align:center;padding-left:8px;"
                   "padding-right:32px;}"
                   "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
    QStringLiteral("QPushButton{background:#212024;color:#c7cfd6;border:none;text-align:center;padding-left:8px;"
                   "padding-right:8px;}"
                   "QPushButton::hover{background:#0071bc;color:#c7cfd6;}QPushButton::disabled{color:#999999;}"),
    QStringLiteral("QPushButton{background:#FFFFFF;color:#2A2929;border:none;text-align:center;padding-left:8px;"
                   "padding-right:32px;}"
                   "QPushButton::hover{background:#0071bc;color:#FFFFFF;}QPushButton::disabled{color:#999999;}"),
};

const QString kScrollAreaSheet =
    QStringLiteral("QScrollArea{border:none;padding:0px;margin:0px;background:transparent;}");
const QString kScrollBarSheet = QStringLiteral(
    "QScrollBar:vertical{min-width:7px;max-width:8px;border:none; background:#FFFFFF;color:rgba(0,0,0,0);"
    "padding-left:0px;padding-right:1px;min-height:30px;}"
    "QScrollBar::handle:vertical{width:7px;background:rgb(165,171,183);max-height:400;min-height:50;"
    "border-radius:3px;border:none;}"
    "QScrollBar::handle:vertical:hover{background:rgb(155,151,163);max-height:400;min-height:50;"
    "border-radius:3px;border:none;}"
    "QScrollBar::add-line:vertical{border:0px solid rgb(220,0,220);background:#FFFFFF;height:0px;"
    "subcontrol-origin:margin;}"
    "QScrollBar::sub-line:vertical{border:0px solid rgb(20,220,220);background:#FFFFFF;height:0px;"
    "subcontrol-origin:margin;}"
    "QScrollBar::add-page::vertical,QScrollBar::sub-page:vertical{background:#FFFFFF;width:0px;height:0px;}");
const QString kSplitSheet = QStringLiteral("background:transparent;");
const QString kLineSheet = QStringLiteral("background:rgb(217, 217, 217);");

// Null for a value that is no style.
const QString* SheetOf(const SheetsOfStyles& sheets, MenuStyle style)
{
    const int index = int(style);
    return index >= 0 && index < int(sheets.size()) ? &sheets[std::size_t(index)] : nullptr;
}

// Whether a row was hidden by name: one that was never on the screen is to come with its menu.
bool IsHiddenItself(const QWidget* entry)
{
    return entry->isHidden() && entry->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

/**
 * A button that does not ask to be painted when it comes with its menu, unless a part of it is in view. It can be
 * marked without the pointer, for the keyboard, and then looks as if the pointer were on it.
 */
class MenuPushButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

    void SetMarked(bool marked)
    {
        if (m_bMarked != marked) {
            m_bMarked = marked;
            update();
        }
    }

    bool event(QEvent* event) override
    {
        // The sheet is read when the menu opens.
        if (event->type() == QEvent::PolishRequest && !isVisible()) {
            return true;
        }
        // Each widget that is shown asks for it, and each request is compared with all siblings.
        if (event->type() == QEvent::UpdateLater && visibleRegion().isEmpty()) {
            return true;
        }
        return QPushButton::event(event);
    }

protected:
    void initStyleOption(QStyleOptionButton* option) const override
    {
        QPushButton::initStyleOption(option);
        if (m_bMarked) {
            option->state |= QStyle::State_MouseOver;
        }
    }

    void focusInEvent(QFocusEvent* event) override
    {
        SetMarked(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
        QPushButton::focusInEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        SetMarked(false);
        QPushButton::focusOutEvent(event);
    }

private:
    bool m_bMarked = false;
};

/** The rows of the scroll area. Its size is fixed, so that no row has to be asked for it. */
class ListContent : public QWidget
{
public:
    using QWidget::QWidget;

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }
};

// The rows at the given indexes, each once and in their own order; a negative index counts from the end.
template <typename Row>
QList<QPointer<QWidget>> NamedRows(const QList<Row*>& rows, const QList<int>& indexes)
{
    const QSet<int> wanted(indexes.cbegin(), indexes.cend());
    const int count = int(rows.size());
    QList<QPointer<QWidget>> named;
    for (int index = 0; index < count; ++index) {
        if (wanted.contains(index) || wanted.contains(index - count)) {
            named.append(rows.at(index));
        }
    }
    return named;
}

const AccessibleFactory::Registration<CVelmarMenu, CVelmarMenuAccessible> kAccessible;

} // namespace

CVelmarMenu* CVelmarMenu::m_pCurrentShowMenu = nullptr;

CVelmarMenu::CVelmarMenu(QWidget* parent)
    : QWidget(parent)
    , m_font(FontCn_14)
    , ui(new Ui::CVelmarMenu)
{
    ui->setupUi(this);
    ui->m_layoutWidgetMenu->setSpacing(kGap);
    setFocusPolicy(Qt::ClickFocus);
    m_timerLayout.setSingleShot(true);
    connect(&m_timerLayout, &QTimer::timeout, this, &CVelmarMenu::LayOut);
}

CVelmarMenu::~CVelmarMenu()
{
    if (m_pCurrentShowMenu == this) {
        m_pCurrentShowMenu = nullptr;
    }
    // Rows and separators go after this object's own fields and must not report to them any more.
    const auto forget = [this](const auto& entries) {
        for (QWidget* entry : entries) {
            entry->disconnect(this);
        }
    };
    forget(m_listButtons);
    forget(m_listItems);
    forget(m_listSplitLines);
    delete ui;
}

void CVelmarMenu::SetWindowWidth(int width)
{
    m_iWidth = width;
    FitRows();
}

void CVelmarMenu::SetWindowHeight(int height)
{
    m_iItemHeight = std::min(height, std::numeric_limits<int>::max() - kRowHeightSurplus) + kRowHeightSurplus;
    FitRows();
}

void CVelmarMenu::SetMenuStyle(MenuStyle style)
{
    m_eMenuStyle = style;
    if (const QString* sheet = SheetOf(kPanelSheets, style)) {
        ui->m_widgetMenu->setStyleSheet(*sheet);
    }
}

void CVelmarMenu::AddMenuButton(CVelmarButton* button)
{
    if (button && !m_listButtons.contains(button)) {
        LayOutLater();
        AddButton(button, ui->m_layoutWidgetMenu, kRowStretch);
        UpdateMenuSize();
    }
}

void CVelmarMenu::AddDefaultButton(const QString& text)
{
    LayOutLater();
    // Made where the layout would put it anyway, which costs less than to move it there.
    AddButton(MakeButton(text, ui->m_widgetMenu, SheetOf(kButtonSheets, m_eMenuStyle)), ui->m_layoutWidgetMenu,
              kRowStretch);
    UpdateMenuSize();
}

void CVelmarMenu::AddListWidgetButton(const QString& text)
{
    if (!m_pScrollArea) {
        BuildScrollArea();
    }
    QPushButton* button = MakeButton(text, m_pScrollWidget, SheetOf(kListButtonSheets, m_eMenuStyle));
    if (IsListFull()) {
        // The next row's place is known. Were the layout asked for it, it would ask all the rows before.
        button->move(0, m_pScrollWidget->height());
        LayOutAfterPause();
    } else {
        LayOutLater();
    }
    AddButton(button, m_pScrollLayout, kListRowStretch);
    m_pScrollArea->setWidget(m_pScrollWidget);
    UpdateMenuSize();
}

void CVelmarMenu::AddMenuItem(const QString& text, const QString& icon, const QString& shortcut)
{
    auto* item = new CVelmarMenuItem(ui->m_widgetMenu, text, shortcut, icon, QString(), false);
    item->SetMenuStyle(m_eMenuStyle);
    item->SetItemSize(m_iWidth, m_iItemHeight, 0, 0);
    connect(item, &QObject::destroyed, this, [this, item] { ItemGone(item); });
    connect(item, &CVelmarMenuItem::SignalMenuBtnFocus, this, [this](bool focus) {
        const QPointer<CVelmarMenu> self(this);
        // The analyzer takes the question below for a doubt about this call.
        Q_EMIT SignalMenuBtnFocus(focus); // NOLINT(clang-analyzer-core.CallAndMessage)
        if (self && !focus) {
            hide();
        }
    });

    LayOutLater();
    ui->m_layoutWidgetMenu->addWidget(item, kRowStretch);
    ShowIfOpen(item);
    m_listItems.append(item);
    ++m_iRowCount;
    UpdateMenuSize();
}

QWidget* CVelmarMenu::AddSplitLine()
{
    auto* split = new QWidget;
    const int width = WidgetSize(m_iWidth);
    split->setFixedSize(width, kSplitHeight);
    split->setStyleSheet(kSplitSheet);
    auto* line = new QWidget(split);
    line->setGeometry(0, kLineTop, width, kLineHeight);
    line->setStyleSheet(kLineSheet);
    connect(split, &QObject::destroyed, this, [this, split] { SplitLineGone(split); });

    LayOutLater();
    ui->m_layoutWidgetMenu->addWidget(split, kRowStretch);
    ShowIfOpen(split);
    m_listSplitLines.append(split);
    ++m_iSplitCount;
    UpdateMenuSize();
    return split;
}

void CVelmarMenu::RefreshSize(int extraRows, int extraSplits)
{
    // No more than a widget's height counts, so that no product leaves the range.
    const auto bounded = [](qint64 value) { return std::clamp<qint64>(value, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); };
    setFixedSize(m_iWidth, WidgetSize(bounded(qint64(m_iSplitCount) + extraSplits) * kSplitHeight +
                                      bounded(qint64(m_iRowCount) + extraRows) * m_iItemHeight + kEndMargins));
}

QPushButton* CVelmarMenu::MenuButton(int index)
{
    return m_listButtons.value(index);
}

CVelmarMenuItem* CVelmarMenu::MenuItem(int index)
{
    return m_listItems.value(index);
}

int CVelmarMenu::MenuButtonCount()
{
    return int(m_listButtons.size());
}

int CVelmarMenu::MenuItemCount()
{
    return int(m_listItems.size());
}

int CVelmarMenu::GetButtonIndex(QPushButton* button)
{
    return int(m_listButtons.indexOf(button));
}

void CVelmarMenu::SetMenuItemFont(const QFont& text, const QFont& shortcut)
{
    for (CVelmarMenuItem* item : std::as_const(m_listItems)) {
        item->SetMenuFont(text, shortcut);
    }
}

void CVelmarMenu::RemoveMenuButton(int index)
{
    QPushButton* button = MenuButton(index);
    if (!button) {
        return;
    }
    m_listButtons.removeAt(index);
    --m_iRowCount;
    button->disconnect(this);
    SetLayoutsEnabled(true);
    // A button that has the focus passes it on as it goes, and whoever hears of it may end the menu.
    const QPointer<CVelmarMenu> self(this);
    delete button;
    if (self) {
        FitScrollWidget();
        UpdateMenuSize();
    }
}

void CVelmarMenu::RemoveAllMenuButtons()
{
    QList<QPointer<QWidget>> entries;
    const auto take = [this, &entries](auto& list) {
        for (QWidget* entry : std::as_const(list)) {
            entry->disconnect(this);
            entries.append(entry);
        }
        list.clear();
    };
    take(m_listButtons);
    take(m_listSplitLines);
    take(m_listItems);
    m_iRowCount = 0;
    m_iSplitCount = 0;
    SetLayoutsEnabled(true);
    const QPointer<CVelmarMenu> self(this);
    for (const QPointer<QWidget>& entry : std::as_const(entries)) {
        delete entry.data();
    }
    if (!self) {
        return;
    }
    // Before the scroll area goes: an emptied list keeps its size until the next row.
    UpdateMenuSize();
    m_pScrollWidget = nullptr;
    m_pScrollLayout = nullptr;
    delete std::exchange(m_pScrollArea, nullptr);
}

void CVelmarMenu::SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment)
{
    Q_UNUSED(alignment)
    if (const QString* sheet = SheetOf(kCentredButtonSheets, m_eMenuStyle)) {
        for (QPushButton* button : std::as_const(m_listButtons)) {
            button->setStyleSheet(*sheet);
        }
    }
}

void CVelmarMenu::SetFont(QFont font)
{
    m_font = font;
    for (QPushButton* button : std::as_const(m_listButtons)) {
        button->setFont(font);
    }
}

void CVelmarMenu::HideMenuBtn(const QList<int>& indexes)
{
    SetPresent(NamedRows(m_listButtons, indexes), false);
}

void CVelmarMenu::ShowMenuBtn(const QList<int>& indexes)
{
    SetPresent(NamedRows(m_listButtons, indexes), true);
}

void CVelmarMenu::HideMenuItem(const QList<int>& indexes)
{
    SetPresent(NamedRows(m_listItems, indexes), false);
}

void CVelmarMenu::ShowMenuItem(const QList<int>& indexes)
{
    SetPresent(NamedRows(m_listItems, indexes), true);
}

void CVelmarMenu::HideSplitLine(int index)
{
    QWidget* line = m_listSplitLines.value(index);
    if (line && IsEnabledItself(line)) {
        line->hide();
        line->setEnabled(false);
        --m_iSplitCount;
        UpdateMenuSize();
    }
}

void CVelmarMenu::ShowSplitLine(int index)
{
    QWidget* line = m_listSplitLines.value(index);
    if (line && !IsEnabledItself(line)) {
        line->show();
        line->setEnabled(true);
        ++m_iSplitCount;
        UpdateMenuSize();
    }
}

void CVelmarMenu::show()
{
    const QPointer<CVelmarMenu> self(this);
    if (m_pCurrentShowMenu && m_pCurrentShowMenu->isVisible()) {
        QWidget* previous = std::exchange(m_pCurrentShowMenu, nullptr);
        previous->hide();
    }
    if (self) {
        m_pCurrentShowMenu = this;
        if (m_timerLayout.isActive()) {
            LayOut();
        }
        QWidget::show();
    }
}

void CVelmarMenu::hide()
{
    // Whoever holds it: from now on no menu counts as the open one.
    m_pCurrentShowMenu = nullptr;
    QWidget::hide();
}

void CVelmarMenu::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    const QPointer<CVelmarMenu> self(this);
    Q_EMIT SignalMenuBtnFocus(true);
    if (!self) {
        // The toolkit must not look for the parent of what is gone.
        event->accept();
    }
}

bool CVelmarMenu::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        TellEvent(this, QAccessible::PopupMenuStart);
        break;
    case QEvent::Hide:
        SetKeyRow(nullptr);
        TellEvent(this, QAccessible::PopupMenuEnd);
        break;
    case QEvent::KeyPress: {
        const QPointer<CVelmarMenu> self(this);
        if (PressKey(static_cast<QKeyEvent*>(event), nullptr) || !self) {
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

void CVelmarMenu::setFixedSize(const QSize& size)
{
    setFixedSize(size.width(), size.height());
}

void CVelmarMenu::setFixedSize(int width, int height)
{
    QWidget::setFixedSize(WidgetSize(qint64(width) + kSideMargins), height);
}

QPushButton* CVelmarMenu::MakeButton(const QString& text, QWidget* parent, const QString* sheet)
{
    auto* button = new MenuPushButton(text, parent);
    // In a dialog it would otherwise become what Return clicks.
    button->setAutoDefault(false);
    button->setFixedSize(WidgetSize(m_iWidth), WidgetSize(m_iItemHeight));
    if (sheet) {
        button->setFont(m_font);
        button->setStyleSheet(*sheet);
    }
    return button;
}

void CVelmarMenu::AddButton(QPushButton* button, QVBoxLayout* layout, int stretch)
{
    connect(button, &QObject::destroyed, this, [this, button] { ButtonGone(button); });
    layout->addWidget(button, stretch);
    m_listButtons.append(button);
    ++m_iRowCount;
    if (layout == m_pScrollLayout) {
        FitScrollWidget(); // before it shows, which is when the toolkit looks whether it lies under the mouse
    }
    ShowIfOpen(button);
}

void CVelmarMenu::BuildScrollArea()
{
    m_pScrollArea = new QScrollArea(ui->m_widgetMenu);
    m_pScrollArea->setStyleSheet(kScrollAreaSheet);
    m_pScrollArea->setContentsMargins(0, 0, 0, 0);
    m_pScrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_pScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pScrollArea->verticalScrollBar()->setStyleSheet(kScrollBarSheet);
    m_pScrollWidget = new ListContent(m_pScrollArea->viewport());
    m_pScrollWidget->setAttribute(Qt::WA_StaticContents); // a row more below leaves those above as they are painted
    m_pScrollLayout = new QVBoxLayout(m_pScrollWidget);
    m_pScrollLayout->setContentsMargins(0, 0, 0, 0);
    m_pScrollLayout->setSpacing(0);

    LayOutLater();
    ui->m_layoutWidgetMenu->addWidget(m_pScrollArea, kRowStretch);
    ShowIfOpen(m_pScrollArea);
}

void CVelmarMenu::FitScrollWidget()
{
    if (m_pScrollWidget) {
        m_pScrollWidget->setFixedSize(WidgetSize(m_iWidth), WidgetSize(qint64(m_iRowCount) * m_iItemHeight));
    }
}

// Whether the menu is on the screen and its list ends with the last row of all, as it does unless rows are hidden or
// stand elsewhere, or the layout has not placed them yet.
bool CVelmarMenu::IsListFull() const
{
    const QPushButton* last = m_listButtons.isEmpty() ? nullptr : m_listButtons.last();
    return isVisible() && last && last->parentWidget() == m_pScrollWidget && last->isVisible() &&
           last->geometry().bottom() + 1 == m_pScrollWidget->height() &&
           qint64(m_iRowCount) * m_iItemHeight == m_pScrollWidget->height();
}

void CVelmarMenu::FitRows()
{
    LayOutLater();
    for (QPushButton* button : std::as_const(m_listButtons)) {
        button->setFixedSize(WidgetSize(m_iWidth), WidgetSize(m_iItemHeight));
    }
    for (CVelmarMenuItem* item : std::as_const(m_listItems)) {
        item->SetItemSize(m_iWidth, m_iItemHeight, 0, 0);
    }
    FitScrollWidget();
    UpdateMenuSize();
}

void CVelmarMenu::UpdateMenuSize()
{
    if (m_pScrollArea) {
        const int height = WidgetSize(qint64(kRowsInScrollArea) * m_iItemHeight);
        m_pScrollArea->setFixedSize(WidgetSize(m_iWidth), height);
        setFixedSize(QSize(m_iWidth, WidgetSize(qint64(height) + kEndMargins)));
        return;
    }
    setFixedSize(QSize(m_iWidth, WidgetSize(qint64(m_iRowCount) * m_iItemHeight +
                                            (qint64(m_iRowCount) + 1 + m_iSplitCount) * kGap +
                                            qint64(m_iSplitCount) * kSplitHeight)));
}

void CVelmarMenu::UpdateMenuSizeLater()
{
    // The layout still holds an entry that is just being deleted, and must not be asked for its size.
    QMetaObject::invokeMethod(
        this,
        [this] {
            FitScrollWidget();
            UpdateMenuSize();
        },
        Qt::QueuedConnection);
}

void CVelmarMenu::LayOutLater()
{
    if (!isVisible()) {
        return;
    }
    // On the screen each new row would lay out all the others anew. One layout after the last of them leads to the
    // same; it is queued before the rows ask to be painted.
    SetLayoutsEnabled(false);
    if (!std::exchange(m_bLayoutQueued, true)) {
        QMetaObject::invokeMethod(this, &CVelmarMenu::LayOut, Qt::QueuedConnection);
    }
}

void CVelmarMenu::LayOutAfterPause()
{
    SetLayoutsEnabled(false);
    if (!m_bLayoutQueued && !m_timerLayout.isActive()) {
        m_timerLayout.start(kLayoutPause);
    }
}

void CVelmarMenu::LayOut()
{
    m_bLayoutQueued = false;
    m_timerLayout.stop();
    SetLayoutsEnabled(true);
    if (m_pScrollLayout) {
        m_pScrollLayout->invalidate();
        m_pScrollLayout->activate();
    }
    ui->m_layoutWidgetMenu->invalidate();
    ui->m_layoutWidgetMenu->activate();
}

// A layout that waits does not see what leaves it: enable it first, or take the entry out by hand.
void CVelmarMenu::SetLayoutsEnabled(bool enabled)
{
    ui->m_layoutWidgetMenu->setEnabled(enabled);
    if (m_pScrollLayout) {
        m_pScrollLayout->setEnabled(enabled);
    }
}

void CVelmarMenu::TakeFromLayouts(QWidget* entry)
{
    ui->m_layoutWidgetMenu->removeWidget(entry);
    if (m_pScrollLayout) {
        m_pScrollLayout->removeWidget(entry);
    }
}

void CVelmarMenu::ShowIfOpen(QWidget* entry)
{
    // The toolkit would do it in the next turn of the event loop; until then the entry would count as hidden.
    if (!isVisible() || IsHiddenItself(entry)) {
        return;
    }
    if (entry->parentWidget() != m_pScrollWidget || IsInView(entry)) {
        entry->show();
        return;
    }
    // Whatever comes to the screen may lie under the mouse, for which the toolkit looks through all rows. This one
    // cannot.
    m_pScrollWidget->setAttribute(Qt::WA_TransparentForMouseEvents, true);
    entry->show();
    if (m_pScrollWidget) {
        m_pScrollWidget->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    }
}

bool CVelmarMenu::IsInView(const QWidget* listRow) const
{
    return QRect(-m_pScrollWidget->pos(), m_pScrollArea->viewport()->size()).intersects(listRow->geometry());
}

void CVelmarMenu::ButtonGone(QPushButton* button)
{
    TakeFromLayouts(button);
    if (m_listButtons.removeOne(button)) {
        --m_iRowCount;
        UpdateMenuSizeLater();
    }
}

void CVelmarMenu::ItemGone(CVelmarMenuItem* item)
{
    TakeFromLayouts(item);
    if (m_listItems.removeOne(item)) {
        --m_iRowCount;
        UpdateMenuSizeLater();
    }
}

void CVelmarMenu::SplitLineGone(QWidget* line)
{
    TakeFromLayouts(line);
    if (m_listSplitLines.removeOne(line)) {
        m_iSplitCount = int(std::count_if(m_listSplitLines.cbegin(), m_listSplitLines.cend(), IsEnabledItself));
        UpdateMenuSizeLater();
    }
}

void CVelmarMenu::SetPresent(const QList<QPointer<QWidget>>& rows, bool present)
{
    SetLayoutsEnabled(true);
    // A focus that has to move on is heard by the host, who may delete rows or the menu.
    const QPointer<CVelmarMenu> self(this);
    for (const QPointer<QWidget>& row : rows) {
        if (!self) {
            return;
        }
        if (!row) {
            continue;
        }
        const bool enabled = IsEnabledItself(row);
        const bool shown = !IsHiddenItself(row);
        if (present ? enabled && shown : !enabled && !shown) {
            continue;
        }
        m_iRowCount += present ? 1 : -1;
        row->setEnabled(present);
        if (row) {
            row->setVisible(present);
        }
    }
    if (self) {
        FitScrollWidget();
        UpdateMenuSize();
    }
}

// Buttons and rows from top to bottom, hidden ones included.
QList<QWidget*> CVelmarMenu::Rows() const
{
    QList<QWidget*> rows(m_listButtons.cbegin(), m_listButtons.cend());
    if (!m_listItems.isEmpty()) {
        rows.append(QList<QWidget*>(m_listItems.cbegin(), m_listItems.cend()));
        const auto top = [this](const QWidget* row) { return row->mapTo(this, QPoint()).y(); };
        std::stable_sort(rows.begin(), rows.end(),
                         [top](const QWidget* left, const QWidget* right) { return top(left) < top(right); });
    }
    return rows;
}

// The keys of an open menu. They start at the given row as long as they have reached none.
bool CVelmarMenu::PressKey(const QKeyEvent* event, QWidget* start)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return false;
    }
    QList<QWidget*> rows = Rows();
    // A host's own button has a look of its own for the keyboard, and Tab reaches it.
    rows.removeIf([](const QWidget* row) {
        return !row->isEnabled() || !row->isVisibleTo(row->parentWidget()) || qobject_cast<const CVelmarButton*>(row);
    });
    if (rows.isEmpty()) {
        return false;
    }
    QWidget* focused = QApplication::focusWidget();
    QWidget* from = m_pKeyRow ? m_pKeyRow.data() : rows.contains(focused) ? focused : start;
    const int current = int(rows.indexOf(from));
    const int last = int(rows.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Down:
        SetKeyRow(rows.at(current < last ? current + 1 : 0));
        return true;
    case Qt::Key_Up:
        SetKeyRow(rows.at(current > 0 ? current - 1 : last));
        return true;
    case Qt::Key_Home:
        SetKeyRow(rows.first());
        return true;
    case Qt::Key_End:
        SetKeyRow(rows.last());
        return true;
    case Qt::Key_PageDown:
        SetKeyRow(rows.at(std::min(last, std::max(current, 0) + kRowsInScrollArea - 1)));
        return true;
    case Qt::Key_PageUp:
        SetKeyRow(rows.at(std::max(0, current - kRowsInScrollArea + 1)));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (current < 0 || event->isAutoRepeat()) {
            return current >= 0;
        }
        return ActivateRow(rows.at(current));
    default:
        return false;
    }
}

bool CVelmarMenu::ActivateRow(QWidget* row)
{
    if (auto* item = qobject_cast<CVelmarMenuItem*>(row)) {
        if (item->m_bHasSubMenu) {
            return false;
        }
        item->Click();
    } else {
        static_cast<QPushButton*>(row)->click();
    }
    return true;
}

void CVelmarMenu::SetKeyRow(QWidget* row)
{
    if (m_pKeyRow == row) {
        return;
    }
    const auto mark = [](QWidget* entry, bool marked) {
        if (auto* item = qobject_cast<CVelmarMenuItem*>(entry)) {
            item->SetChooseFocus(marked);
        } else if (auto* button = dynamic_cast<MenuPushButton*>(entry)) {
            button->SetMarked(marked);
        }
    };
    mark(m_pKeyRow, false);
    m_pKeyRow = row;
    if (row) {
        mark(row, true);
        if (m_pScrollArea && m_pScrollWidget->isAncestorOf(row)) {
            m_pScrollArea->ensureWidgetVisible(row, 0, 0);
        }
        TellEvent(row, QAccessible::Focus);
    }
}

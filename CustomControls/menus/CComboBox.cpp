#include <CustomControls/menus/CComboBox.h>

#include "ui_CComboBox.h"

#include <CustomControls/menus/CComboBoxAccessible.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/menus/MenuHelpers_p.h>

#include <QAbstractItemView>
#include <QCursor>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

using MenuHelpers::Wear;

// The list opens this far under the box.
constexpr int kListGap = 2;
// What a row needs beside its text.
constexpr int kRowPadding = 24;

// A host panel that holds the lists of its boxes itself.
const QString kListHost = QStringLiteral("CModuleNewProject");

// The arrow is in the host's resources.
const QString kHoverSheet = QStringLiteral(
    "QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}"
    "QComboBox::hover{border:1px solid #0071bc;padding-left:5px;}"
    "QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;"
    "background:transparent;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}"
    "QComboBox::disabled{color:#666666;}");
const QString kRestSheet = QStringLiteral(
    "QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}"
    "QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;"
    "background:transparent;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}"
    "QComboBox::disabled{color:#666666;}");
const QString kOpenSheet = QStringLiteral(
    "QComboBox{background:#1d1c1f;border:2px solid #0071bc;border-radius:2px;padding-left:5px;color:#b7bec4;}"
    "QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;"
    "background:transparent;padding-right:-1px;border-left:0px solid #000000; "
    "image:url(:/icon/icon/arrow_down_sel.png);}"
    "QComboBox::disabled{color:#666666;}");
const QString kEnterSheet = QStringLiteral(
    "QComboBox{background:#1d1c1f;border:2px solid #0071bc;border-radius:2px;padding-left:5px;padding-right:4px;"
    "color:#b7bec4;}"
    "QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;"
    "background:transparent; padding-right:-1px;border-left:0px solid #000000; "
    "image:url(:/icon/icon/arrow_down_sel.png);}"
    "QComboBox::disabled{color:#666666;}");

// The widget that is to hold the list: the outermost one, so that no panel clips it, or the host's own.
QWidget* ListHostOf(QWidget* widget)
{
    while (widget->parentWidget() && widget->objectName() != kListHost) {
        widget = widget->parentWidget();
    }
    return widget;
}

const AccessibleFactory::Registration<CComboBox, CComboBoxAccessible> kAccessible;

} // namespace

CComboBox::CComboBox(QWidget* parent)
    : QComboBox(parent)
    , ui(new Ui::CComboBox)
    , m_fontList(FontCn_12)
    , m_pMenu(new CVelmarMenu(parent ? ListHostOf(parent) : this))
{
    ui->setupUi(this);
    SetToolkitPopUpApart();
    // The list goes with its window, which may end before the box.
    connect(m_pMenu, &QObject::destroyed, this, [this] { m_pMenu = nullptr; });
    m_pMenu->SetMenuStyle(MenuStyleDark);
    m_pMenu->SetWindowWidth(m_iMenuWidth);
    m_pMenu->SetWindowHeight(m_iBoxHeight);
    m_pMenu->hide();

    setStyleSheet(kHoverSheet);
    setFont(m_fontList);
    installEventFilter(this);
    m_pMenu->installEventFilter(this);
    setFocusPolicy(Qt::ClickFocus);
}

CComboBox::~CComboBox()
{
    if (m_pMenu) {
        m_pMenu->disconnect(this);
        m_pMenu->removeEventFilter(this);
        if (!m_pMenu->parent()) {
            delete m_pMenu;
        } else if (m_pMenu->isVisible()) {
            // Nobody else would close it.
            m_pMenu->hide();
        }
    }
    delete ui;
}

void CComboBox::AddComboItem(const QString& text)
{
    if (m_bListMode) {
        AddListItem(text);
        return;
    }
    m_listItems.append(text);
    if (m_listItems.size() <= m_iMaxItemCount) {
        AppendEntry(text);
        return;
    }

    // One more than the plain list takes: all of them move to the scrolling one.
    const QList<QString> texts = m_listItems;
    RemoveAllItems();
    m_bListMode = true;
    for (const QString& entry : texts) {
        AddListItem(entry);
    }
}

QStringList CComboBox::Items() const
{
    return m_listItems;
}

void CComboBox::SetItems(const QStringList& texts)
{
    const int current = currentIndex();
    RemoveAllItems();
    for (const QString& text : texts) {
        AddComboItem(text);
    }
    // The same entries in another language leave the user's choice as it is.
    if (current > 0 && current < count()) {
        setCurrentIndex(current);
    }
}

QSize CComboBox::BoxSize() const
{
    return {m_iBoxWidth, m_iBoxHeight};
}

void CComboBox::SetBothSizes(const QSize& size)
{
    SetBoxSize(size.width(), size.height(), 0);
}

void CComboBox::RemoveItem(const QString& text)
{
    const int index = int(m_listItems.indexOf(text));
    if (index == -1) {
        return;
    }
    m_listItems.removeAt(index);
    if (m_bListMode && m_listItems.size() == m_iMaxItemCount) {
        const QList<QString> texts = m_listItems;
        RemoveAllItems();
        for (const QString& entry : texts) {
            AddComboItem(entry);
        }
        return;
    }
    // The list first: whoever hears of the box's change finds both the same.
    if (m_pMenu) {
        m_pMenu->RemoveMenuButton(index);
    }
    removeItem(index);
}

void CComboBox::RemoveAllItems()
{
    m_bListMode = false;
    m_listItems.clear();
    if (m_pMenu) {
        m_pMenu->RemoveAllMenuButtons();
    }
    SetListWidth(m_iBoxWidth);
    clear();
}

void CComboBox::SetBoxSize(int width, int height, int menuItemHeight)
{
    m_iBoxWidth = width;
    m_iBoxHeight = height;
    if (m_pMenu) {
        m_pMenu->SetWindowHeight(menuItemHeight == 0 ? height : menuItemHeight);
    }
    SetListWidth(width);
    setFixedSize(std::clamp(width, 0, QWIDGETSIZE_MAX), std::clamp(height, 0, QWIDGETSIZE_MAX));
}

void CComboBox::SetMenuParent(QWidget* parent)
{
    if (m_pMenu) {
        m_pMenu->setParent(parent);
    }
}

void CComboBox::SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment)
{
    setEditable(true);
    lineEdit()->setAlignment(alignment);
    lineEdit()->setFont(font());
    lineEdit()->setReadOnly(true);
    // The mouse stays with the box.
    lineEdit()->setAttribute(Qt::WA_TransparentForMouseEvents);
    if (m_pMenu) {
        m_pMenu->SetTextAlignment(alignment);
    }
}

void CComboBox::SetComboListFont(QFont font)
{
    m_fontList = font;
    if (m_pMenu) {
        m_pMenu->SetFont(font);
    }
}

bool CComboBox::IsItemContained(const QString& text)
{
    return m_listItems.contains(text);
}

QString CComboBox::TextAtIndex(int index)
{
    return m_listItems.value(index);
}

void CComboBox::SetMaxItemCount(int count)
{
    m_iMaxItemCount = count;
}

void CComboBox::AddItemValue(const QString& value)
{
    m_listValues.append(value);
}

QString CComboBox::GetItemValue(int index)
{
    return m_listValues.value(index);
}

bool CComboBox::eventFilter(QObject* obj, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        // To drag the scroll bar must not close the list.
        if (obj != this && obj != m_pMenu) {
            break;
        }
        if (IsCursorOnScrollBar()) {
            setFocus();
            return true;
        }
        if (!CloseList()) {
            return true;
        }
        break;
    case QEvent::KeyPress: {
        const QPointer<CComboBox> self(this);
        if (obj == this && IsListOpen() && (PressListKey(static_cast<QKeyEvent*>(event)) || !self)) {
            return true;
        }
        break;
    }
    case QEvent::Enter:
        if (obj == this && isEnabled()) {
            Wear(this, kEnterSheet);
        }
        break;
    case QEvent::Leave:
        if (obj == this && !(m_pMenu && m_pMenu->isVisible())) {
            Wear(this, kRestSheet);
        }
        break;
    default:
        break;
    }
    return QComboBox::eventFilter(obj, event);
}

void CComboBox::showPopup()
{
    if (!m_pMenu) {
        return;
    }
    PlaceList();
    m_bNotOpened = false;
    const QPointer<CComboBox> self(this);
    setFocus();
    if (self && m_pMenu) {
        m_pMenu->show();
    }
    if (self && m_pMenu) {
        m_pMenu->raise();
        Wear(this, kOpenSheet);
    }
}

void CComboBox::hidePopup()
{
    if (!m_pMenu || !m_pMenu->isVisible()) {
        return;
    }
    const QPointer<CComboBox> self(this);
    m_pMenu->hide();
    if (self) {
        Wear(this, kRestSheet);
    }
}

void CComboBox::mousePressEvent(QMouseEvent* event)
{
    // The base class would open its own pop-up.
    if (IsInside(event)) {
        m_bPressed = true;
    }
}

void CComboBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_bPressed || !IsInside(event)) {
        return;
    }
    m_bPressed = false;
    if (!m_pMenu || !m_pMenu->isVisible()) {
        showPopup();
        return;
    }
    PlaceList();
    m_bNotOpened = false;
    const QPointer<CComboBox> self(this);
    m_pMenu->hide();
    if (self) {
        // Closed by a click the box still looks focused.
        Wear(this, kOpenSheet);
    }
}

void CComboBox::SlotChangeItem()
{
    if (!m_pMenu) {
        return;
    }
    setCurrentIndex(m_pMenu->GetButtonIndex(qobject_cast<QPushButton*>(sender())));
    // Whoever hears of the choice may end the list's window.
    if (m_pMenu) {
        m_pMenu->hide();
    }
}

// The base class needs its pop-up, though it never opens. As a child of the box it would follow each change of the
// box's look, and its view would lay out all entries anew every time the mouse comes or goes.
void CComboBox::SetToolkitPopUpApart()
{
    QWidget* popUp = view()->window();
    popUp->setParent(nullptr, popUp->windowFlags());
    connect(this, &QObject::destroyed, popUp, [popUp] { delete popUp; });
}

void CComboBox::AddListItem(const QString& text)
{
    m_listItems.append(text);
    AppendEntry(text);
}

void CComboBox::AppendEntry(const QString& text)
{
    if (m_pMenu) {
        if (m_bListMode) {
            m_pMenu->AddListWidgetButton(text);
        } else {
            m_pMenu->AddDefaultButton(text);
        }
        connect(m_pMenu->MenuButton(m_pMenu->MenuButtonCount() - 1), &QPushButton::clicked, this,
                &CComboBox::SlotChangeItem);
    }
    const int width = QFontMetrics(m_fontList).horizontalAdvance(text) + kRowPadding;
    if (width > m_iMenuWidth) {
        SetListWidth(width);
    }
    // Last: the first entry changes the current index, and whoever hears of it finds the list complete.
    addItem(text);
}

void CComboBox::SetListWidth(int width)
{
    m_iMenuWidth = width;
    if (m_pMenu) {
        m_pMenu->SetWindowWidth(width);
    }
}

bool CComboBox::IsInside(const QMouseEvent* event) const
{
    const QPoint place = event->position().toPoint();
    return event->button() == Qt::LeftButton && place.x() > 0 && place.y() > 0 && place.x() < m_iBoxWidth &&
           place.y() < m_iBoxHeight;
}

bool CComboBox::IsCursorOnScrollBar() const
{
    if (!m_pMenu || !m_pMenu->isVisible()) {
        return false;
    }
    const auto* area = m_pMenu->findChild<QScrollArea*>();
    const QScrollBar* bar = area ? area->verticalScrollBar() : nullptr;
    return bar && bar->isVisible() && bar->rect().contains(bar->mapFromGlobal(QCursor::pos()));
}

void CComboBox::PlaceList()
{
    // A list that had no window to go to when the box was made.
    if (m_pMenu->parentWidget() == this && parentWidget()) {
        m_pMenu->setParent(ListHostOf(parentWidget()));
    }
    m_ptMenuPos = pos();
    for (const QWidget* ancestor = parentWidget();
         ancestor && ancestor != m_pMenu->parentWidget() && ancestor->parentWidget();
         ancestor = ancestor->parentWidget()) {
        m_ptMenuPos += ancestor->pos();
    }
    m_ptMenuPos.ry() += m_iBoxHeight + kListGap;
    m_pMenu->move(m_ptMenuPos);
}

// False when the box did not survive it.
bool CComboBox::CloseList()
{
    const QPointer<CComboBox> self(this);
    if (m_pMenu) {
        m_pMenu->hide();
    }
    if (!self) {
        return false;
    }
    Wear(this, kRestSheet);
    if (m_pMenu && m_pMenu->parentWidget()) {
        m_pMenu->parentWidget()->setFocus();
    }
    return !self.isNull();
}

bool CComboBox::IsListOpen() const
{
    return m_pMenu && m_pMenu->isVisible();
}

// The box keeps the focus while its list is open, and hands the keys on.
bool CComboBox::PressListKey(const QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hidePopup();
        return true;
    }
    return m_pMenu->PressKey(event, m_pMenu->MenuButton(currentIndex()));
}

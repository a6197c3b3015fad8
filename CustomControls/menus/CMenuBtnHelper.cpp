#include <CustomControls/menus/CMenuBtnHelper.h>

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/MenuKeyboard.h>

#include <QCursor>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace {

const QString kSubMenuName = QStringLiteral("SubMenu");

const QString kOpenSheet = QStringLiteral("QPushButton{outline:-1px;background:#111111;color:#FFFFFF;border:none;}"
                                          "QPushButton::menu-indicator{image:none;}");
const QString kRestSheet =
    QStringLiteral("QPushButton{outline:-1px;background:transparent;color:#FFFFFF;border:none;}"
                   "QPushButton::menu-indicator{image:none;}QPushButton::hover{background:#111111;}"
                   "QPushButton::focus{background:#111111;}");

bool HoldsCursor(const QWidget* widget)
{
    return widget->rect().contains(widget->mapFromGlobal(QCursor::pos()));
}

// The toolkit's coordinates have no room for sums with what lies beyond its largest size.
int Coordinate(qint64 pixels)
{
    return int(std::clamp<qint64>(pixels, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

} // namespace

QWidget* CMenuBtnHelper::m_pFocusWidget = nullptr;

CMenuBtnHelper::CMenuBtnHelper(QObject* parent)
    : QObject(parent)
{
    auto* widget = qobject_cast<QWidget*>(parent);
    m_pFocusWidget = widget;
    if (widget) {
        // Not tied to this helper: as the widget's child it is gone by then.
        connect(widget, &QObject::destroyed, widget, [widget] {
            if (m_pFocusWidget == widget) {
                m_pFocusWidget = nullptr;
            }
        });
    }
}

CMenuBtnHelper::~CMenuBtnHelper() = default;

void CMenuBtnHelper::RegisterMenuBtn(QPushButton* button, CCustomMenu* menu)
{
    if (!button || !menu) {
        return;
    }
    const bool knownButton = m_hashBtnMenu.contains(button);
    const bool knownMenu = m_hashBtnMenu.key(menu) != nullptr;
    m_hashBtnMenu[button] = menu;
    button->installEventFilter(this);
    menu->installEventFilter(this);
    const QList<CCustomMenu*> subMenus = menu->GetCustomMenus();
    for (CCustomMenu* subMenu : subMenus) {
        subMenu->installEventFilter(this);
        if (!m_hashSubMenuRoot.contains(subMenu)) {
            connect(subMenu, &QObject::destroyed, this, [this, subMenu] { MenuGone(subMenu); });
        }
        m_hashSubMenuRoot[subMenu] = menu;
    }
    if (!knownMenu) {
        connect(menu, &CCustomMenu::SignalItemClicked, this, [this, menu] { MenuFocusOut(menu, true); });
        connect(menu, &QObject::destroyed, this, [this, menu] { MenuGone(menu); });
    }
    if (!knownButton) {
        connect(button, &QPushButton::pressed, this, [this, button] { Toggle(button); });
        connect(button, &QObject::destroyed, this, [this, button] { ButtonGone(button); });
    }
}

void CMenuBtnHelper::SetMenuPos(int x, int y)
{
    m_iMenuX = x;
    m_iMenuY = y;
}

bool CMenuBtnHelper::eventFilter(QObject* obj, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::Enter && type != QEvent::FocusOut && type != QEvent::KeyPress) {
        return QObject::eventFilter(obj, event);
    }
    const QPointer<CMenuBtnHelper> self(this);
    const QPointer<QObject> watched(obj);
    if (type == QEvent::KeyPress) {
        return KeyPressed(obj, static_cast<QKeyEvent*>(event)) || !self || !watched ? true
                                                                                    : QObject::eventFilter(obj, event);
    }
    auto* button = qobject_cast<QPushButton*>(obj);
    if (button && m_hashBtnMenu.contains(button)) {
        if (type == QEvent::Enter) {
            ButtonEntered(button);
        } else {
            ButtonFocusOut(button);
        }
    } else if (type == QEvent::FocusOut) {
        if (auto* menu = qobject_cast<CCustomMenu*>(obj)) {
            MenuFocusOut(menu, false);
        }
    }
    // Opening and closing is heard by the host, who may have deleted either.
    return self && watched ? QObject::eventFilter(obj, event) : true;
}

void CMenuBtnHelper::KeepFocus(QPushButton* button, bool keep)
{
    if (!button) {
        return;
    }
    m_pKeepFocusBtn = keep ? button : nullptr;
    button->setStyleSheet(keep ? kOpenSheet : kRestSheet);
}

void CMenuBtnHelper::MenuFocusOut(CCustomMenu* menu, bool force)
{
    if (!menu) {
        return;
    }
    if (!force && HoldsCursor(menu)) {
        menu->setFocus();
        return;
    }
    CCustomMenu* current = menu;
    while (current->objectName() == kSubMenuName) {
        if (current->HasFocus()) {
            return;
        }
        current = m_hashSubMenuRoot.value(current);
        if (!current) {
            return;
        }
        if (HoldsCursor(current)) {
            current->setFocus();
            return;
        }
    }
    if (current->HasFocus()) {
        return;
    }
    if (m_pKeepFocusBtn && m_hashBtnMenu.value(m_pKeepFocusBtn) == current) {
        KeepFocus(m_pKeepFocusBtn, false);
    }
    const QPointer<CMenuBtnHelper> self(this);
    current->hide();
    if (self && m_pCurrentMenu == current) {
        m_pCurrentMenu = nullptr;
    }
}

void CMenuBtnHelper::Toggle(QPushButton* button)
{
    CCustomMenu* menu = m_hashBtnMenu.value(button);
    if (!menu) {
        return;
    }
    if (!menu->isVisible()) {
        KeepFocus(button, true);
        OpenMenu(button, menu);
        return;
    }
    KeepFocus(button, false);
    m_pCurrentMenu = nullptr;
    menu->hide();
    if (m_pFocusWidget) {
        m_pFocusWidget->setFocus();
    }
}

void CMenuBtnHelper::ButtonEntered(QPushButton* button)
{
    if (!m_pCurrentMenu) {
        return;
    }
    KeepFocus(m_hashBtnMenu.key(m_pCurrentMenu), false);
    const QPointer<CMenuBtnHelper> self(this);
    const QPointer<QPushButton> entered(button);
    m_pCurrentMenu->hide();
    if (!self || !entered) {
        return;
    }
    CCustomMenu* menu = m_hashBtnMenu.value(button);
    if (menu && button->isEnabled()) {
        OpenMenu(button, menu);
        if (entered) {
            button->setFocus();
        }
    }
}

void CMenuBtnHelper::ButtonFocusOut(QPushButton* button)
{
    CCustomMenu* menu = m_hashBtnMenu.value(button);
    if (!menu || !menu->isVisible()) {
        return;
    }
    if (menu->HasFocus()) {
        KeepFocus(button, true);
        return;
    }
    const QPointer<CMenuBtnHelper> self(this);
    const QPointer<QPushButton> left(button);
    menu->hide();
    if (!self) {
        return;
    }
    if (left) {
        KeepFocus(button, false);
    }
    if (m_pCurrentMenu == menu) {
        m_pCurrentMenu = nullptr;
    }
}

void CMenuBtnHelper::OpenMenu(QPushButton* button, CCustomMenu* menu)
{
    m_pCurrentMenu = menu;
    menu->move(Coordinate(qint64(button->x()) + m_iMenuX), Coordinate(m_iMenuY));
    menu->show();
}

// The keys reach a menu through its button, which keeps the focus, or by way of the menu itself once a click gave it
// the focus. True when nobody else is to see the key.
bool CMenuBtnHelper::KeyPressed(QObject* obj, const QKeyEvent* event)
{
    QPointer<QPushButton> button = qobject_cast<QPushButton*>(obj);
    QPointer<CCustomMenu> menu = qobject_cast<CCustomMenu*>(obj);
    if (button && m_hashBtnMenu.contains(button)) {
        menu = m_hashBtnMenu.value(button);
    } else if (menu) {
        menu = m_hashSubMenuRoot.value(menu, menu);
        button = m_hashBtnMenu.key(menu);
    }
    if (!menu || !button) {
        return false;
    }
    if (!menu->isVisible()) {
        if (event->key() != Qt::Key_Down || event->modifiers() != Qt::NoModifier) {
            return false;
        }
        Toggle(button);
        if (menu && menu->isVisible()) {
            MenuKeyboard::ChooseFirst(menu);
        }
        return true;
    }
    const QPointer<CMenuBtnHelper> self(this);
    switch (MenuKeyboard::Press(menu, event)) {
    case MenuKeyboard::Taken:
        return true;
    case MenuKeyboard::Leaves:
        KeepFocus(button, false);
        m_pCurrentMenu = nullptr;
        menu->hide();
        if (self && button) {
            button->setFocus();
        }
        return true;
    case MenuKeyboard::Ignored:
        break;
    }
    if (!self || event->modifiers() != Qt::NoModifier) {
        return !self;
    }
    return (event->key() == Qt::Key_Right && GoBeside(button, 1)) ||
           (event->key() == Qt::Key_Left && GoBeside(button, -1));
}

// What the pointer does by entering the button beside the one whose menu is open.
bool CMenuBtnHelper::GoBeside(QPushButton* button, int step)
{
    QList<QPushButton*> buttons;
    for (auto pair = m_hashBtnMenu.cbegin(); pair != m_hashBtnMenu.cend(); ++pair) {
        if (pair.value() && pair.key()->isEnabled() && pair.key()->isVisible()) {
            buttons.append(pair.key());
        }
    }
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton* left, const QPushButton* right) { return left->x() < right->x(); });
    const int index = int(buttons.indexOf(button));
    if (index < 0 || buttons.size() < 2) {
        return false;
    }
    const int count = int(buttons.size());
    const QPointer<QPushButton> beside = buttons.at((index + step + count) % count);
    const QPointer<CCustomMenu> menu = m_hashBtnMenu.value(beside);
    m_pCurrentMenu = m_hashBtnMenu.value(button);
    ButtonEntered(beside);
    if (menu && menu->isVisible()) {
        MenuKeyboard::ChooseFirst(menu);
    }
    return true;
}

void CMenuBtnHelper::ButtonGone(QPushButton* button)
{
    // Its menu would have nobody left to close it.
    CCustomMenu* menu = m_hashBtnMenu.take(button);
    if (m_pKeepFocusBtn == button) {
        m_pKeepFocusBtn = nullptr;
    }
    if (menu && menu == m_pCurrentMenu && !m_hashBtnMenu.key(menu)) {
        m_pCurrentMenu = nullptr;
        menu->hide();
    }
}

void CMenuBtnHelper::MenuGone(CCustomMenu* menu)
{
    if (m_pCurrentMenu == menu) {
        m_pCurrentMenu = nullptr;
    }
    if (m_pKeepFocusBtn && m_hashBtnMenu.value(m_pKeepFocusBtn) == menu) {
        KeepFocus(m_pKeepFocusBtn, false);
    }
    m_hashSubMenuRoot.removeIf([menu](const auto& entry) { return entry.key() == menu || entry.value() == menu; });
    // A button without a menu is the host's again, but stays in the table: its press is already connected.
    for (CCustomMenu*& registered : m_hashBtnMenu) {
        if (registered == menu) {
            registered = nullptr;
        }
    }
}

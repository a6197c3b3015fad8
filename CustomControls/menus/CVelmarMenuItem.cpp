#include <CustomControls/menus/CVelmarMenuItem.h>

#include "ui_CVelmarMenuItem.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/menus/CVelmarMenuItemAccessible.h>
#include <CustomControls/menus/MenuHelpers_p.h>

#include <QEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

namespace {

using MenuHelpers::Wear;

// The host's resources hold both.
const QString kArrow = QStringLiteral(":/mainwindow/ico_current_arrow_right_black.png");
const QString kArrowFocus = QStringLiteral(":/mainwindow/ico_current_arrow_right_white.png");

const QString kTextColor = QStringLiteral("#212121");
const QString kBackColor = QStringLiteral("#FFFFFF");
const QString kFocusTextColor = QStringLiteral("#212121");
const QString kHoverColor = QStringLiteral("#d4e2ff");
const QString kShortcutColor = QStringLiteral("#8c8c8c");
const QString kFocusShortcutColor = QStringLiteral("#8c8c8c");
const QString kDisabledColor = QStringLiteral("#999999");

const QString kTransparentSheet = QStringLiteral("background:transparent;");
const QString kRowSheet = QStringLiteral("QWidget{background:%1;}QWidget::hover{background:%2;}");
const QString kBackSheet = QStringLiteral("background:%1;");
const QString kShortcutSheet = QStringLiteral("color:%1;background:transparent;");
const QString kFocusShortcutSheet = QStringLiteral("color:%1;background:%2;");

// At rest, then after a hover; the two differ by what they say of a disabled text.
const QString kTextSheet = QStringLiteral("QLabel{color:%1;background:transparent;}QLabel:disabled{color:%2}");
const QString kLeftTextSheet = QStringLiteral("QLabel{color:%1;background:transparent;}QLabel:disabled{color:%2;}");
const QString kFocusTextSheet = QStringLiteral("QLabel{color:%1;background:%2;}QLabel:disabled{color:%3}");
const QString kHoverTextSheet =
    QStringLiteral("QLabel{color:%1;background:%2;}QLabel:disabled{color:%3;background:transparent;}");

const AccessibleFactory::Registration<CVelmarMenuItem, CVelmarMenuItemAccessible> kAccessible;

} // namespace

CVelmarMenuItem::CVelmarMenuItem(QWidget* parent, const QString& text, const QString& shortcut, const QString& icon,
                                 const QString& iconHover, bool hasSubMenu)
    : QWidget(parent)
    , ui(new Ui::CVelmarMenuItem)
    , m_strTextColor(kTextColor)
    , m_strBackColor(kBackColor)
    , m_strFocusTextColor(kFocusTextColor)
    , m_strHoverColor(kHoverColor)
    , m_strShortcutColor(kShortcutColor)
    , m_strFocusShortcutColor(kFocusShortcutColor)
    , m_strDisabledColor(kDisabledColor)
    , m_strIcon(icon)
    , m_strIconHover(iconHover.isEmpty() ? icon : iconHover)
    , m_bHasSubMenu(hasSubMenu)
    , m_pixIcon(SharpPixmap(m_strIcon))
    , m_pixIconHover(SharpPixmap(m_strIconHover))
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("MenuItem"));

    ui->m_labelIcon->setPixmap(m_pixIcon);
    ui->m_labelIcon->setAlignment(Qt::AlignCenter);
    ui->m_labelText->setText(text);
    ui->m_labelShortCut->setText(shortcut);
    // It holds the icon's place and shows nothing.
    ui->m_labelBlank->clear();
    ui->m_labelBlank->hide();
    if (m_bHasSubMenu) {
        m_pixArrow = SharpPixmap(kArrow);
        m_pixArrowFocus = SharpPixmap(kArrowFocus);
        ui->m_labelArrow->setPixmap(m_pixArrow);
    }

    ui->m_labelText->setFont(FontCnMedium_15);
    ui->m_labelShortCut->setFont(FontCnMedium_14);
    ui->m_labelShortCut->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ui->m_labelBlank->setStyleSheet(kTransparentSheet);
    ui->m_labelIcon->setStyleSheet(kTransparentSheet);
    SetTextSheets();
    ui->widget->setStyleSheet(kRowSheet.arg(m_strBackColor, m_strHoverColor));

    installEventFilter(this);
    setAttribute(Qt::WA_MouseTracking);
}

CVelmarMenuItem::~CVelmarMenuItem()
{
    delete ui;
}

void CVelmarMenuItem::SetItemSize(int width, int height, int, int)
{
    const int rowHeight = std::clamp(height, 0, QWIDGETSIZE_MAX);
    setFixedSize(std::clamp(width, 0, QWIDGETSIZE_MAX), rowHeight);
    ui->m_labelIcon->setFixedSize(rowHeight, rowHeight);
    ui->m_labelBlank->setFixedSize(rowHeight, rowHeight);
}

QString CVelmarMenuItem::text()
{
    return ui->m_labelText->text();
}

void CVelmarMenuItem::SetText(const QString& text)
{
    ui->m_labelText->setText(text);
    TellNameChanged(this);
}

void CVelmarMenuItem::SetIcon(const QString& path)
{
    m_strIcon = path;
    m_strIconHover = path;
    m_pixIcon = SharpPixmap(path);
    m_pixIconHover = m_pixIcon;
    ui->m_labelIcon->setPixmap(m_pixIcon);
}

void CVelmarMenuItem::SetMenuStyle(MenuStyle style)
{
    // This family has no dark row.
    if (style == MenuStyleFlat || style == MenuStyleWhite) {
        m_strTextColor = kTextColor;
        m_strBackColor = kBackColor;
        m_strFocusTextColor = kFocusTextColor;
        m_strHoverColor = kHoverColor;
        m_strShortcutColor = kShortcutColor;
        m_strFocusShortcutColor = kFocusShortcutColor;
    }
    SetTextSheets();
    // On the row itself, not on its inner widget as at first.
    Wear(this, kRowSheet.arg(m_strBackColor, m_strHoverColor));
}

void CVelmarMenuItem::SetMenuFont(const QFont& text, const QFont& shortcut)
{
    ui->m_labelText->setFont(text);
    ui->m_labelShortCut->setFont(shortcut);
}

void CVelmarMenuItem::SetChooseFocus(bool focus)
{
    m_bChooseFocus = focus;
    ShowFocus(focus, focus ? FocusTextSheet(kFocusTextSheet) : RestTextSheet(kTextSheet));
}

void CVelmarMenuItem::SetIconVisible(bool visible)
{
    ui->m_labelIcon->setVisible(visible);
    ui->m_labelBlank->setVisible(!visible);
}

void CVelmarMenuItem::SetEnabled(bool enabled)
{
    setEnabled(enabled);
}

bool CVelmarMenuItem::eventFilter(QObject* obj, QEvent* event)
{
    if (obj != this) {
        return QWidget::eventFilter(obj, event);
    }
    // A host that asked for the row's end by deleteLater() still gets it.
    if (!isEnabled() && event->type() != QEvent::DeferredDelete) {
        return true;
    }
    const QPointer<CVelmarMenuItem> self(this);
    switch (event->type()) {
    case QEvent::Enter:
        ShowFocus(true, FocusTextSheet(kHoverTextSheet));
        break;
    case QEvent::Leave:
        if (!m_bChooseFocus) {
            ShowFocus(false, RestTextSheet(kLeftTextSheet));
        }
        break;
    case QEvent::Hide:
        if (m_bChooseFocus) {
            SetChooseFocus(false);
        }
        break;
    case QEvent::MouseButtonRelease:
        if (!m_bHasSubMenu && rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
            Click();
            return true;
        }
        Q_EMIT SignalMenuBtnFocus(true);
        break;
    case QEvent::FocusOut:
        hide();
        break;
    default:
        break;
    }
    return self ? QWidget::eventFilter(obj, event) : true;
}

void CVelmarMenuItem::Click()
{
    // Whoever hears of the choice may delete the row, or the menu with it.
    const QPointer<CVelmarMenuItem> self(this);
    Q_EMIT SignalMenuBtnFocus(false);
    if (self) {
        Q_EMIT SignalMenuItemClicked();
    }
}

QString CVelmarMenuItem::ShortcutText() const
{
    return ui->m_labelShortCut->text();
}

void CVelmarMenuItem::SetTextSheets()
{
    Wear(ui->m_labelText, RestTextSheet(kTextSheet));
    Wear(ui->m_labelShortCut, kShortcutSheet.arg(m_strShortcutColor));
}

void CVelmarMenuItem::ShowFocus(bool focus, const QString& textSheet)
{
    const QString& back = focus ? m_strHoverColor : m_strBackColor;
    const QString backSheet = kBackSheet.arg(back);
    Wear(ui->m_labelBlank, backSheet);
    Wear(ui->m_labelIcon, backSheet);
    Wear(ui->m_labelArrow, backSheet);
    ui->m_labelIcon->setPixmap(focus ? m_pixIconHover : m_pixIcon);
    Wear(ui->m_labelText, textSheet);
    Wear(ui->m_labelShortCut,
         focus ? kFocusShortcutSheet.arg(m_strFocusShortcutColor, back) : kShortcutSheet.arg(m_strShortcutColor));
    if (m_bHasSubMenu) {
        ui->m_labelArrow->setPixmap(focus ? m_pixArrowFocus : m_pixArrow);
    }
}

QString CVelmarMenuItem::FocusTextSheet(const QString& form) const
{
    return form.arg(m_strFocusTextColor, m_strHoverColor, m_strDisabledColor);
}

QString CVelmarMenuItem::RestTextSheet(const QString& form) const
{
    return form.arg(m_strTextColor, m_strDisabledColor);
}

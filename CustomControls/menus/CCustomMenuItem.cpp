#include <CustomControls/menus/CCustomMenuItem.h>

#include "ui_CCustomMenuItem.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/menus/CCustomMenuItemAccessible.h>
#include <CustomControls/menus/MenuHelpers_p.h>

#include <QCursor>
#include <QEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QPointer>

#include <algorithm>

namespace {

using MenuHelpers::Wear;
using MenuHelpers::WidgetSize;

constexpr int kIconEdge = 16;
constexpr int kArrowEdge = 10;
constexpr int kShortcutMargin = 5;

constexpr char kArrowIcon[] = ":/icon/ico_scan_slip_right.png"; // the host's resources hold it
constexpr char kIconShown[] = "icon_show";

const QString kRowSheet = QStringLiteral("QWidget#MenuItem{background:transparent;border:none;}");
const QString kTransparentSheet = QStringLiteral("background:transparent;");
const QString kTextSheet = QStringLiteral("QLabel{color:%1;background:transparent;}QLabel::disabled{color:#505050;}");
const QString kShortcutSheet = QStringLiteral("color:#6b6b6b;background:transparent;");
const QString kShortcutHoverSheet = QStringLiteral("color:#ebebeb;background:transparent;");
const QString kStyleSheet =
    QStringLiteral("QWidget#widget{background:%1;border-radius:4px;}QWidget::hover{background:%2;}");
const QString kStateSheet = QStringLiteral("QWidget#widget{background:%1;border-radius:4px;}");

struct RowColors
{
    QString strText;
    QString strBack;
    QString strFocusText;
    QString strHover;
};

RowColors ColorsOf(MenuStyle style)
{
    if (style == MenuStyleWhite) {
        return {QStringLiteral("#202020"), QStringLiteral("#FFFFFF"), QStringLiteral("#FFFFFF"),
                QStringLiteral("#0071bc")};
    }
    return {QStringLiteral("#FFFFFF"), QStringLiteral("#181818"), QStringLiteral("#FFFFFF"), QStringLiteral("#016ACB")};
}

QIcon LoadIcon(const QString& path)
{
    // For a name without an ending the toolkit asks its database of file types first, which costs six times as much as
    // to see that there is no such picture under any ending.
    const QFileInfo file(path);
    if (file.suffix().isEmpty() && !file.exists() && QImageReader(path).format().isEmpty()) {
        return {};
    }
    return QIcon(path);
}

const AccessibleFactory::Registration<CCustomMenuItem, CCustomMenuItemAccessible> kAccessible;

} // namespace

CCustomMenuItem::CCustomMenuItem(QWidget* parent, const QString& text, const QString& shortcut, const QString& icon,
                                 const QString& iconHover, const QString& iconDisabled, bool hasSubMenu)
    : CCustomMenuItem(parent, nullptr, text, shortcut, icon, iconHover, iconDisabled, hasSubMenu)
{}

CCustomMenuItem::CCustomMenuItem(QWidget* parent, const QFont* font, const QString& text, const QString& shortcut,
                                 const QString& icon, const QString& iconHover, const QString& iconDisabled,
                                 bool hasSubMenu)
    : QWidget(parent)
    , ui(new Ui::CCustomMenuItem)
    , m_strIcon(icon)
    , m_strIconHover(iconHover)
    , m_strIconDisabled(iconDisabled)
    , m_bHasSubMenu(hasSubMenu)
{
    ui->setupUi(this);
    if (font) {
        setFont(*font);
    }
    setObjectName(QStringLiteral("MenuItem"));
    setStyleSheet(kRowSheet);

    ui->m_labelIcon->setAlignment(Qt::AlignCenter);
    ui->m_labelIcon->setProperty(kIconShown, true);
    ui->m_labelText->setText(text);
    ui->m_labelShortCut->setText(shortcut);
    ui->m_labelBlank->hide();
    ShowArrow();

    const RowColors colors = ColorsOf(MenuStyleDark);
    m_strTextColor = colors.strText;
    m_strBackColor = colors.strBack;
    m_strFocusTextColor = colors.strFocusText;
    m_strHoverColor = colors.strHover;

    const QFont& textFont =
        CorvaneTextHelper::instance()->AppInChineseEnvironment() ? FontCnMedium_14 : FontCnMedium_13;
    ui->m_labelText->setFont(textFont);
    ui->m_labelShortCut->setFont(textFont);
    if (!m_strIcon.isEmpty()) {
        ShowIcon(m_iconRest, m_strIcon);
    }

    Wear(ui->m_labelBlank, kTransparentSheet);
    Wear(ui->m_labelIcon, kTransparentSheet);
    SetTextColor(m_strTextColor);
    Wear(ui->m_labelShortCut, kShortcutSheet);
    Wear(ui->widget, kStyleSheet.arg(m_strBackColor, m_strHoverColor));

    installEventFilter(this);
    setAttribute(Qt::WA_MouseTracking);
}

CCustomMenuItem::~CCustomMenuItem()
{
    delete ui;
}

int CCustomMenuItem::SetItemSize(int minWidth, int height, int textWidth, int shortcutWidth)
{
    const int rowHeight = WidgetSize(height);
    const int shortcutColumn = WidgetSize(qint64(std::max(shortcutWidth, 0)) + kShortcutMargin);
    ui->m_labelIcon->setFixedSize(kIconEdge, kIconEdge);
    ui->m_labelBlank->setFixedSize(kIconEdge, kIconEdge);
    ui->m_labelShortCut->setFixedSize(shortcutColumn, rowHeight);

    // The blank label stands in for the icon, so one of the two is always counted too much.
    const QMargins margins = ui->horizontalLayout->contentsMargins();
    const qint64 needed = qint64(shortcutColumn) + ui->m_labelBlank->width() + ui->m_labelArrow->width() +
                          ui->m_labelIcon->width() + margins.left() + margins.right() +
                          ui->horizontalSpacer->sizeHint().width() + std::max(textWidth, 0);
    const int width = WidgetSize(std::max<qint64>(minWidth, needed));
    setFixedSize(width, rowHeight);
    return width;
}

QString CCustomMenuItem::text()
{
    return ui->m_labelText->text();
}

void CCustomMenuItem::SetText(const QString& text)
{
    ui->m_labelText->setText(text);
    TellNameChanged(this);
}

void CCustomMenuItem::SetMenuStyle(MenuStyle style)
{
    const RowColors colors = ColorsOf(style);
    m_strTextColor = colors.strText;
    m_strBackColor = colors.strBack;
    m_strFocusTextColor = colors.strFocusText;
    m_strHoverColor = colors.strHover;
    Wear(ui->widget, kStyleSheet.arg(m_strBackColor, m_strHoverColor));
}

void CCustomMenuItem::SetChooseFocus(bool focus)
{
    const QPointer<CCustomMenuItem> self(this);
    Q_EMIT SignalFocusChanged(focus);
    if (!self) {
        return;
    }
    m_bChooseFocus = focus;
    Wear(ui->m_labelBlank, kTransparentSheet);
    Wear(ui->m_labelIcon, kTransparentSheet);
    SetTextColor(focus ? m_strFocusTextColor : m_strTextColor);
    Wear(ui->m_labelShortCut, kShortcutSheet);
    Wear(ui->m_labelArrow, kTransparentSheet);
    ShowArrow();
    SetBackground(focus ? m_strHoverColor : m_strBackColor);
}

void CCustomMenuItem::SetIconVisible(bool visible)
{
    ui->m_labelIcon->setProperty(kIconShown, visible);
    ui->m_labelIcon->setVisible(visible);
    ui->m_labelBlank->setVisible(!visible);
}

bool CCustomMenuItem::IsIconVisible() const
{
    return ui->m_labelIcon->property(kIconShown).toBool();
}

void CCustomMenuItem::SetButtonId(int id)
{
    m_iButtonId = id;
}

int CCustomMenuItem::GetButtonId() const
{
    return m_iButtonId;
}

void CCustomMenuItem::SetEnabled(bool enabled)
{
    setEnabled(enabled);
    if (!enabled) {
        ShowIcon(m_iconDisabled, m_strIconDisabled);
    } else if (isVisible() && rect().contains(mapFromGlobal(QCursor::pos()))) {
        ShowIcon(m_iconHover, m_strIconHover);
    } else {
        ShowIcon(m_iconRest, m_strIcon);
    }
}

void CCustomMenuItem::SetBtnState(bool checked, bool stateButton)
{
    const bool changed = IsIconVisible() != checked;
    SetIconVisible(checked);
    m_bStateButton = stateButton;
    if (changed && stateButton) {
        TellCheckedChanged(this);
    }
}

bool CCustomMenuItem::IsStateButton() const
{
    return m_bStateButton;
}

bool CCustomMenuItem::GetBtnState() const
{
    return IsIconVisible();
}

bool CCustomMenuItem::eventFilter(QObject* obj, QEvent* event)
{
    if (obj != this) {
        return QWidget::eventFilter(obj, event);
    }
    const QPointer<CCustomMenuItem> self(this);
    switch (event->type()) {
    case QEvent::Enter:
        if (isEnabled()) {
            SetBackground(m_strHoverColor);
            ShowIcon(m_iconHover, m_strIconHover);
            Wear(ui->m_labelShortCut, kShortcutHoverSheet);
        }
        break;
    case QEvent::Leave:
        Wear(ui->m_labelShortCut, kShortcutSheet);
        if (!m_bChooseFocus) {
            SetBackground(m_strBackColor);
            ShowRestIcon();
        }
        break;
    case QEvent::Hide:
        if (m_bChooseFocus) {
            SetChooseFocus(false);
        }
        break;
    case QEvent::MouseButtonRelease:
        if (!m_bHasSubMenu && isEnabled()) {
            Q_EMIT SignalMenuItemClicked();
        }
        break;
    case QEvent::MouseButtonPress:
        return true;
    default:
        break;
    }
    // Whoever heard the signal may have deleted the row; nothing may then touch it on the event's way back.
    return self ? QWidget::eventFilter(obj, event) : true;
}

void CCustomMenuItem::mouseMoveEvent(QMouseEvent* event)
{
    // Accepted without effect, so that moves do not reach the menu and the window behind it.
    Q_UNUSED(event)
}

void CCustomMenuItem::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
}

QString CCustomMenuItem::ShortcutText() const
{
    return ui->m_labelShortCut->text();
}

void CCustomMenuItem::ShowIcon(QIcon& icon, const QString& path)
{
    if (icon.isNull() && !path.isEmpty()) {
        icon = LoadIcon(path);
    }
    ui->m_labelIcon->setPixmap(SharpPixmap(icon, QSize(kIconEdge, kIconEdge)));
}

void CCustomMenuItem::ShowRestIcon()
{
    if (isEnabled()) {
        ShowIcon(m_iconRest, m_strIcon);
    } else {
        ShowIcon(m_iconDisabled, m_strIconDisabled);
    }
}

void CCustomMenuItem::ShowArrow()
{
    if (!m_bHasSubMenu) {
        return;
    }
    if (m_iconArrow.isNull()) {
        m_iconArrow = QIcon(QString::fromLatin1(kArrowIcon));
    }
    ui->m_labelArrow->setPixmap(SharpPixmap(m_iconArrow, QSize(kArrowEdge, kArrowEdge)));
}

void CCustomMenuItem::SetTextColor(const QString& color)
{
    Wear(ui->m_labelText, kTextSheet.arg(color));
}

void CCustomMenuItem::SetBackground(const QString& color)
{
    Wear(ui->widget, kStateSheet.arg(color));
}

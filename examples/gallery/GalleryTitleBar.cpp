#include "GalleryTitleBar.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace {
constexpr int BarHeight = 48;
constexpr int MarkSize = 26;
constexpr int ButtonWidth = 46;
constexpr int TextButtonWidth = 76;
constexpr int IconSize = 16;
constexpr auto BarSheet = "#galleryTitleBar{background:#2b2f33;}";
const QString TextColor = QStringLiteral("#e6e9ec");
const QColor Band(0x2b, 0x2f, 0x33);
const QColor BandHover(0x40, 0x46, 0x4c);
const QColor BandPressed(0x55, 0x5d, 0x64);
const QColor CloseHover(0xe5, 0x00, 0x00);
const QColor ClosePressed(0xb0, 0x00, 0x00);

void SetIcon(CVelmarButton* button, const QString& icon)
{
    const QString image = QStringLiteral("url(:/gallery/%1.png)").arg(icon);
    button->SetButtonIcon(image, image, image, image);
}

void SetTip(CVelmarButton* button, const QString& tip)
{
    if (button) {
        button->setToolTip(tip);
        button->setAccessibleName(tip);
    }
}
} // namespace

GalleryTitleBar::GalleryTitleBar(QWidget* window, int buttons)
    : QWidget(window)
    , m_pWindow(window)
    , m_pTitle(new QLabel(window->windowTitle()))
    , m_pSubtitle(new QLabel)
    , m_pLayout(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("galleryTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(BarSheet));
    setFixedHeight(BarHeight);

    auto* mark = new QLabel;
    mark->setPixmap(QIcon(QStringLiteral(":/gallery/app.png")).pixmap(MarkSize, MarkSize));
    m_pTitle->setFont(FontCnBold_16);
    m_pTitle->setStyleSheet(QStringLiteral("color:#ffffff;background:transparent;"));
    m_pSubtitle->setFont(FontCn_14);
    m_pSubtitle->setStyleSheet(QStringLiteral("color:#b8bec4;background:transparent;"));

    m_pLayout->setContentsMargins(20, 0, 0, 0);
    m_pLayout->setSpacing(0);
    for (QLabel* label : {mark, m_pTitle, m_pSubtitle}) {
        // A visible child would take the mouse from the bar, which could no longer be gripped there.
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_pLayout->addWidget(label);
        m_pLayout->addSpacing(12);
    }
    m_pLayout->addStretch(1);
    if (buttons & ButtonMinimize) {
        m_pMinimize = CreateButton(QStringLiteral("titleMinimize"));
        SetIcon(m_pMinimize, QStringLiteral("title_minimize"));
        connect(m_pMinimize, &CVelmarButton::SignalClicked, window, &QWidget::showMinimized);
    }
    if (buttons & ButtonMaximize) {
        m_pMaximize = CreateButton(QStringLiteral("titleMaximize"));
        connect(m_pMaximize, &CVelmarButton::SignalClicked, this, &GalleryTitleBar::ToggleMaximized);
    }
    if (buttons & ButtonClose) {
        m_pClose = CreateButton(QStringLiteral("titleClose"), ButtonTypeIcon, true);
        SetIcon(m_pClose, QStringLiteral("title_close"));
        connect(m_pClose, &CVelmarButton::SignalClicked, window, &QWidget::close);
    }
    for (CVelmarButton* button : {m_pMinimize, m_pMaximize, m_pClose}) {
        if (button) {
            m_pLayout->addWidget(button);
            ++m_iOwnButtons;
        }
    }
    Retranslate();
    connect(window, &QWidget::windowTitleChanged, m_pTitle, &QLabel::setText);
    window->installEventFilter(this);
}

void GalleryTitleBar::SetSubtitle(const QString& subtitle)
{
    m_pSubtitle->setText(subtitle);
}

void GalleryTitleBar::AddWidget(QWidget* widget)
{
    m_pLayout->insertWidget(m_pLayout->count() - m_iOwnButtons, widget);
}

void GalleryTitleBar::ToggleMaximized()
{
    m_pWindow->setWindowState(m_pWindow->windowState() ^ Qt::WindowMaximized);
}

bool GalleryTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pWindow && event->type() == QEvent::WindowStateChange) {
        FollowState();
    }
    return QWidget::eventFilter(watched, event);
}

void GalleryTitleBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

CVelmarButton* GalleryTitleBar::CreateButton(const QString& objectName, EnumButtonType type, bool closes)
{
    auto* button = new CVelmarButton(type, false, true, 0, this);
    const int width = type == ButtonTypeText ? TextButtonWidth : ButtonWidth;
    button->setObjectName(objectName);
    button->SetButtonSize(width, BarHeight);
    button->setFixedSize(width, BarHeight);
    button->setFocusPolicy(Qt::NoFocus);
    constexpr int side = (ButtonWidth - IconSize) / 2;
    if (type == ButtonTypeText) {
        button->SetButtonTextPos(0, 0, 0, 0, width, BarHeight);
        button->SetTextColor(TextColor, TextColor, TextColor, TextColor);
    } else {
        button->SetButtonImagePos(side, 0, side, 0, IconSize, BarHeight);
    }
    button->SetBackgroundSolid(Band, closes ? ClosePressed : BandPressed, closes ? CloseHover : BandHover, Band);
    return button;
}

void GalleryTitleBar::Retranslate()
{
    SetTip(m_pMinimize, tr("最小化"));
    SetTip(m_pClose, tr("关闭"));
    FollowState();
}

void GalleryTitleBar::FollowState()
{
    if (!m_pMaximize) {
        return;
    }
    const bool maximized = m_pWindow->isMaximized();
    SetIcon(m_pMaximize, maximized ? QStringLiteral("title_restore") : QStringLiteral("title_maximize"));
    SetTip(m_pMaximize, maximized ? tr("向下还原") : tr("最大化"));
}

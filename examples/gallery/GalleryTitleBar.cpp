#include "GalleryTitleBar.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace {
constexpr int BarHeight = 48;
constexpr int MarkSize = 26;
constexpr int ButtonWidth = 46;
constexpr int IconSize = 16;
constexpr auto BarSheet = "#galleryTitleBar{background:#2b2f33;}";
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
} // namespace

GalleryTitleBar::GalleryTitleBar(QWidget* window, int buttons, const QString& subtitle)
    : QWidget(window)
    , m_pWindow(window)
    , m_pTitle(new QLabel(window->windowTitle()))
{
    setObjectName(QStringLiteral("galleryTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(BarSheet));
    setFixedHeight(BarHeight);

    auto* mark = new QLabel;
    mark->setPixmap(QIcon(QStringLiteral(":/gallery/app.png")).pixmap(MarkSize, MarkSize));
    m_pTitle->setFont(FontCnBold_16);
    m_pTitle->setStyleSheet(QStringLiteral("color:#ffffff;background:transparent;"));
    auto* detail = new QLabel(subtitle);
    detail->setFont(FontCn_14);
    detail->setStyleSheet(QStringLiteral("color:#b8bec4;background:transparent;"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 0, 0, 0);
    layout->setSpacing(0);
    for (QLabel* label : {mark, m_pTitle, detail}) {
        // A visible child would take the mouse from the bar, which could no longer be gripped there.
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        layout->addWidget(label);
        layout->addSpacing(12);
    }
    layout->addStretch(1);
    if (buttons & ButtonMinimize) {
        CVelmarButton* minimize =
            CreateButton(QStringLiteral("titleMinimize"), QStringLiteral("title_minimize"), tr("最小化"), false);
        connect(minimize, &CVelmarButton::SignalClicked, window, &QWidget::showMinimized);
        layout->addWidget(minimize);
    }
    if (buttons & ButtonMaximize) {
        m_pMaximize = CreateButton(QStringLiteral("titleMaximize"), QString(), QString(), false);
        connect(m_pMaximize, &CVelmarButton::SignalClicked, this, &GalleryTitleBar::ToggleMaximized);
        layout->addWidget(m_pMaximize);
        FollowState();
    }
    if (buttons & ButtonClose) {
        CVelmarButton* close =
            CreateButton(QStringLiteral("titleClose"), QStringLiteral("title_close"), tr("关闭"), true);
        connect(close, &CVelmarButton::SignalClicked, window, &QWidget::close);
        layout->addWidget(close);
    }
    connect(window, &QWidget::windowTitleChanged, m_pTitle, &QLabel::setText);
    window->installEventFilter(this);
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

CVelmarButton* GalleryTitleBar::CreateButton(const QString& objectName, const QString& icon, const QString& tip,
                                             bool closes)
{
    auto* button = new CVelmarButton(ButtonTypeIcon, false, true, 0, this);
    button->setObjectName(objectName);
    button->SetButtonSize(ButtonWidth, BarHeight);
    button->setFixedSize(ButtonWidth, BarHeight);
    button->setFocusPolicy(Qt::NoFocus);
    constexpr int side = (ButtonWidth - IconSize) / 2;
    button->SetButtonImagePos(side, 0, side, 0, IconSize, BarHeight);
    button->SetBackgroundSolid(Band, closes ? ClosePressed : BandPressed, closes ? CloseHover : BandHover, Band);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    if (!icon.isEmpty()) {
        SetIcon(button, icon);
    }
    return button;
}

void GalleryTitleBar::FollowState()
{
    if (!m_pMaximize) {
        return;
    }
    const bool maximized = m_pWindow->isMaximized();
    SetIcon(m_pMaximize, maximized ? QStringLiteral("title_restore") : QStringLiteral("title_maximize"));
    const QString tip = maximized ? tr("向下还原") : tr("最大化");
    m_pMaximize->setToolTip(tip);
    m_pMaximize->setAccessibleName(tip);
}

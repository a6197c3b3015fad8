#include <CustomControls/buttons/CHintButton.h>

#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CHintButtonAccessible.h>
#include <CustomControls/buttons/CHintTextToolTip.h>

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTimer>

#include <utility>

namespace {

const QString kDefaultIcon = QStringLiteral(":/icon/ico_warning_line_gre_nor.png");
const QString kDefaultIconHover = QStringLiteral(":/icon/ico_warning_line_gre_hover.png");

// Where a style gives no room for the contents: the button's width without this.
constexpr int kContentsMargins = 12;

// Between the button and a note that a key has opened.
constexpr int kNoteGap = 4;

const AccessibleFactory::Registration<CHintButton, CHintButtonAccessible> kAccessible;

bool IsClickKey(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
}

} // namespace

CHintButton::CHintButton(QWidget* parent)
    : QPushButton(parent)
    , m_pHoverTimer(new QTimer(this))
    , m_strIcon(kDefaultIcon)
    , m_strIconHover(kDefaultIconHover)
{
    setCursor(Qt::PointingHandCursor);
    m_pHoverTimer->setSingleShot(true);
    connect(m_pHoverTimer, &QTimer::timeout, this, &CHintButton::onHoverTimeout);
    // No system tip beside the note.
    setToolTip(QString());
    KeyboardFocus::ShowOn(this);
}

CHintButton::~CHintButton()
{
    ClearContent();
}

void CHintButton::SetToolTipText(const QString& text)
{
    auto* toolTip = new CHintTextToolTip(this, nullptr);
    toolTip->setText(text);
    AdoptToolTip(toolTip, true);
}

QString CHintButton::HintText() const
{
    return m_bOwnToolTip ? m_pToolTip->findChild<QLabel*>()->text() : QString();
}

void CHintButton::SetHintText(const QString& text)
{
    if (text.isEmpty()) {
        ClearContent();
    } else {
        SetToolTipText(text);
    }
}

void CHintButton::SetToolTip(CHintToolTip* toolTip)
{
    AdoptToolTip(toolTip, false);
    if (m_pToolTip) {
        m_pToolTip->setOwnerButton(this);
    }
}

void CHintButton::ClearContent()
{
    AdoptToolTip(nullptr, false);
}

void CHintButton::AdoptToolTip(CHintToolTip* toolTip, bool own)
{
    if (m_pToolTip) {
        disconnect(m_pToolTip, &QObject::destroyed, this, nullptr);
    }
    if (m_bOwnToolTip && m_pToolTip != toolTip) {
        delete m_pToolTip;
    }
    m_pToolTip = toolTip;
    m_bOwnToolTip = own;
    if (m_pToolTip) {
        connect(m_pToolTip, &QObject::destroyed, this, [this] {
            m_pToolTip = nullptr;
            m_bOwnToolTip = false;
        });
    }
}

void CHintButton::setText(const QString& text)
{
    m_strRawText = text;
    QPushButton::setText(m_bAutoWrap ? BuildDisplayText() : text);
}

void CHintButton::SetAutoWrap(bool enable)
{
    m_bAutoWrap = enable;
    UpdateDisplayText();
}

void CHintButton::RefreshDisplay()
{
    UpdateDisplayText();
}

void CHintButton::SetIcon(const QString& icon, const QString& iconHover)
{
    m_strIcon = icon;
    m_strIconHover = iconHover.isEmpty() ? icon : iconHover;
}

void CHintButton::SetHoverShow(bool enable)
{
    m_bHoverShow = enable;
}

void CHintButton::SetPositionOffset(const QPoint& offset)
{
    m_ptOffset = offset;
}

void CHintButton::ShowToolTip(bool pinned)
{
    if (!m_pToolTip) {
        return;
    }
    if (!m_bFilterInstalled) {
        window()->installEventFilter(this);
        m_bFilterInstalled = true;
    }
    m_bPinned = pinned;
    m_pToolTip->move(computeToolTipPosition());
    m_pToolTip->show();
    m_pToolTip->raise();
}

void CHintButton::HideToolTip()
{
    if (m_pToolTip) {
        m_pToolTip->hide();
        m_bPinned = false;
    }
}

bool CHintButton::IsToolTipVisible() const
{
    return m_pToolTip && m_pToolTip->isVisible();
}

void CHintButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        stopHoverTimer();
        ShowToolTip(true);
    }
    QAbstractButton::mousePressEvent(event);
}

void CHintButton::mouseReleaseEvent(QMouseEvent* event)
{
    QAbstractButton::mouseReleaseEvent(event);
}

void CHintButton::enterEvent(QEnterEvent* event)
{
    if (m_bHoverShow && m_pToolTip) {
        startHoverTimer();
    }
    QWidget::enterEvent(event);
}

void CHintButton::leaveEvent(QEvent* event)
{
    stopHoverTimer();
    if (IsToolTipVisible() && !m_bPinned) {
        HideToolTip();
    }
    QWidget::leaveEvent(event);
}

void CHintButton::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    UpdateDisplayText();
}

void CHintButton::keyPressEvent(QKeyEvent* event)
{
    const QPointer<CHintButton> alive(this);
    if (IsClickKey(event) && !event->isAutoRepeat() && m_pToolTip) {
        stopHoverTimer();
        if (IsToolTipVisible()) {
            HideToolTip();
        } else {
            ShowToolTipBeside();
        }
    } else if (event->key() == Qt::Key_Escape && IsToolTipVisible()) {
        HideToolTip();
        return;
    }
    if (alive) {
        QPushButton::keyPressEvent(event);
    }
}

void CHintButton::focusOutEvent(QFocusEvent* event)
{
    // Not when another window comes to the front, which the note itself may be.
    const bool leaves = event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
    if (leaves && std::exchange(m_bShownByKey, false)) {
        HideToolTip();
    }
    QPushButton::focusOutEvent(event);
}

QString CHintButton::BuildDisplayText() const
{
    if (!m_bAutoWrap || m_strRawText.isEmpty()) {
        return m_strRawText;
    }
    QStyleOptionButton option;
    option.initFrom(this);
    if (isFlat()) {
        option.features |= QStyleOptionButton::Flat;
    }
    QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    if (contents.width() < 0) {
        contents.setWidth(width() - kContentsMargins);
    }
    const int available = contents.width();
    const QFontMetrics metrics = fontMetrics();
    if (available < 1 || metrics.horizontalAdvance(m_strRawText) <= available) {
        return m_strRawText;
    }
    const int maximumLines = qMax(1, maximumHeight() / qMax(1, metrics.lineSpacing()));

    QString done;
    QString line;
    int lines = 1;
    for (qsizetype next = 0; next < m_strRawText.size();) {
        // Two code units that make one character stay together.
        const bool pair = m_strRawText.at(next).isHighSurrogate() && next + 1 < m_strRawText.size() &&
                          m_strRawText.at(next + 1).isLowSurrogate();
        const QString character = m_strRawText.mid(next, pair ? 2 : 1);
        if (!line.isEmpty() && metrics.horizontalAdvance(line + character) > available) {
            if (lines == maximumLines) {
                return done + metrics.elidedText(line + m_strRawText.mid(next), Qt::ElideRight, available);
            }
            done += line + QLatin1Char('\n');
            line = character;
            ++lines;
        } else {
            line += character;
        }
        next += character.size();
    }
    return done + line;
}

void CHintButton::UpdateDisplayText()
{
    if (!m_bAutoWrap) {
        return;
    }
    const QString display = BuildDisplayText();
    if (display != text()) {
        QPushButton::setText(display);
    }
}

QPoint CHintButton::computeToolTipPosition() const
{
    if (!m_pToolTip) {
        return QCursor::pos();
    }
    QPoint position = QCursor::pos() + m_ptOffset;
    const QScreen* screen = QGuiApplication::screenAt(position);
    if (!screen) {
        return position;
    }
    const QRect available = screen->availableGeometry();
    const QSize size = m_pToolTip->sizeHint();
    // The far side is that of the button, not of the pointer, so that the note leaves the button free.
    const QPoint button = mapToGlobal(QPoint(0, 0));
    if (position.x() + size.width() > available.right()) {
        position.setX(button.x() - m_ptOffset.x() - size.width());
    }
    if (position.y() + size.height() > available.bottom()) {
        position.setY(button.y() - m_ptOffset.y() - size.height());
    }
    return position;
}

// Where the pointer is means nothing to somebody who uses the keys.
void CHintButton::ShowToolTipBeside()
{
    const QPointer<CHintButton> alive(this);
    ShowToolTip(true);
    if (!alive || !IsToolTipVisible()) {
        return;
    }
    m_bShownByKey = hasFocus();
    const QRect room = screen()->availableGeometry();
    const QSize size = m_pToolTip->sizeHint();
    QPoint place = mapToGlobal(QPoint(0, height() + kNoteGap));
    if (place.y() + size.height() > room.bottom()) {
        place.setY(mapToGlobal(QPoint(0, 0)).y() - kNoteGap - size.height());
    }
    place.setX(qMax(room.left(), qMin(place.x(), room.right() - size.width())));
    m_pToolTip->move(place);
}

void CHintButton::startHoverTimer()
{
    m_pHoverTimer->start(m_iHoverDelay);
}

void CHintButton::stopHoverTimer()
{
    if (m_pHoverTimer->isActive()) {
        m_pHoverTimer->stop();
    }
}

void CHintButton::onHoverTimeout()
{
    if (m_bHoverShow) {
        ShowToolTip(false);
    }
}

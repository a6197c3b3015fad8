#include <CustomControls/toolbar/CToolButton.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/toolbar/CToolButtonAccessible.h>

#include <QDebug>
#include <QEvent>
#include <QIcon>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionToolButton>

#include <cmath>

namespace {

constexpr QSize kSizeWithoutCaption(35, 41);
constexpr int kHeightOfOneLine = 56;
constexpr int kMinimumContentWidth = 48;
constexpr int kSideMargins = 8;
constexpr int kSideMarginsWithMenu = 16;

constexpr qreal kRadius = 5.0;
constexpr QColor kFocusFill(73, 135, 89, 255);
constexpr QColor kActiveFill(73, 135, 89, 102);
constexpr QColor kHoverFill(73, 135, 89, 51);

constexpr int kIconTop = 4;
constexpr int kCaptionBelowIcon = 10;
constexpr int kMenuStrip = 8;
constexpr QColor kCaption(51, 51, 51, 255);
constexpr QColor kCaptionDisabled(188, 188, 188, 255);
constexpr double kDarkHighlight = 0.22;

constexpr QSize kArrowSize(12, 13);
constexpr int kArrowFromRight = 14;

double Linear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

// The relative luminance of sRGB, as the contrast rules for the web define it.
double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.red()) + 0.7152 * Linear(color.green()) + 0.0722 * Linear(color.blue());
}

// A disabled caption on a dark highlight is dark as well, not light: the users are used to it.
QColor CaptionColor(bool enabled, const QColor& highlight)
{
    const bool darkHighlight = highlight.isValid() && Luminance(highlight) <= kDarkHighlight;
    return enabled || darkHighlight ? kCaption : kCaptionDisabled;
}

const AccessibleFactory::Registration<CToolButton, CToolButtonAccessible> kAccessible;

} // namespace

quint64 CToolButton::m_nLinesRevision = 1;

CToolButton::CToolButton(QWidget* parent)
    : QToolButton(parent)
{
    setFont(FontCnMedium_13);
    // Not every style asks for the hover events that the fill follows.
    setAttribute(Qt::WA_Hover);
    KeyboardFocus::ShowOn(this);
    installEventFilter(this);
}

void CToolButton::SetSharedWidth(int width)
{
    if (m_nSharedWidth == width) {
        return;
    }
    m_nSharedWidth = width;
    updateGeometry();
}

void CToolButton::SetSharedTextLines(int lines)
{
    const int valid = qMax(1, lines);
    if (m_nSharedTextLines == valid) {
        return;
    }
    m_nSharedTextLines = valid;
    ++m_nLinesRevision;
    updateGeometry();
}

int CToolButton::SharedTextLines() const
{
    return m_nSharedTextLines;
}

void CToolButton::SetSelected(bool selected)
{
    m_bHovered = selected;
    repaint();
}

void CToolButton::ClearHover()
{
    m_bHovered = false;
    repaint();
}

void CToolButton::SetFocuseState()
{
    m_bFocusState = !m_bFocusState;
    repaint();
}

bool CToolButton::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this) {
        switch (event->type()) {
        case QEvent::HoverEnter:
            m_bHovered = true;
            break;
        case QEvent::HoverLeave:
            m_bHovered = false;
            break;
        case QEvent::MouseButtonPress:
            m_bPressed = true;
            if (!isEnabled()) {
                qDebug(" disabled btn clicked");
                const QPointer<CToolButton> alive(this);
                Q_EMIT SignalBtnDisabledClick();
                if (!alive) {
                    return true; // whoever was told deleted the button: nobody is left to take the press
                }
            }
            break;
        case QEvent::MouseButtonRelease:
            m_bPressed = false;
            break;
        default:
            break;
        }
    }
    return QToolButton::eventFilter(watched, event);
}

QSize CToolButton::sizeHint() const
{
    if (text().isEmpty()) {
        return kSizeWithoutCaption;
    }
    const int content = qMax(qMax(iconSize().width(), kMinimumContentWidth), m_nSharedWidth);
    return {content + (menu() ? kSideMarginsWithMenu : kSideMargins),
            kHeightOfOneLine + (m_nSharedTextLines - 1) * fontMetrics().lineSpacing()};
}

// Who hears of the click may delete the button, also from an event loop of his own. The toolkit's tool button writes to
// itself all the same when the click is over, into memory that is another's by then.
void CToolButton::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<CToolButton> alive(this);
    QAbstractButton::mouseReleaseEvent(event);
    if (alive) {
        // Of no button it is no click: all that is left is to forget which part of the button was pressed.
        QMouseEvent ofNoButton(event->type(), event->position(), event->globalPosition(), Qt::NoButton, Qt::NoButton,
                               event->modifiers());
        QToolButton::mouseReleaseEvent(&ofNoButton);
    }
}

void CToolButton::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool mouseOver = option.state.testFlag(QStyle::State_MouseOver);
    const QMenu* attachedMenu = menu();
    const bool menuOpen = attachedMenu && attachedMenu->isVisible();
    const bool pressed = enabled && m_bPressed && m_bHovered && (!attachedMenu || menuOpen);
    const QColor highlight(property("highlight").toString());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    if (highlight.isValid()) {
        PaintFill(painter, highlight, kRadius);
    }
    if (m_bFocusState) {
        PaintFill(painter, kFocusFill, kRadius);
    } else if (isChecked() || menuOpen || pressed) {
        PaintFill(painter, kActiveFill, kRadius);
    } else if (mouseOver && m_bHovered && enabled) {
        PaintFill(painter, kHoverFill, kRadius);
    }

    const QPixmap pixmap = StatePixmap(enabled);
    if (!pixmap.isNull()) {
        const int available = width() - (attachedMenu ? kMenuStrip : 0);
        const int left = static_cast<int>(available * 0.5 - iconSize().width() * 0.5);
        painter.drawPixmap(QRect(QPoint(left, kIconTop), iconSize()), pixmap);
    }

    if (!text().isEmpty()) {
        painter.setFont(font());
        painter.setPen(CaptionColor(enabled, highlight));
        const QRect place =
            rect().adjusted(0, iconSize().height() + kCaptionBelowIcon, attachedMenu ? -kMenuStrip : 0, 0);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text());
    }

    if (attachedMenu) {
        static const QPixmap arrow = QIcon(QStringLiteral(":/icon/ico_current_arrow_down_nor.png"))
                                         .pixmap(kArrowSize, QIcon::Normal, QIcon::Off);
        const QPoint place(width() - kArrowFromRight, (height() - kArrowSize.height()) / 2);
        painter.drawPixmap(QRect(place, kArrowSize), arrow);
    }
}

bool CToolButton::IsVerticalBtn()
{
    return false;
}

QPixmap CToolButton::StatePixmap(bool enabled) const
{
    // An icon without size is one whose file is missing: it would be looked for anew at each paint.
    if (iconSize().isEmpty()) {
        return {};
    }
    return enabled ? icon().pixmap(iconSize(), QIcon::Normal, QIcon::On)
                   : icon().pixmap(iconSize(), QIcon::Disabled, QIcon::Off);
}

void CToolButton::PaintFill(QPainter& painter, const QColor& color, qreal radius) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect(), radius, radius);
}

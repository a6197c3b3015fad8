#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <QPainter>
#include <QStyleOptionToolButton>

namespace {

constexpr int kHeight = 24;
constexpr int kSideMargins = 12;

constexpr qreal kRadius = 3.0;
// A checked row shows no fill at all, unlike the large button, not even while it is pressed.
constexpr QColor kCheckedFill(73, 135, 89, 0);
constexpr QColor kPressedFill(73, 135, 89, 102);
constexpr QColor kHoverFill(73, 135, 89, 51);

constexpr int kIconLeft = 4;
constexpr int kCaptionBesideIcon = 8;
constexpr QColor kCaption(51, 51, 51, 255);
constexpr QColor kCaptionDisabled(64, 64, 64, 255);

} // namespace

CToolButtonVertical::CToolButtonVertical(QWidget* parent)
    : CToolButton(parent)
{}

void CToolButtonVertical::SetGroupWidth(int width)
{
    m_nGroupWidth = width;
}

QSize CToolButtonVertical::sizeHint() const
{
    return {m_nGroupWidth + kSideMargins + iconSize().width(), kHeight};
}

void CToolButtonVertical::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool mouseOver = option.state.testFlag(QStyle::State_MouseOver);
    const bool pressed = enabled && m_bPressed && m_bHovered;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    if (isChecked()) {
        PaintFill(painter, kCheckedFill, kRadius);
    } else if (pressed) {
        PaintFill(painter, kPressedFill, kRadius);
    } else if (mouseOver && m_bHovered && enabled) {
        PaintFill(painter, kHoverFill, kRadius);
    }

    const QPixmap pixmap = StatePixmap(enabled);
    if (!pixmap.isNull()) {
        const int top = static_cast<int>(height() * 0.5 - iconSize().height() * 0.5);
        painter.drawPixmap(QRect(QPoint(kIconLeft, top), iconSize()), pixmap);
    }

    if (!text().isEmpty()) {
        painter.setFont(font());
        painter.setPen(enabled ? kCaption : kCaptionDisabled);
        painter.drawText(rect().adjusted(iconSize().width() + kCaptionBesideIcon, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, text());
    }
}

bool CToolButtonVertical::IsVerticalBtn()
{
    return true;
}

#include <CustomControls/buttons/CIconButton.h>

#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CIconButtonAccessible.h>

#include <QPainter>
#include <QTextOption>

namespace {

constexpr int kIconSize = 24;
constexpr int kTextStart = 30; // the icon and six pixels
// A little left of centre on purpose: the icon weighs less than the words, so half would look too far right.
constexpr double kLeftShare = 0.42;

const AccessibleFactory::Registration<CIconButton, CIconButtonAccessible> kAccessible;

} // namespace

CIconButton::CIconButton(QWidget* parent)
    : QPushButton(parent)
{
    KeyboardFocus::ShowOn(this);
}

void CIconButton::SetIcon(const QString& icon)
{
    m_strIcon = icon;
    m_pixIcon = SharpPixmap(icon);
}

void CIconButton::SetText(const QString& text)
{
    m_strText = text;
    TellNameChanged(this);
}

void CIconButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);

    QPainter painter(this);
    painter.save();
    if (m_strIcon.isEmpty()) {
        painter.drawText(QRectF(rect()), m_strText, QTextOption(Qt::AlignHCenter | Qt::AlignVCenter));
    } else {
        const int textWidth = fontMetrics().horizontalAdvance(m_strText);
        const int x = static_cast<int>((width() - kTextStart - textWidth) * kLeftShare);
        painter.drawPixmap(QRect(x, (height() - kIconSize) >> 1, kIconSize, kIconSize), m_pixIcon);
        painter.drawText(QRect(x + kTextStart, 0, textWidth, height()), Qt::AlignLeft | Qt::AlignVCenter, m_strText);
    }
    painter.restore();
}

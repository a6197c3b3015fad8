#include <CustomControls/buttons/CMultiLineLabel.h>

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QTextOption>

namespace {

// A text that fits at no size at all is drawn at the smallest size that a font can have.
constexpr int kSmallestPixelSize = 1;

} // namespace

CMultiLineLabel::CMultiLineLabel() = default;

void CMultiLineLabel::paintEvent(QPaintEvent* event)
{
    if (!wordWrap()) {
        QLabel::paintEvent(event);
        return;
    }
    QTextOption option(Qt::AlignHCenter | Qt::AlignVCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);

    QPainter painter(this);
    painter.setFont(FittingFont());
    painter.drawText(QRectF(rect()), text(), option);
}

const QFont& CMultiLineLabel::FittingFont()
{
    if (m_sizeFitted == size() && m_strFittedText == text() && m_fontFittedFrom == font()) {
        return m_fontFitted;
    }
    m_sizeFitted = size();
    m_strFittedText = text();
    m_fontFittedFrom = font();
    m_fontFitted = font();

    // A font that was given in points tells no pixel size of its own.
    int pixelSize = m_fontFitted.pixelSize() > 0 ? m_fontFitted.pixelSize() : QFontInfo(m_fontFitted).pixelSize();
    QRect bounds = QFontMetrics(m_fontFitted).boundingRect(rect(), Qt::TextWrapAnywhere, text());
    while ((bounds.width() > width() || bounds.height() > height()) && pixelSize > kSmallestPixelSize) {
        m_fontFitted.setPixelSize(--pixelSize);
        bounds = QFontMetrics(m_fontFitted).boundingRect(rect(), Qt::TextWrapAnywhere, text());
    }
    return m_fontFitted;
}

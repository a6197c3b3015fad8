#include <CustomControls/CProgressWidget/CProgressBar.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <QTextOption>

namespace {

// Share of the text's width over which one colour passes into the other.
constexpr double kBlend = 0.01;

QPen TextPen(qint64 fill, int left, int right, const QColor& empty, const QColor& filled)
{
    if (fill <= left) {
        return {empty};
    }
    if (fill >= right) {
        return {filled};
    }
    const double ratio = double(fill - left) / (right - left);
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setColorAt(0, filled);
    if (ratio >= kBlend) { // a text wider than a hundred pixels may have its edge nearer to the start than that
        gradient.setColorAt(ratio - kBlend, filled);
    }
    gradient.setColorAt(ratio, empty);
    gradient.setColorAt(1, empty);
    return {QBrush(gradient), 1};
}

} // namespace

CProgressBar::CProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
    setFont(FontCnMedium_16);
}

void CProgressBar::SetColor(const QColor& empty, const QColor& filled)
{
    m_colorEmpty = empty;
    m_colorFilled = filled;
}

void CProgressBar::SetTextVisible(bool visible)
{
    m_bTextVisible = visible;
    update();
}

void CProgressBar::paintEvent(QPaintEvent* event)
{
    QProgressBar::paintEvent(event);
    if (!m_bTextVisible || maximum() <= minimum() || value() <= 0) {
        return;
    }
    // In 64 bits, so that no range overflows. The minimum stays in the value: hosts count from 0.
    const qint64 fill = qint64(width()) * value() / (qint64(maximum()) - minimum());
    const QString percentage = text();
    const int textWidth = fontMetrics().horizontalAdvance(percentage);
    const int left = (width() - textWidth) / 2;

    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(TextPen(fill, left, left + textWidth, m_colorEmpty, m_colorFilled));
    painter.drawText(QRectF(QRect(left, 0, textWidth, height())), percentage,
                     QTextOption(Qt::AlignHCenter | Qt::AlignVCenter));
}

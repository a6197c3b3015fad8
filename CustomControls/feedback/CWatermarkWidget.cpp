#include <CustomControls/feedback/CWatermarkWidget.h>

#include <CustomControls/platform/ClickThrough.h>
#include <CustomControls/platform/Glass.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QBackingStore>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>

#include <cmath>

namespace {

constexpr QColor kInk(255, 75, 75, 72);
constexpr double kSlant = -30.0;
// Smaller changes keep the pixmap.
constexpr int kTolerance = 3;
// How much the widget may grow before the pixmap, which is twice as large, is drawn anew.
constexpr QMargins kWithinTolerance(0, 0, kTolerance / 2, kTolerance / 2);
constexpr double kColumnDistance = 1.5;

/** A label that paints on the screen. The toolkit has no painter for such a widget, so this one fills its window. */
class MarkLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QPaintEngine* paintEngine() const override { return nullptr; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPoint offset;
        QBackingStore* store = backingStore();
        if (redirected(&offset) || !store) { // a picture of the label, as from grab()
            QLabel::paintEvent(event);
            return;
        }
        store->resize(size());
        store->beginPaint(rect());
        {
            QPainter painter(store->paintDevice());
            painter.setCompositionMode(QPainter::CompositionMode_Source); // not over what was there before
            painter.fillRect(rect(), Qt::transparent);
            painter.drawPixmap(QPoint(0, 0), pixmap(Qt::ReturnByValue), rect());
        }
        store->endPaint();
        store->flush(rect());
    }
};

} // namespace

CWatermarkWidget::CWatermarkWidget(QWidget* parent)
    : QWidget(parent)
{}

CWatermarkWidget::~CWatermarkWidget()
{
    if (m_pLabel) {
        disconnect(m_pLabel, &QObject::destroyed, this, nullptr);
        m_pLabel->hide();
        m_pLabel->deleteLater();
    }
}

void CWatermarkWidget::ShowWatermark()
{
    if (!m_pLabel) {
        m_pLabel = new MarkLabel(this);
        m_pLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        connect(m_pLabel, &QObject::destroyed, this, [this] { m_pLabel = nullptr; });
        m_pLabel->setAttribute(Qt::WA_PaintOnScreen);
        m_pLabel->setAttribute(Qt::WA_NoSystemBackground);
        m_pLabel->setAttribute(Qt::WA_TranslucentBackground);
        m_pLabel->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                                 Qt::WindowDoesNotAcceptFocus);
        // A window manager that frames the mark hears of the flag only this way.
        SetClickThrough(m_pLabel, true);
    }
    AdjustWatermark(true);
}

void CWatermarkWidget::AdjustWatermark(bool resize)
{
    if (!m_pLabel) {
        return;
    }
    m_pLabel->move(mapToGlobal(QPoint(0, 0)));
    if (resize) {
        m_pLabel->resize(size());
        // Twice the size, of which the label shows the upper left quarter: the slanted rows reach it from all sides.
        const QPixmap mark = GeneratePixmap(width() * 2, height() * 2);
        if (m_pLabel->mask().isEmpty() || m_pLabel->pixmap(Qt::ReturnByValue).cacheKey() != mark.cacheKey()) {
            CutToContent(m_pLabel, mark.copy(rect() + kWithinTolerance));
        }
        m_pLabel->setPixmap(mark);
    }
    m_pLabel->show();
    m_pLabel->raise();
}

QPixmap CWatermarkWidget::GeneratePixmap(int width, int height)
{
    if (std::abs(width - m_nPixmapWidth) < kTolerance && std::abs(height - m_nPixmapHeight) < kTolerance) {
        return m_pixmapCache;
    }
    m_nPixmapWidth = width;
    m_nPixmapHeight = height;
    m_pixmapCache = QPixmap(width, height);
    if (m_pixmapCache.isNull()) {
        return m_pixmapCache;
    }
    m_pixmapCache.fill(Qt::transparent);

    const QString text = tr("Dornhall 内 测 版 本，禁 止 外 发 ！");
    const QFontMetricsF metrics(FontCnBold_28);
    const double textWidth = metrics.horizontalAdvance(text);
    // The sine and cosine of the number itself, in radians: they only set how far the rows and columns reach.
    const int extentY = int(std::abs(std::sin(kSlant) * width) + std::abs(std::cos(kSlant) * height));
    const int extentX = int(std::abs(std::sin(kSlant) * height) + std::abs(std::cos(kSlant) * width));
    const int stepX = int(textWidth * kColumnDistance);
    const int stepY = int(2.0 * height / textWidth * metrics.height());
    if (stepX < 1 || stepY < 1) {
        return m_pixmapCache;
    }
    const int rows = extentY / stepY + 2;
    const int columns = extentX / stepX + 2;
    const int left = -(extentX >> 1);
    const int top = -(extentY >> 1);

    QPainter painter(&m_pixmapCache);
    painter.setFont(FontCnBold_28);
    painter.setPen(kInk);
    painter.rotate(kSlant); // in degrees
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            painter.drawText(left + column * stepX, top + row * stepY, text);
        }
    }
    // A copy that is taken while a painter is at work would be a picture of its own, and not the cached one.
    painter.end();
    return m_pixmapCache;
}

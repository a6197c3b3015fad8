#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <QIcon>
#include <QPaintEvent>
#include <QPixmapCache>
#include <QResizeEvent>

namespace {

const QString kBackgroundImage = QStringLiteral(":/icon/ico_ttob_bg.png");

/** Pixels of the style sheet's border, left and right or top and bottom together. */
constexpr int kBorders = 2;

/** The image at its own size. */
QPixmap LoadBackground()
{
    const QIcon icon(kBackgroundImage);
    const QSize size = icon.availableSizes(QIcon::Normal, QIcon::Off).value(0);
    return icon.pixmap(size, QIcon::Normal, QIcon::Off);
}

/** What @p make gives, from the pixmap cache when it is there: a box opens far more often than the image changes. */
template <typename Make>
QPixmap Cached(const QString& variant, Make make)
{
    const QString key = kBackgroundImage + variant;
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = make();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

QPixmap OriginalBackground()
{
    return Cached(QString(), LoadBackground);
}

/** Always scaled from the image itself, never from a scaled one. */
QPixmap ScaledBackground(const QSize& size)
{
    return Cached(QStringLiteral("?%1x%2").arg(size.width()).arg(size.height()), [&size] {
        const QPixmap original = OriginalBackground();
        return original.isNull() ? original : original.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
}

} // namespace

CMsgBoxBackground::CMsgBoxBackground(QWidget* parent)
    : QWidget(parent)
    , m_pixmapBackground(OriginalBackground())
{
    setAttribute(Qt::WA_StyledBackground);
}

void CMsgBoxBackground::paintEvent(QPaintEvent* event)
{
    // The pixmap is kept ready and never drawn: the panel looks as its style sheet says, and nothing else.
    QWidget::paintEvent(event);
}

void CMsgBoxBackground::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const qreal ratio = devicePixelRatioF();
    const QSize size(int((width() - kBorders) * ratio), int((height() - kBorders) * ratio));
    m_pixmapBackground = ScaledBackground(size);
}

#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <QIcon>
#include <QPaintEvent>
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

} // namespace

CMsgBoxBackground::CMsgBoxBackground(QWidget* parent)
    : QWidget(parent)
    , m_pixmapBackground(LoadBackground())
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
    // Loaded again, so that scaling always starts from the image itself; decoding is shared through the pixmap cache.
    m_pixmapBackground = LoadBackground();
    if (m_pixmapBackground.isNull()) {
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const QSize size(int((width() - kBorders) * ratio), int((height() - kBorders) * ratio));
    m_pixmapBackground = m_pixmapBackground.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

#include <CustomControls/feedback/CFrostedToolTip.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/feedback/CFrostedToolTipAccessible.h>
#include <CustomControls/platform/Glass.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPropertyAnimation>
#include <QRandomGenerator>
#include <QResizeEvent>

namespace {

const QString kSheet = QStringLiteral("CFrostedToolTip { background: rgba(24, 24, 24, 0);}");
const QString kLabelSheet =
    QStringLiteral("color: rgba(238, 238, 238, 255);background: transparent;padding: 2px;border:none;");

constexpr int kMargin = 10;
constexpr double kRadius = 4;
constexpr QColor kFill(24, 24, 24, 220);
constexpr QColor kBorder(45, 45, 45, 255);

constexpr int kNoiseSize = 8;
constexpr int kNoiseGrey = 0x9b;
constexpr int kNoiseAlphas = 10;

constexpr int kFadeMs = 200;

QImage MakeNoise()
{
    QImage noise(kNoiseSize, kNoiseSize, QImage::Format_ARGB32);
    QRandomGenerator* random = QRandomGenerator::global();
    for (int y = 0; y < kNoiseSize; ++y) {
        for (int x = 0; x < kNoiseSize; ++x) {
            noise.setPixel(x, y, qRgba(kNoiseGrey, kNoiseGrey, kNoiseGrey, random->bounded(kNoiseAlphas)));
        }
    }
    return noise;
}

// Ends any fade of the same window that still runs: two animations never share a property.
QPropertyAnimation* Fade(QWidget* window, double from, double to)
{
    auto* animation = new QPropertyAnimation(window, "windowOpacity", window);
    animation->setDuration(kFadeMs);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    return animation;
}

const AccessibleFactory::Registration<CFrostedToolTip, CFrostedToolTipAccessible> kAccessible;

} // namespace

CFrostedToolTip::CFrostedToolTip(const QString& text, QWidget* parent)
    : QWidget(parent)
{
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(kSheet);

    if (isCompositionEnabled()) {
        extendFrameIntoClientArea(-1, -1, -1, -1);
        setAttribute(Qt::WA_NoSystemBackground, false);
    } else {
        extendFrameIntoClientArea(0, 0, 0, 0);
    }
    enableBlurEffect();

    auto* label = new QLabel(text, this);
    label->setStyleSheet(kLabelSheet);
    label->setAlignment(Qt::AlignLeft);
    label->setFont(FontCn_13);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(label);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    adjustSize();

    m_imgNoise = MakeNoise();
}

void CFrostedToolTip::Hide()
{
    connect(Fade(this, 1.0, 0.0), &QAbstractAnimation::finished, this, &QObject::deleteLater);
}

void CFrostedToolTip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    painter.setPen(Qt::NoPen);
    painter.setBrush(kFill);
    painter.drawRoundedRect(rect(), kRadius, kRadius);

    painter.setBrush(QBrush(m_imgNoise));
    painter.drawRoundedRect(rect(), kRadius, kRadius);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kBorder, 1));
    painter.drawRoundedRect(rect().adjusted(0, 0, -1, -1), kRadius, kRadius);
}

void CFrostedToolTip::resizeEvent(QResizeEvent* event)
{
    const QSize size = event->size() - QSize(1, 1);
    const QList<QLabel*> labels = findChildren<QLabel*>();
    for (QLabel* label : labels) {
        label->resize(size);
    }
    QWidget::resizeEvent(event);
}

void CFrostedToolTip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Fade(this, 0.0, 1.0);
}

bool CFrostedToolTip::isCompositionEnabled()
{
    return IsCompositionEnabled();
}

void CFrostedToolTip::extendFrameIntoClientArea(int left, int right, int top, int bottom)
{
    ExtendGlass(this, QMargins(left, top, right, bottom));
}

void CFrostedToolTip::enableBlurEffect()
{
    BlurBehind(this);
}

#include <CustomControls/buttons/CSelectButton.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CSelectButtonAccessible.h>

#include <QCursor>
#include <QPainter>

namespace {

const QString kMark = QStringLiteral(":/icon/toolbtn/icon_scanning_checked.png");

constexpr QColor kFrameChecked(23, 160, 97);
constexpr QColor kFrameHover(73, 135, 89);
constexpr QColor kFrame(196, 196, 196);
constexpr QColor kCaption(51, 51, 51);
constexpr double kFrameWidthChecked = 2.0;
constexpr double kFrameWidth = 1.0;
constexpr double kRadius = 5.0;

constexpr int kCaptionRoom = 18; // the caption and what lies between it and the picture
constexpr int kCaptionHeight = 14;
constexpr int kCaptionMargin = 2;

// In logical pixels: on a dense screen the file that is read has more of its own.
QSize SizeOfPicture(const QString& path)
{
    return QPixmap(path).deviceIndependentSize().toSize();
}

const AccessibleFactory::Registration<CSelectButton, CSelectButtonAccessible> kAccessible;

} // namespace

CSelectButton::CSelectButton(QWidget* parent)
    : QPushButton(parent)
    , m_pixMark(SharpPixmap(kMark))
{
    setFont(FontCnMedium_14);
    setCheckable(true);
    setChecked(false);
    KeyboardFocus::ShowOn(this);
}

void CSelectButton::setIcon(const QString& path)
{
    m_strIcon = path;
    m_icon = QIcon(path);
    m_sizeIcon = SizeOfPicture(path);
    m_pixIcon = SharpPixmap(m_icon, m_sizeIcon);
}

void CSelectButton::setText(const QString& text)
{
    m_strText = text;
    TellNameChanged(this);
}

void CSelectButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // Picture and caption stand centred together.
    const int x = (width() - m_sizeIcon.width()) / 2;
    const int y = (height() - kCaptionRoom - m_sizeIcon.height()) / 2;

    const QRect frame = rect().adjusted(1, 1, -1, -1);
    if (isChecked()) {
        painter.setPen(QPen(kFrameChecked, kFrameWidthChecked));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(frame, kRadius, kRadius);
        painter.drawPixmap(QPoint(width() - m_pixMark.deviceIndependentSize().toSize().width(), 0), m_pixMark);
    } else {
        const bool hover = rect().contains(mapFromGlobal(QCursor::pos()));
        painter.setPen(QPen(hover ? kFrameHover : kFrame, kFrameWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, kRadius, kRadius);
    }

    painter.drawPixmap(QRect(QPoint(x, y), m_sizeIcon), m_pixIcon);

    painter.setPen(kCaption);
    painter.drawText(QRect(kCaptionMargin, height() - kCaptionHeight - y, width() - 2 * kCaptionMargin, kCaptionHeight),
                     Qt::AlignCenter, m_strText);
}

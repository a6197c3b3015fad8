#include <CustomControls/buttons/CUnitButton.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CUnitButtonAccessible.h>

#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr QSize kSize(48, 26);
constexpr double kRadius = 4.0;
constexpr double kFrameWidth = 1.0;

struct Look
{
    QColor frame;
    QColor ground;
    QColor text;
    QColor unit;
};

constexpr QColor kGreen(24, 133, 83);
constexpr QColor kGround(250, 250, 250);
constexpr QColor kInk(34, 34, 34);
constexpr QColor kUnit(173, 173, 173);
constexpr QColor kGrey(153, 153, 153);
constexpr QColor kWhite(255, 255, 255);

constexpr Look kDisabled{QColor(234, 234, 234), kGround, kGrey, kUnit};
constexpr Look kDown{kGreen, kGreen, kWhite, kWhite};
constexpr Look kHover{kGreen, kGround, kInk, kUnit};
constexpr Look kNormal{kGrey, kGround, kInk, kUnit};

const AccessibleFactory::Registration<CUnitButton, CUnitButtonAccessible> kAccessible;

} // namespace

CUnitButton::CUnitButton(QWidget* parent)
    : QPushButton(parent)
{
    setFixedSize(kSize);
    KeyboardFocus::ShowOn(this);
}

CUnitButton::CUnitButton(const QString& text, const QString& unit, QWidget*)
{
    setFixedSize(kSize);
    setText(text);
    setUnit(unit);
    KeyboardFocus::ShowOn(this);
}

void CUnitButton::setText(const QString& text)
{
    m_strText = text;
    m_iTextWidth = QFontMetrics(FontCnMedium_14).horizontalAdvance(text);
    update();
    TellNameChanged(this);
}

void CUnitButton::setUnit(const QString& unit)
{
    m_strUnit = unit;
    m_iUnitWidth = QFontMetrics(FontCnMedium_10).horizontalAdvance(unit);
    update();
    TellNameChanged(this);
}

void CUnitButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const Look& look = !isEnabled() ? kDisabled : isDown() ? kDown : underMouse() ? kHover : kNormal;
    painter.setPen(QPen(look.frame, kFrameWidth));
    painter.setBrush(look.ground);
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), kRadius, kRadius);

    const int x = (width() - m_iTextWidth - m_iUnitWidth) / 2;
    painter.setFont(FontCnMedium_14);
    painter.setPen(look.text);
    painter.drawText(QRect(x, 0, m_iTextWidth, height()), Qt::AlignLeft | Qt::AlignVCenter, m_strText);
    painter.setFont(FontCnMedium_10);
    painter.setPen(look.unit);
    painter.drawText(QRect(x + m_iTextWidth, 0, m_iUnitWidth, height()), Qt::AlignLeft | Qt::AlignVCenter, m_strUnit);
}

#include <CustomControls/toolbar/CTabBar.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/KeyboardFocus.h>

#include <QFontMetrics>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace {

constexpr int kHeight = 30;
constexpr int kBesideCaption = 52;
// The selected tab's upper border takes 4 pixels; the caption is centred in what is left.
constexpr int kCaptionDrop = 4;

constexpr QColor kCurrentCaption(24, 133, 83, 255);
constexpr QColor kOtherCaption(238, 238, 238, 255);
constexpr QColor kCurrentLine(234, 235, 234, 255);
constexpr QColor kOtherLine(39, 40, 46, 255);

} // namespace

CTabBar::CTabBar(QWidget* parent)
    : QTabBar(parent)
{
    KeyboardFocus::ShowOn(this);
}

QSize CTabBar::sizeHint() const
{
    return {QTabBar::sizeHint().width(), kHeight};
}

void CTabBar::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        // A hidden tab has no rectangle to be painted into.
        if (!isTabVisible(i) || option.rect.left() > width()) {
            continue;
        }
        const bool current = i == currentIndex();
        painter.setFont(FontCnBold_14);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);

        painter.setPen(current ? kCurrentCaption : kOtherCaption);
        painter.drawItemText(option.rect.adjusted(0, 0, 0, kCaptionDrop), Qt::AlignHCenter | Qt::AlignVCenter,
                             palette(), true, option.text, QPalette::NoRole);

        painter.setBrush(Qt::NoBrush);
        painter.setPen(current ? kCurrentLine : kOtherLine);
        painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
}

QSize CTabBar::tabSizeHint(int index) const
{
    QStyleOptionTab option;
    initStyleOption(&option, index);
    return {QFontMetrics(FontCnBold_14).boundingRect(option.text).width() + kBesideCaption, kHeight};
}

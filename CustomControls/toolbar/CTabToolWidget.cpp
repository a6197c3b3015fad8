#include <CustomControls/toolbar/CTabToolWidget.h>

#include <QIcon>
#include <QPainter>
#include <QTabBar>

namespace {

constexpr QSize kPictureSize(434, 78);
constexpr int kBelowTabs = 4;

} // namespace

CTabToolWidget::CTabToolWidget(QWidget* parent)
    : CTabWidget(parent)
{}

void CTabToolWidget::paintEvent(QPaintEvent* event)
{
    CTabWidget::paintEvent(event);
    static const QPixmap picture =
        QIcon(QStringLiteral(":/icon/ico_ttob_bg.png")).pixmap(kPictureSize, QIcon::Normal, QIcon::Off);
    QPainter painter(this);
    painter.drawPixmap(width() - picture.width(), tabBar()->sizeHint().height() + kBelowTabs, picture);
}

#include "ToolpathView.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {
constexpr int Turns = 9;
constexpr int PointsPerTurn = 60;
constexpr qreal Corner = 4.0; // the exponent that makes a circle nearly a square
const QColor Ground(0xfb, 0xfb, 0xfb);
const QColor Block(0xea, 0xfa, 0xf2);
const QColor BlockEdge(0xb5, 0xe5, 0xcc);
const QColor Ahead(0xc9, 0xce, 0xd2);
const QColor Cut(0x18, 0x85, 0x53);
} // namespace

ToolpathView::ToolpathView(QWidget* parent)
    : QWidget(parent)
{
    for (int point = 0; point <= Turns * PointsPerTurn; ++point) {
        const qreal angle = 2 * M_PI * point / PointsPerTurn;
        const qreal reach = qreal(point) / (Turns * PointsPerTurn);
        const qreal x = qCos(angle);
        const qreal y = qSin(angle);
        const qreal round = qPow(qPow(qAbs(x), Corner) + qPow(qAbs(y), Corner), -1 / Corner);
        m_path.append(QPointF(x, y) * reach * round);
    }
}

void ToolpathView::SetProgress(int percent)
{
    m_iPercent = std::clamp(percent, 0, 100);
    update();
}

void ToolpathView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    const QSizeF block = QSizeF(16, 9).scaled(QSizeF(size()) * 0.86, Qt::KeepAspectRatio);
    painter.setPen(QPen(BlockEdge, 1.5));
    painter.setBrush(Block);
    painter.drawRoundedRect(QRectF(QPointF(-block.width() / 2, -block.height() / 2), block), 8, 8);

    QPolygonF path = m_path;
    for (QPointF& point : path) {
        point = QPointF(point.x() * block.width(), point.y() * block.height()) * 0.43;
    }
    painter.setBrush(Qt::NoBrush);
    const qsizetype done = (path.size() - 1) * m_iPercent / 100;
    painter.setPen(QPen(Ahead, 1.5));
    painter.drawPolyline(path.constData() + done, int(path.size() - done));
    painter.setPen(QPen(Cut, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(path.constData(), int(done + 1));
    painter.setBrush(Qt::white);
    painter.drawEllipse(path.at(done), 6, 6);
}

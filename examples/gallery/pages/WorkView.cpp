#include "WorkView.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {
const QColor Ground(0x2a, 0x2e, 0x31);
const QColor GridLine(0x3b, 0x41, 0x45);
const QColor Edge(0x18, 0x85, 0x53);
const QColor TopFace(0xea, 0xfa, 0xf2);
const QColor LeftFace(0xb5, 0xe5, 0xcc);
const QColor RightFace(0x7f, 0xcc, 0xa5);
const QColor Path(0xf0, 0xa0, 0x20);
const QColor AxisX(0xe5, 0x48, 0x4d);
const QColor AxisY(0x2a, 0xb4, 0x75);
const QColor AxisZ(0x5b, 0x8d, 0xff);

// Millimetres; the origin lies in the middle of the table.
constexpr int TableEdge = 100;
constexpr int GridStep = 20;
constexpr double StockX = 60;
constexpr double StockY = 40;
constexpr double StockZ = 30;
constexpr double AxisLength = 36;
constexpr double PathStep = 7;
constexpr double SeenHeight = 250;
constexpr double SeenWidth = 380;

constexpr double FocusWidth = 2;

// Along an isometric view the two axes of the table fall off by 30 degrees.
constexpr double Cos30 = 0.8660254;
constexpr double Sin30 = 0.5;

/** A drawing, for a screen reader; what it shows is in its name. */
QAccessibleInterface* CreateAccessible(const QString& className, QObject* object)
{
    auto* view = className == QLatin1String("WorkView") ? qobject_cast<WorkView*>(object) : nullptr;
    return view ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}
} // namespace

WorkView::WorkView(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    QAccessible::installFactory(CreateAccessible);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void WorkView::SetSide(Side side)
{
    m_eSide = side;
    update();
}

void WorkView::SetPartVisible(Part part, bool visible)
{
    m_iParts = visible ? m_iParts | part : m_iParts & ~part;
    update();
}

QPointF WorkView::Project(double x, double y, double z) const
{
    switch (m_eSide) {
    case SideTop:
        return {x, y};
    case SideFront:
        return {x, -z};
    case SideLeft:
        return {y, -z};
    case SideIsometric:
        break;
    }
    return {(x - y) * Cos30, (x + y) * Sin30 - z};
}

void WorkView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().center());
    const double zoom = std::min(height() / SeenHeight, width() / SeenWidth);
    painter.scale(zoom, zoom);
    const auto pen = [](const QColor& color, double width) {
        return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    };

    if (m_iParts & PartGrid) {
        painter.setPen(pen(GridLine, 0.8));
        for (int at = -TableEdge; at <= TableEdge; at += GridStep) {
            painter.drawLine(Project(at, -TableEdge, 0), Project(at, TableEdge, 0));
            painter.drawLine(Project(-TableEdge, at, 0), Project(TableEdge, at, 0));
        }
    }

    const auto face = [&](const QColor& color, const QPolygonF& corners) {
        painter.setPen(pen(Edge, 1));
        painter.setBrush(color);
        painter.drawPolygon(corners);
    };
    face(LeftFace, {{Project(-StockX, StockY, 0), Project(StockX, StockY, 0), Project(StockX, StockY, StockZ),
                     Project(-StockX, StockY, StockZ)}});
    face(RightFace, {{Project(StockX, -StockY, 0), Project(StockX, StockY, 0), Project(StockX, StockY, StockZ),
                      Project(StockX, -StockY, StockZ)}});
    face(TopFace, {{Project(-StockX, -StockY, StockZ), Project(StockX, -StockY, StockZ),
                    Project(StockX, StockY, StockZ), Project(-StockX, StockY, StockZ)}});

    if (m_iParts & PartPath) {
        // A pocket, cleared from its edge inwards.
        QPolygonF path;
        for (double inset = PathStep; inset < StockY; inset += PathStep) {
            const double x = StockX - inset;
            const double y = StockY - inset;
            path << Project(-x, -y, StockZ) << Project(x, -y, StockZ) << Project(x, y, StockZ) << Project(-x, y, StockZ)
                 << Project(-x, -y + PathStep, StockZ);
        }
        painter.setPen(pen(Path, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(path);
    }

    if (m_iParts & PartAxes) {
        const auto axis = [&](const QColor& color, double x, double y, double z) {
            painter.setPen(pen(color, 1.6));
            painter.drawLine(Project(-TableEdge, TableEdge, 0), Project(-TableEdge + x, TableEdge + y, z));
        };
        axis(AxisX, AxisLength, 0, 0);
        axis(AxisY, 0, -AxisLength, 0);
        axis(AxisZ, 0, 0, AxisLength);
    }

    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.resetTransform();
        painter.setPen(QPen(AxisY, FocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

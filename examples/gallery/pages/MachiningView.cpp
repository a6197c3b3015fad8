#include "MachiningView.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QtMath>

#include <algorithm>

namespace {
constexpr int FrameMs = 33;
constexpr int Points = 30; // on each side of the relief
constexpr int CutPerFrame = 3;
constexpr int PathRows = 3;
constexpr double TurnPerFrame = 0.3;
constexpr double DegreesPerPixel = 0.5;
constexpr double LowestTilt = 10.0;
constexpr double HighestTilt = 80.0;
constexpr double SmallestZoom = 0.6;
constexpr double LargestZoom = 1.6;

constexpr double StockHeight = 0.30;
constexpr double TableHeight = -0.10;
constexpr double ShellReach = 1.25;
constexpr double ShellHeight = 1.0;
constexpr double AxisLength = 0.55;

const QColor Sky(0x34, 0x40, 0x48);
const QColor Ground(0x14, 0x1a, 0x1f);
const QColor Stock(0xb9, 0x9c, 0x74);
const QColor Part(0x58, 0xc7, 0x96);
const QColor Path(0xff, 0xd3, 0x4d);
const QColor Edge(255, 255, 255, 70);

double Place(int point)
{
    return -0.9 + 1.8 * point / (Points - 1);
}

double Relief(double x, double y)
{
    const double r = std::hypot(x, y);
    return 0.12 + 0.11 * std::cos(10.0 * r) * std::exp(-1.5 * r * r);
}

QColor Lit(const QColor& color, double light)
{
    return QColor::fromRgbF(float(color.redF() * light), float(color.greenF() * light), float(color.blueF() * light));
}
} // namespace

MachiningView::MachiningView(QWidget* parent)
    : QWidget(parent)
    , m_iCut(Points * Points / 2)
{
    setObjectName(QStringLiteral("machiningView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::OpenHandCursor);
    setMinimumHeight(220);
}

void MachiningView::SetShellShown(bool shown)
{
    m_bShell = shown;
    update();
}

void MachiningView::SetAxesShown(bool shown)
{
    m_bAxes = shown;
    update();
}

void MachiningView::SetCollisionCheck(bool on)
{
    m_bCollisionCheck = on;
    update();
}

QPointF MachiningView::Project(double x, double y, double z) const
{
    const double across = x * m_dCosTurn - y * m_dSinTurn;
    return {width() / 2.0 + across * m_dScale,
            height() * 0.56 + (Depth(x, y) * m_dSinTilt - z * m_dCosTilt) * m_dScale};
}

double MachiningView::Depth(double x, double y) const
{
    return x * m_dSinTurn + y * m_dCosTurn;
}

bool MachiningView::IsCut(int row, int column) const
{
    // The mill goes to and fro.
    const int inRow = row % 2 == 0 ? column : Points - 1 - column;
    return row * Points + inRow < m_iCut;
}

double MachiningView::Height(int row, int column) const
{
    return IsCut(row, column) ? Relief(Place(column), Place(row)) : StockHeight;
}

void MachiningView::PrepareView()
{
    const double turn = qDegreesToRadians(m_dTurn);
    const double tilt = qDegreesToRadians(m_dTilt);
    m_dSinTurn = std::sin(turn);
    m_dCosTurn = std::cos(turn);
    m_dSinTilt = std::sin(tilt);
    m_dCosTilt = std::cos(tilt);
    m_dScale = std::min(width() / 3.2, height() / 2.4) * m_dZoom;
}

void MachiningView::CollectFaces()
{
    m_faces.clear();
    for (int row = 0; row + 1 < Points; ++row) {
        for (int column = 0; column + 1 < Points; ++column) {
            const double x[2] = {Place(column), Place(column + 1)};
            const double y[2] = {Place(row), Place(row + 1)};
            const double z[4] = {Height(row, column), Height(row, column + 1), Height(row + 1, column + 1),
                                 Height(row + 1, column)};
            // Light from the left and above: the slopes towards it are bright.
            const double slope = (z[1] - z[0]) - 0.6 * (z[3] - z[0]);
            const double light = qBound(0.35, 0.82 + 3.0 * slope, 1.0);
            const bool cut = IsCut(row, column) && IsCut(row + 1, column + 1);
            m_faces.push_back({{Project(x[0], y[0], z[0]), Project(x[1], y[0], z[1]), Project(x[1], y[1], z[2]),
                                Project(x[0], y[1], z[3])},
                               Depth((x[0] + x[1]) / 2, (y[0] + y[1]) / 2),
                               Lit(cut ? Part : Stock, light)});
        }
    }
    // The sides of the stock, from the table up.
    for (int point = 0; point + 1 < Points; ++point) {
        const int last = Points - 1;
        const std::pair<int, int> sides[4][2] = {{{0, point}, {0, point + 1}},
                                                 {{last, point}, {last, point + 1}},
                                                 {{point, 0}, {point + 1, 0}},
                                                 {{point, last}, {point + 1, last}}};
        for (const auto& side : sides) {
            const auto [row, column] = side[0];
            const auto [nextRow, nextColumn] = side[1];
            const double x = Place(column);
            const double y = Place(row);
            const double nextX = Place(nextColumn);
            const double nextY = Place(nextRow);
            m_faces.push_back({{Project(x, y, TableHeight), Project(nextX, nextY, TableHeight),
                                Project(nextX, nextY, Height(nextRow, nextColumn)), Project(x, y, Height(row, column))},
                               Depth((x + nextX) / 2, (y + nextY) / 2),
                               Lit(Stock, row == nextRow ? 0.62 : 0.5)});
        }
    }
    std::sort(m_faces.begin(), m_faces.end(), [](const Face& a, const Face& b) { return a.dDepth < b.dDepth; });
}

void MachiningView::paintEvent(QPaintEvent* /*event*/)
{
    PrepareView();
    CollectFaces();

    QPainter painter(this);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, Sky);
    sky.setColorAt(1, Ground);
    painter.fillRect(rect(), sky);

    painter.setRenderHint(QPainter::Antialiasing);
    PaintBox(painter, 1.1, TableHeight - 0.08, TableHeight);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const Face& face : m_faces) {
        painter.setPen(face.color); // closes the seams between the faces
        painter.setBrush(face.color);
        painter.drawConvexPolygon(face.corners, 4);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPath(painter);
    PaintTool(painter);
    if (m_bShell) {
        PaintBox(painter, ShellReach, TableHeight - 0.08, ShellHeight);
    }
    if (m_bAxes) {
        PaintAxes(painter);
    }
    painter.setFont(FontCn_12);
    painter.setPen(QColor(255, 255, 255, 130));
    painter.drawText(rect().adjusted(16, 0, -16, -12), Qt::AlignLeft | Qt::AlignBottom,
                     tr("拖动旋转 · 滚轮缩放 · 双击编辑"));
}

void MachiningView::PaintBox(QPainter& painter, double reach, double bottom, double top) const
{
    painter.setPen(QPen(Edge, 1.2));
    const double corners[4][2] = {{-reach, -reach}, {reach, -reach}, {reach, reach}, {-reach, reach}};
    for (int corner = 0; corner < 4; ++corner) {
        const double* from = corners[corner];
        const double* to = corners[(corner + 1) % 4];
        painter.drawLine(Project(from[0], from[1], bottom), Project(to[0], to[1], bottom));
        painter.drawLine(Project(from[0], from[1], top), Project(to[0], to[1], top));
        painter.drawLine(Project(from[0], from[1], bottom), Project(from[0], from[1], top));
    }
}

void MachiningView::PaintAxes(QPainter& painter) const
{
    struct Axis
    {
        double x, y, z;
        QColor color;
        const char* name;
    };
    const Axis axes[] = {{AxisLength, 0, 0, QColor(0xff, 0x5c, 0x5c), "X"},
                         {0, -AxisLength, 0, QColor(0x5c, 0xd6, 0x6b), "Y"},
                         {0, 0, AxisLength, QColor(0x5c, 0x9d, 0xff), "Z"}};
    constexpr double X = -0.9;
    constexpr double Y = 0.9;
    painter.setFont(FontCnMedium_13);
    for (const Axis& axis : axes) {
        const QPointF end = Project(X + axis.x, Y + axis.y, StockHeight + axis.z);
        painter.setPen(QPen(axis.color, 2.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(Project(X, Y, StockHeight), end);
        painter.drawText(end + QPointF(4, -4), QLatin1String(axis.name));
    }
}

void MachiningView::PaintPath(QPainter& painter) const
{
    QPolygonF path;
    for (int index = std::max(0, m_iCut - PathRows * Points); index < m_iCut; ++index) {
        const int row = index / Points;
        const int inRow = index % Points;
        const int column = row % 2 == 0 ? inRow : Points - 1 - inRow;
        path.append(Project(Place(column), Place(row), Relief(Place(column), Place(row)) + 0.01));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Path, 1.6));
    painter.drawPolyline(path);
}

void MachiningView::PaintTool(QPainter& painter) const
{
    const int index = std::max(0, m_iCut - 1);
    const int row = index / Points;
    const int column = row % 2 == 0 ? index % Points : Points - 1 - index % Points;
    const QPointF tip = Project(Place(column), Place(row), Relief(Place(column), Place(row)));
    const double radius = 0.05 * m_dScale;
    const QRectF flute(tip.x() - radius, tip.y() - 0.45 * m_dScale, 2 * radius, 0.45 * m_dScale);
    const QRectF shank(tip.x() - 2 * radius, flute.top() - 0.5 * m_dScale, 4 * radius, 0.5 * m_dScale);
    for (const QRectF& body : {flute, shank}) {
        QLinearGradient steel(body.left(), 0, body.right(), 0);
        steel.setColorAt(0, QColor(0x7c, 0x86, 0x8e));
        steel.setColorAt(0.35, QColor(0xf2, 0xf5, 0xf7));
        steel.setColorAt(1, QColor(0x5a, 0x63, 0x6b));
        painter.setPen(Qt::NoPen);
        painter.setBrush(steel);
        painter.drawRoundedRect(body, radius * 0.6, radius * 0.6);
    }
    if (m_bCollisionCheck) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Part, 1.5, Qt::DashLine));
        painter.drawEllipse(tip, 3.2 * radius, 3.2 * radius * m_dSinTilt);
    }
}

void MachiningView::mousePressEvent(QMouseEvent* event)
{
    m_ptLast = event->pos();
    m_bDragged = true;
    setCursor(Qt::ClosedHandCursor);
}

void MachiningView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_bDragged = false;
    setCursor(Qt::OpenHandCursor);
}

void MachiningView::mouseDoubleClickEvent(QMouseEvent* event)
{
    PrepareView();
    QPolygonF model;
    for (const auto& [x, y] :
         {std::pair{-0.9, -0.9}, std::pair{0.9, -0.9}, std::pair{0.9, 0.9}, std::pair{-0.9, 0.9}}) {
        model.append(Project(x, y, StockHeight));
    }
    Q_EMIT SignalDoubleClicked(model.containsPoint(event->position(), Qt::OddEvenFill));
}

void MachiningView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_bDragged) {
        return;
    }
    const QPoint way = event->pos() - m_ptLast;
    m_ptLast = event->pos();
    m_dTurn = std::fmod(m_dTurn - way.x() * DegreesPerPixel + 720.0, 360.0);
    m_dTilt = qBound(LowestTilt, m_dTilt + way.y() * DegreesPerPixel, HighestTilt);
    update();
    Q_EMIT SignalTurned(int(m_dTurn), int(m_dTilt));
}

void MachiningView::wheelEvent(QWheelEvent* event)
{
    m_dZoom = qBound(SmallestZoom, m_dZoom * (1.0 + event->angleDelta().y() / 1200.0), LargestZoom);
    update();
    event->accept();
}

void MachiningView::showEvent(QShowEvent* /*event*/)
{
    m_timer.start(FrameMs, this);
}

void MachiningView::hideEvent(QHideEvent* /*event*/)
{
    m_timer.stop();
}

void MachiningView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_iCut = (m_iCut + CutPerFrame) % (Points * Points);
    if (!m_bDragged) {
        m_dTurn = std::fmod(m_dTurn + TurnPerFrame, 360.0);
    }
    update();
}

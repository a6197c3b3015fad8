#pragma once

#include <QBasicTimer>
#include <QPointF>
#include <QWidget>

#include <vector>

/**
 * The 3-D work area of a host, as far as a painter can draw one: a relief that a mill cuts out of its stock, turning
 * slowly. Drag turns it, the wheel zooms, a double click tells whether it was on the model. It moves while it is shown
 * and costs nothing while it is not.
 */
class MachiningView : public QWidget
{
    Q_OBJECT

public:
    explicit MachiningView(QWidget* parent = nullptr);

    void SetShellShown(bool shown);
    void SetAxesShown(bool shown);
    void SetCollisionCheck(bool on);

Q_SIGNALS:
    /** The user has turned the view; both in degrees, 0 to 359 about the upright and 10 to 80 above the table. */
    void SignalTurned(int turn, int tilt);
    void SignalDoubleClicked(bool onModel);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    struct Face
    {
        QPointF corners[4];
        double dDepth;
        QColor color;
    };

    /** A place in the work area, the table being the square from -1 to 1, seen on the widget. */
    QPointF Project(double x, double y, double z) const;
    double Depth(double x, double y) const;
    bool IsCut(int row, int column) const;
    double Height(int row, int column) const;
    void PrepareView();
    void CollectFaces();
    void PaintBox(QPainter& painter, double reach, double bottom, double top) const;
    void PaintAxes(QPainter& painter) const;
    void PaintPath(QPainter& painter) const;
    void PaintTool(QPainter& painter) const;

    QBasicTimer m_timer;
    QPoint m_ptLast;
    bool m_bDragged = false;
    bool m_bShell = true;
    bool m_bAxes = true;
    bool m_bCollisionCheck = true;
    double m_dTurn = 35.0;
    double m_dTilt = 38.0;
    double m_dZoom = 1.0;
    int m_iCut = 0; ///< how many points of the relief are cut
    // What a frame needs of the angles.
    double m_dSinTurn = 0.0;
    double m_dCosTurn = 1.0;
    double m_dSinTilt = 0.0;
    double m_dCosTilt = 1.0;
    double m_dScale = 1.0;
    std::vector<Face> m_faces;
};

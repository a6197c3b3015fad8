#pragma once

#include <QWidget>

/**
 * A workpiece on the machine's table, as a CAM program shows it: grid, axes, stock and toolpath, seen from one of four
 * sides.
 */
class WorkView : public QWidget
{
    Q_OBJECT

public:
    enum Side
    {
        SideIsometric,
        SideTop,
        SideFront,
        SideLeft
    };
    enum Part
    {
        PartGrid = 1,
        PartAxes = 2,
        PartPath = 4
    };

    explicit WorkView(QWidget* parent = nullptr);

    void SetSide(Side side);
    void SetPartVisible(Part part, bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointF Project(double x, double y, double z) const;

    Side m_eSide = SideIsometric;
    int m_iParts = PartGrid | PartAxes | PartPath;
};

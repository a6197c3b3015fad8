#pragma once

#include <QPolygonF>
#include <QWidget>

/** A pocket in a block seen from above, the path of the cutter in it, and how far the cutter has come. */
class ToolpathView : public QWidget
{
    Q_OBJECT

public:
    explicit ToolpathView(QWidget* parent = nullptr);

    /** @param percent 0 to 100; what lies outside counts as the nearer end */
    void SetProgress(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPolygonF m_path; ///< in units of half the pocket's width, from the middle outwards
    int m_iPercent = 0;
};

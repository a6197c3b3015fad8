#pragma once

#include <tests/support/TestEnvironment.h>

#include <QEvent>
#include <QTest>
#include <QWidget>

#include <functional>

/**
 * Tells whether a widget asks for a repaint, without waiting for one that never comes: a neighbour in the same window
 * asks for one afterwards, and a window paints all that is due at once. Takes the widget into its window for its time.
 */
class RepaintProbe : public QObject
{
public:
    explicit RepaintProbe(QWidget* widget)
        : m_pWidget(widget)
        , m_pNeighbour(new QWidget(&m_window))
    {
        widget->setParent(&m_window);
        widget->move(0, 0);
        m_pNeighbour->setGeometry(widget->width() + 20, 0, 10, 10);
        m_window.resize(widget->width() + 60, widget->height() + 20);
        widget->installEventFilter(this);
        m_pNeighbour->installEventFilter(this);
        TestEnvironment::MoveCursorAway();
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window)) {
            qFatal("the window does not show");
        }
        IsRepaintedBy([] {}); // what showing it has left to paint
    }
    ~RepaintProbe() override
    {
        m_pWidget->removeEventFilter(this);
        m_pWidget->setParent(nullptr);
    }
    Q_DISABLE_COPY_MOVE(RepaintProbe)

    bool IsRepaintedBy(const std::function<void()>& deed)
    {
        m_bPainted = false;
        deed();
        m_bNeighbourPainted = false;
        m_pNeighbour->update();
        if (!QTest::qWaitFor([this] { return m_bNeighbourPainted; })) {
            qFatal("the window does not paint");
        }
        return m_bPainted;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            (watched == m_pNeighbour ? m_bNeighbourPainted : m_bPainted) = true;
        }
        return false;
    }

private:
    QWidget m_window;
    QWidget* m_pWidget;
    QWidget* m_pNeighbour;
    bool m_bPainted = false;
    bool m_bNeighbourPainted = false;
};

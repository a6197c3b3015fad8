#include <CustomControls/frameless/PureQtFramelessWindow.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

PureQtFramelessWindow::PureQtFramelessWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_TranslucentBackground, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    setAttribute(Qt::WA_MouseTracking, true);
    installEventFilter(this);
}

PureQtFramelessWindow::~PureQtFramelessWindow()
{
    restoreCursor();
    // The bars that are children die after this destructor: none may call back into what is gone by then.
    for (QWidget* bar : std::as_const(m_listTitleBars)) {
        bar->disconnect(this);
    }
    if (m_pTitleBar) {
        m_pTitleBar->disconnect(this);
    }
}

void PureQtFramelessWindow::setTitleBar(QWidget* titleBar)
{
    if (QWidget* earlier = std::exchange(m_pTitleBar, nullptr)) {
        releaseTitleBar(earlier);
    }
    m_pTitleBar = titleBar;
    if (m_pTitleBar) {
        m_pTitleBar->installEventFilter(this);
        connect(m_pTitleBar, &QObject::destroyed, this, &PureQtFramelessWindow::forgetTitleBar, Qt::UniqueConnection);
    }
}

void PureQtFramelessWindow::addTitleBar(QWidget* titleBar)
{
    if (!titleBar || m_listTitleBars.contains(titleBar)) {
        return;
    }
    m_listTitleBars.append(titleBar);
    titleBar->installEventFilter(this);
    connect(titleBar, &QObject::destroyed, this, &PureQtFramelessWindow::forgetTitleBar, Qt::UniqueConnection);
}

void PureQtFramelessWindow::removeTitleBar(QWidget* titleBar)
{
    if (!titleBar) {
        return;
    }
    if (m_listTitleBars.removeAll(titleBar) > 0) {
        releaseTitleBar(titleBar);
    }
    if (titleBar == m_pTitleBar) {
        m_pTitleBar = nullptr;
        releaseTitleBar(titleBar);
    }
}

void PureQtFramelessWindow::clearTitleBars()
{
    const QList<QWidget*> bars = std::exchange(m_listTitleBars, {});
    QWidget* earlier = std::exchange(m_pTitleBar, nullptr);
    for (QWidget* bar : bars) {
        releaseTitleBar(bar);
    }
    if (earlier) {
        releaseTitleBar(earlier);
    }
}

bool PureQtFramelessWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick && watched->isWidgetType() &&
        m_listTitleBars.contains(static_cast<QWidget*>(watched))) {
        Q_EMIT titleDblClick();
        return true;
    }
    if (watched == this && event->type() == QEvent::KeyRelease &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && isFullScreen()) {
        Q_EMIT windowStateChange(false);
    }
    return QObject::eventFilter(watched, event);
}

void PureQtFramelessWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_eDragState = getWindowState(event->position().toPoint());
        if (m_eDragState != None) {
            m_bDragging = true;
            m_ptDragStart = event->globalPosition().toPoint();
        }
    }
    QWidget::mousePressEvent(event);
}

void PureQtFramelessWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_eDragState = None;
        m_bDragging = false;
        restoreCursor();
    }
    QWidget::mouseReleaseEvent(event);
}

void PureQtFramelessWindow::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint globalPos = event->globalPosition().toPoint();
    if (!m_bDragging) {
        updateCursorShape(event->position().toPoint());
    } else if (m_eDragState == TitleBar) {
        if (isMaximized()) {
            const QPointer<PureQtFramelessWindow> self(this);
            Q_EMIT windowStateChange(false);
            if (!self) {
                return;
            }
        }
        move(pos() + globalPos - m_ptDragStart);
        m_ptDragStart = globalPos;
    } else if (m_eDragState != None) {
        setGeometry(getResizeGeometry(globalPos));
    }
    QWidget::mouseMoveEvent(event);
}

void PureQtFramelessWindow::leaveEvent(QEvent* event)
{
    restoreCursor();
    QWidget::leaveEvent(event);
}

PureQtFramelessWindow::WindowState PureQtFramelessWindow::getWindowState(const QPoint& point) const
{
    if (!isMaximized()) {
        const bool left = point.x() <= m_iBorderWidth;
        const bool right = point.x() >= rect().width() - m_iBorderWidth;
        const bool top = point.y() <= m_iBorderWidth;
        const bool bottom = point.y() >= rect().height() - m_iBorderWidth;
        if (left && top) {
            return TopLeft;
        }
        if (right && top) {
            return TopRight;
        }
        if (left && bottom) {
            return BottomLeft;
        }
        if (right && bottom) {
            return BottomRight;
        }
        if (left) {
            return Left;
        }
        if (right) {
            return Right;
        }
        if (top) {
            return Top;
        }
        if (bottom) {
            return Bottom;
        }
    }
    for (const QWidget* bar : m_listTitleBars) {
        // A bar's geometry is its parent's coordinates: a bar is a direct child of the window.
        if (bar->isVisible() && bar->geometry().contains(point)) {
            return TitleBar;
        }
    }
    return None;
}

QRect PureQtFramelessWindow::getResizeGeometry(const QPoint& globalPos)
{
    QRect place = geometry();
    const QPoint way = globalPos - m_ptDragStart;
    switch (m_eDragState) {
    case TopLeft:
        place.setTopLeft(place.topLeft() + way);
        break;
    case TopRight:
        place.setTopRight(place.topRight() + way);
        break;
    case BottomLeft:
        place.setBottomLeft(place.bottomLeft() + way);
        break;
    case BottomRight:
        place.setBottomRight(place.bottomRight() + way);
        break;
    case Left:
        place.setLeft(place.left() + way.x());
        break;
    case Right:
        place.setRight(place.right() + way.x());
        break;
    case Top:
        place.setTop(place.top() + way.y());
        break;
    case Bottom:
        place.setBottom(place.bottom() + way.y());
        break;
    case None:
    case TitleBar:
        break;
    }
    // At the minimum the moving left or top edge stays one pixel further out than the right or bottom one would.
    if (place.width() < minimumWidth()) {
        if (m_eDragState == TopLeft || m_eDragState == BottomLeft || m_eDragState == Left) {
            place.setLeft(place.right() - minimumWidth());
        } else {
            place.setRight(place.left() + minimumWidth() - 1);
        }
    }
    if (place.height() < minimumHeight()) {
        if (m_eDragState == Top || m_eDragState == TopLeft || m_eDragState == TopRight) {
            place.setTop(place.bottom() - minimumHeight());
        } else {
            place.setBottom(place.top() + minimumHeight() - 1);
        }
    }
    m_ptDragStart = globalPos;
    return place;
}

void PureQtFramelessWindow::updateCursorShape(const QPoint& point)
{
    const WindowState state = getWindowState(point);
    restoreCursor();
    Qt::CursorShape shape = Qt::ArrowCursor;
    switch (state) {
    case TopLeft:
    case BottomRight:
        shape = Qt::SizeFDiagCursor;
        break;
    case TopRight:
    case BottomLeft:
        shape = Qt::SizeBDiagCursor;
        break;
    case Left:
    case Right:
        shape = Qt::SizeHorCursor;
        break;
    case Top:
    case Bottom:
        shape = Qt::SizeVerCursor;
        break;
    case None:
    case TitleBar:
        return;
    }
    QGuiApplication::setOverrideCursor(shape);
    m_bOverrideCursor = true;
}

void PureQtFramelessWindow::restoreCursor()
{
    if (m_bOverrideCursor) {
        QGuiApplication::restoreOverrideCursor();
        m_bOverrideCursor = false;
    }
}

void PureQtFramelessWindow::releaseTitleBar(QWidget* titleBar)
{
    titleBar->removeEventFilter(this);
    if (titleBar != m_pTitleBar && !m_listTitleBars.contains(titleBar)) {
        // A child dies after this class's own part of the window: it must not call back into that.
        disconnect(titleBar, &QObject::destroyed, this, &PureQtFramelessWindow::forgetTitleBar);
    }
}

void PureQtFramelessWindow::forgetTitleBar(QObject* titleBar)
{
    m_listTitleBars.removeAll(static_cast<QWidget*>(titleBar));
    if (titleBar == m_pTitleBar) {
        m_pTitleBar = nullptr;
    }
}

#include <CustomControls/machine/CFixedSizePopWidget.h>

#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/machine/CFixedSizePopWidgetAccessible.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace {

const AccessibleFactory::Registration<CFixedSizePopWidget, CFixedSizePopWidgetAccessible> kAccessible;

} // namespace

CFixedSizePopWidget::CFixedSizePopWidget(QWidget* parent)
    : QWidget(parent)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_TranslucentBackground, true);
    m_bDragging = false;
    m_ptDragGlobal = QPoint();
    installEventFilter(this);
    setFocusPolicy(Qt::ClickFocus);
}

CFixedSizePopWidget::~CFixedSizePopWidget() = default;

bool CFixedSizePopWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this || event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto* keyEvent = static_cast<QKeyEvent*>(event);
    switch (keyEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key held down confirms once.
        if (keyEvent->isAutoRepeat()) {
            return false;
        }
        SlotConfirm();
        return true;
    case Qt::Key_Escape: {
        const QPointer<CFixedSizePopWidget> self = this;
        SlotClose();
        if (!self) {
            return true; // a subclass that deletes itself at once: nobody is left to take the event
        }
        return QObject::eventFilter(watched, event);
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

void CFixedSizePopWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const QSize title = GetTitleSize();
        const QPoint position = event->position().toPoint();
        if (position.x() > 0 && position.x() < title.width() && position.y() > 0 && position.y() < title.height()) {
            m_bDragging = true;
            m_ptDragGlobal = event->globalPosition().toPoint();
        }
    }
    QWidget::mousePressEvent(event);
}

void CFixedSizePopWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_bDragging = false;
    }
    QWidget::mouseReleaseEvent(event);
}

void CFixedSizePopWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton) && m_bDragging) {
        const QPoint global = event->globalPosition().toPoint();
        move(pos() + global - m_ptDragGlobal);
        m_ptDragGlobal = global;
    }
    QWidget::mouseMoveEvent(event);
}

void CFixedSizePopWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}

void CFixedSizePopWidget::SlotConfirm() {}

void CFixedSizePopWidget::AddShadow(QWidget*) {}

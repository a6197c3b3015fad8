#include <CustomControls/buttons/CHintToolTip.h>

#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/buttons/CHintToolTipAccessible.h>
#include <CustomControls/platform/ClickThrough.h>

#include <QCoreApplication>
#include <QMouseEvent>

namespace {

bool IsOn(const QWidget* widget, const QPoint& global)
{
    return widget->rect().contains(widget->mapFromGlobal(global));
}

const AccessibleFactory::Registration<CHintToolTip, CHintToolTipAccessible> kAccessible;

} // namespace

CHintToolTip::CHintToolTip(QWidget* /*ownerButton*/, QWidget* parent)
    : QWidget(parent)
{
    applyWindowFlags();
}

CHintToolTip::~CHintToolTip()
{
    // A parent that is the owner button as well is about to tell of its end, to a note that is no longer whole.
    setOwnerButton(nullptr);
}

void CHintToolTip::setOwnerButton(QWidget* button)
{
    if (m_pOwnerButton) {
        disconnect(m_pOwnerButton, &QObject::destroyed, this, nullptr);
    }
    m_pOwnerButton = button;
    if (m_pOwnerButton) {
        connect(m_pOwnerButton, &QObject::destroyed, this, [this] { m_pOwnerButton = nullptr; });
    }
}

void CHintToolTip::applyWindowFlags()
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
}

void CHintToolTip::applyMousePassthrough(bool enable)
{
    SetClickThrough(this, enable);
}

bool CHintToolTip::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application passes here while the note is shown: nothing else may come before this.
    if (event->type() != QEvent::MouseButtonPress) {
        return QObject::eventFilter(watched, event);
    }
    const QPoint global = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (!m_pOwnerButton || !isVisible() || (!IsOn(m_pOwnerButton, global) && !IsOn(this, global))) {
        hide();
    }
    return false;
}

void CHintToolTip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QCoreApplication::instance()->installEventFilter(this);
    SetClickThrough(this, !m_bTakesMouse);
}

void CHintToolTip::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    QCoreApplication::instance()->removeEventFilter(this);
}

void CHintToolTip::setText(const QString& /*text*/) {}

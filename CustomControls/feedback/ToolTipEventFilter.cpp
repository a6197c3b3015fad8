#include <CustomControls/feedback/ToolTipEventFilter.h>

#include <CustomControls/feedback/CFrostedToolTip.h>

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace {

constexpr int kStandMs = 3500;
constexpr QPoint kFromCursor(8, 18);
// What a tip of usual size needs to the right and below.
constexpr int kRoomRight = 200;
constexpr int kRoomBelow = 100;

QPoint ToolTipPosition()
{
    QPoint position = QCursor::pos();
    if (const QScreen* screen = QGuiApplication::screenAt(position)) {
        const QRect available = screen->availableGeometry();
        position.setX(qMin(position.x(), available.right() - kRoomRight));
        position.setY(qMin(position.y(), available.bottom() - kRoomBelow));
    }
    return position + kFromCursor;
}

} // namespace

ToolTipEventFilter::ToolTipEventFilter(QObject* parent)
    : QObject(parent)
{}

ToolTipEventFilter::~ToolTipEventFilter()
{
    if (QCoreApplication::closingDown()) {
        return; // the windows are gone already, and so is what a fade runs on
    }
    const auto toolTips = std::exchange(m_hashToolTips, {});
    for (CFrostedToolTip* toolTip : toolTips) {
        toolTip->Hide();
    }
}

bool ToolTipEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const QString text = widget ? widget->toolTip() : QString();
        if (!text.isEmpty()) {
            if (!m_hashToolTips.value(watched)) {
                ShowToolTip(watched, text);
            }
            return true;
        }
    } else if (event->type() == QEvent::Leave) {
        HideToolTip(watched);
    }
    return QObject::eventFilter(watched, event);
}

void ToolTipEventFilter::ShowToolTip(QObject* watched, const QString& text)
{
    auto* toolTip = new CFrostedToolTip(text, nullptr);
    toolTip->move(ToolTipPosition());
    toolTip->show();
    m_hashToolTips.insert(watched, toolTip);

    // Only while this very tip stands: after a leave the object may have a new one before this one has faded, and
    // another object may have come to the same address.
    const QPointer<ToolTipEventFilter> filter(this);
    const auto hide = [filter, watched, toolTip] {
        if (filter && filter->m_hashToolTips.value(watched) == toolTip) {
            filter->HideToolTip(watched);
        }
    };
    QTimer::singleShot(kStandMs, toolTip, hide);
    connect(watched, &QObject::destroyed, toolTip, hide);
    connect(toolTip, &QObject::destroyed, this, [this, watched, toolTip] {
        if (m_hashToolTips.value(watched) == toolTip) {
            m_hashToolTips.remove(watched);
        }
    });
}

void ToolTipEventFilter::HideToolTip(QObject* watched)
{
    if (CFrostedToolTip* toolTip = m_hashToolTips.take(watched)) {
        toolTip->Hide();
    }
}

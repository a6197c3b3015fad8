#include <CustomControls/accessibility/KeyboardFocus.h>

#include <QFocusEvent>
#include <QPainter>
#include <QPointer>
#include <QTabBar>
#include <QWidget>

namespace {

// Light within dark: one of the two stands out from any ground, the house green included.
constexpr QColor kRing(0x18, 0x85, 0x53);
constexpr QColor kInnerRing(0xff, 0xff, 0xff);
constexpr int kRingWidth = 2;
constexpr double kRadius = 3.0;

bool IsKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

// The user went to another window or opened a menu, and finds the ring again on coming back.
bool ComesBack(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

QRect RingPlace(const QWidget* control)
{
    const auto* tabs = qobject_cast<const QTabBar*>(control);
    return tabs && tabs->currentIndex() >= 0 ? tabs->tabRect(tabs->currentIndex()) : control->rect();
}

/** One for all controls: only one of them can have the focus. */
class FocusRing : public QObject
{
public:
    bool IsShownOn(const QWidget* control) const { return m_bShown && m_pControl == control; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::FocusIn: {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (IsKeyboard(reason) || (ComesBack(reason) && watched == m_pControl)) {
                Show(static_cast<QWidget*>(watched));
            } else {
                Forget();
            }
            break;
        }
        case QEvent::FocusOut:
            if (watched == m_pControl) {
                if (ComesBack(static_cast<QFocusEvent*>(event)->reason())) {
                    Hide();
                } else {
                    Forget();
                }
            }
            break;
        case QEvent::MouseButtonPress:
            if (watched == m_pControl) {
                Forget();
            }
            break;
        case QEvent::Paint:
            if (m_bShown && watched == m_pControl) {
                watched->event(event); // all other filters have let it pass: this one is asked last
                if (m_pControl) {
                    Paint();
                }
                return true;
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    void Show(QWidget* control)
    {
        m_pControl = control;
        m_bShown = true;
        control->update();
    }

    void Hide()
    {
        if (m_pControl && m_bShown) {
            m_pControl->update();
        }
        m_bShown = false;
    }

    void Forget()
    {
        Hide();
        m_pControl = nullptr;
    }

    void Paint()
    {
        QPainter painter(m_pControl);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        const QRectF place = RingPlace(m_pControl);
        constexpr double half = kRingWidth / 2.0;
        painter.setPen(QPen(kRing, kRingWidth));
        painter.drawRoundedRect(place.adjusted(half, half, -half, -half), kRadius, kRadius);
        constexpr double inner = kRingWidth + 0.5;
        painter.setPen(QPen(kInnerRing, 1));
        painter.drawRoundedRect(place.adjusted(inner, inner, -inner, -inner), kRadius - 1, kRadius - 1);
    }

    QPointer<QWidget> m_pControl;
    bool m_bShown = false;
};

FocusRing& Ring()
{
    static FocusRing ring;
    return ring;
}

} // namespace

void KeyboardFocus::ShowOn(QWidget* control)
{
    control->installEventFilter(&Ring());
}

bool KeyboardFocus::IsShownOn(const QWidget* control)
{
    return Ring().IsShownOn(control);
}

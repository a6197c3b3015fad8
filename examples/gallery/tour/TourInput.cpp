#include "TourInput.h"

#include <QScrollArea>
#include <QWidget>

namespace {
// Long enough for the window system to tell a move from the press that follows it.
constexpr auto Pause = "0.04";
constexpr auto TypingDelayMs = "25";
constexpr auto DoubleClickDelayMs = "60";
} // namespace

TourInput::TourInput(QObject* parent)
    : QObject(parent)
    , m_player(this)
{
    connect(&m_player, &TourPlayer::SignalFailed, this, [this](const QString& reason) { m_strProblem = reason; });
}

QString TourInput::Missing()
{
    return TourPlayer::Missing();
}

void TourInput::Click(QWidget* widget)
{
    Click(widget, widget ? widget->rect().center() : QPoint());
}

void TourInput::Click(QWidget* widget, const QPoint& position)
{
    MoveTo(widget, position);
    m_arguments << QStringLiteral("click") << QStringLiteral("1");
}

void TourInput::RightClick(QWidget* widget, const QPoint& position)
{
    MoveTo(widget, position);
    m_arguments << QStringLiteral("click") << QStringLiteral("3");
}

void TourInput::MoveTo(QWidget* widget)
{
    MoveTo(widget, widget ? widget->rect().center() : QPoint());
}

void TourInput::MoveTo(QWidget* widget, const QPoint& position)
{
    if (!widget || !widget->isVisible()) {
        m_strProblem = QStringLiteral("there is nothing to move the pointer to");
        return;
    }
    for (QWidget* parent = widget->parentWidget(); parent && !widget->isWindow(); parent = parent->parentWidget()) {
        if (auto* scroll = qobject_cast<QScrollArea*>(parent)) {
            scroll->ensureWidgetVisible(widget, 20, 20);
            break;
        }
    }
    // Relative to the window, as the window system knows it: behind a window manager the toolkit can have a wrong idea
    // of where a frameless window stands.
    QWidget* window = widget->window();
    const QPointF local = QPointF(widget->mapTo(window, position)) * window->devicePixelRatioF();
    m_arguments << QStringLiteral("mousemove") << QStringLiteral("--window") << QString::number(window->winId())
                << QString::number(qRound(local.x())) << QString::number(qRound(local.y())) << QStringLiteral("sleep")
                << QLatin1String(Pause);
}

void TourInput::MoveBy(const QPoint& way)
{
    m_arguments << QStringLiteral("mousemove_relative") << QStringLiteral("--") << QString::number(way.x())
                << QString::number(way.y()) << QStringLiteral("sleep") << QLatin1String(Pause);
}

void TourInput::DoubleClick()
{
    m_arguments << QStringLiteral("click") << QStringLiteral("--repeat") << QStringLiteral("2")
                << QStringLiteral("--delay") << QLatin1String(DoubleClickDelayMs) << QStringLiteral("1");
}

void TourInput::Press()
{
    m_arguments << QStringLiteral("mousedown") << QStringLiteral("1") << QStringLiteral("sleep")
                << QLatin1String(Pause);
}

void TourInput::Release()
{
    m_arguments << QStringLiteral("mouseup") << QStringLiteral("1");
}

void TourInput::Type(const QString& text)
{
    m_arguments << QStringLiteral("sleep") << QLatin1String(Pause) << QStringLiteral("type")
                << QStringLiteral("--delay") << QLatin1String(TypingDelayMs) << QStringLiteral("--args")
                << QStringLiteral("1") << text;
}

void TourInput::Key(const QString& key)
{
    m_arguments << QStringLiteral("sleep") << QLatin1String(Pause) << QStringLiteral("key") << key;
}

void TourInput::Send()
{
    if (m_strProblem.isEmpty() && !m_arguments.isEmpty()) {
        m_player.Start(m_arguments);
    }
    m_strSent = m_arguments.join(QLatin1Char(' '));
    m_arguments.clear();
}

bool TourInput::IsBusy() const
{
    return m_player.IsBusy();
}

QString TourInput::Sent() const
{
    return m_strSent;
}

QString TourInput::Problem() const
{
    return m_strProblem;
}

void TourInput::Clear()
{
    m_arguments.clear();
    m_strProblem.clear();
}

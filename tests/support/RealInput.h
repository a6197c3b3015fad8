#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

class QWidget;

/**
 * Mouse and keys that come through the X server and the window manager, as a user's do. The events of this process go
 * on while a call waits for its tool. Places are global, in pixels of a screen of ratio 1.
 */
class RealInput
{
public:
    /** False without a display or without xdotool; a test then skips. */
    static bool IsAvailable();

    /**
     * Shows a top-level window, asks for the focus and waits until the window manager has put it where it belongs and
     * made it active: on its own it may place a new window elsewhere, and it need not focus the first one.
     */
    static bool ShowAt(QWidget& window, const QRect& place);

    static void MoveTo(const QPoint& place);
    static void Press(int button = 1);
    static void Release(int button = 1);
    static void Click(const QPoint& place, int button = 1);
    static void DoubleClick(const QPoint& place);
    /** Press at @p from, move in steps, release at @p to. */
    static void Drag(const QPoint& from, const QPoint& to);
    /** A key by its X name, such as "Return", "Escape" or "shift+Tab". */
    static void Key(const QString& name);
    static void Type(const QString& text);

private:
    static void Run(const QStringList& arguments);
};

#pragma once

class QWidget;

/**
 * Shows where the keyboard is, on controls whose own look tells nothing of it: a ring around the control while it has
 * the focus, but only if a key brought it there. Whoever uses the mouse sees the control as it has always been.
 */
namespace KeyboardFocus {

/**
 * Has the ring drawn on @p control, or around a QTabBar's current tab, from now on. To be called once, before any other
 * filter is installed on the control: the first one is asked last, and the ring, which has the control painted before
 * itself, then passes over nobody who wants to see or to take the painting.
 */
void ShowOn(QWidget* control);

/** Whether the ring is to be seen on @p control. */
bool IsShownOn(const QWidget* control);

} // namespace KeyboardFocus

#pragma once

class QWidget;

/**
 * Lets mouse events fall through a top-level window to what lies beneath, or has it take them again. The window's
 * native handle is made when it has none yet. Null is ignored.
 */
void SetClickThrough(QWidget* window, bool through);

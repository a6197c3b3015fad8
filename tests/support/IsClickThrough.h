#pragma once

class QWidget;

/** True when the system lets the mouse fall through this window, by the mark that the system itself goes by. */
bool IsClickThrough(const QWidget& window);

#pragma once

#include <QMargins>

class QWidget;

/** True when the system composes windows and so can show what lies behind a translucent one. */
bool IsCompositionEnabled();

/**
 * Extends the system's glass from the frame into the client area; margins of -1 make the whole window a sheet of glass.
 * Nothing happens on a system without it.
 */
void ExtendGlass(QWidget* window, const QMargins& margins);

/** Blurs what lies behind the translucent parts of @p window. Nothing happens on a system without it. */
void BlurBehind(QWidget* window);

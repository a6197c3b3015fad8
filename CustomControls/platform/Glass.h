#pragma once

#include <QMargins>

class QPixmap;
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

/**
 * Cuts @p window to the parts of @p content, laid at its upper left corner, that are not wholly transparent: a system
 * that doesn't compose windows, such as a plain X11 display, would paint the others black. Nothing happens on Windows.
 */
void CutToContent(QWidget* window, const QPixmap& content);

#include <CustomControls/platform/Glass.h>

// A compositor elsewhere blurs by its own rules; a translucent window is all that a program can ask of it portably.

bool IsCompositionEnabled()
{
    return false;
}

void ExtendGlass(QWidget*, const QMargins&) {}

void BlurBehind(QWidget*) {}

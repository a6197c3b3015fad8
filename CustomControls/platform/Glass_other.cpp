#include <CustomControls/platform/Glass.h>

#include <QBitmap>
#include <QWidget>

// A compositor elsewhere blurs by its own rules; a translucent window is all that a program can ask of it portably.

bool IsCompositionEnabled()
{
    return false;
}

void ExtendGlass(QWidget*, const QMargins&) {}

void BlurBehind(QWidget*) {}

void CutToContent(QWidget* window, const QPixmap& content)
{
    const QRegion shown(content.mask());
    // An empty region would stand for the whole window.
    window->setMask(shown.isEmpty() ? QRegion(-1, -1, 1, 1) : shown);
}

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

class QString;
class QTextBrowser;

/**
 * A read-only, transparent block of justified text without scroll bars, as high as the text: for a CHintToolTip or a
 * panel that explains something. The height is set once the event loop has run.
 *
 * @code
 * layout->addWidget(CreateCompactBrowser(280, tr("请先完成对刀，再开始加工。")));
 * @endcode
 *
 * @param width in logical pixels; a negative one counts as 0
 * @param text  plain text
 * @return a browser without parent that the caller owns
 */
CUSTOMCONTROLS_EXPORT QTextBrowser* CreateCompactBrowser(int width, const QString& text);

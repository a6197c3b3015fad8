#pragma once

class FramelessDialog;
class QLayout;

namespace DialogFrame {

/**
 * Fills a dialog that has its object name but no layout yet, from top to bottom: a title bar that shows the window's
 * title, the content, which takes the room, and the row of commands, all on white within a thin border.
 */
void Fill(FramelessDialog* dialog, QLayout* content, QLayout* commands);

} // namespace DialogFrame

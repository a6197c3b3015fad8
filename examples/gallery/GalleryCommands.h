#pragma once

#include <QList>

class QHBoxLayout;
class QPushButton;
class QString;

/** The buttons with which a page, a dialog or a box of the gallery is commanded. */
namespace GalleryCommands {

/** A command in the house look, with an object name; the chief one of its place is @p primary. */
QPushButton* Create(const QString& text, const QString& objectName, bool primary = false);

/** A row of them at the right end, in their order, each at least @p width wide. */
QHBoxLayout* Row(const QList<QPushButton*>& commands, int width);

} // namespace GalleryCommands

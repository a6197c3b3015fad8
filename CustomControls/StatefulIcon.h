#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QIcon>
#include <QString>

/**
 * Makes icons with two looks, one for a checked and one for an unchecked button, sharp at every device pixel ratio.
 *
 * GUI thread only: it asks the application for its ratio and the file system for the files. All operations are static;
 * the class holds nothing, so nobody makes or owns one, and an icon belongs to whoever it is returned to.
 *
 * @code
 * button->setCheckable(true);
 * button->setIcon(StatefulIcon::create(":/icon/cut_on.png", ":/icon/cut_off.png", 16));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT StatefulIcon
{
public:
    /** Nothing to assign. */
    StatefulIcon& operator=(const StatefulIcon& other);
    /** Nothing to move. */
    StatefulIcon& operator=(StatefulIcon&& other) noexcept;

    /**
     * An icon of four entries: @p offPath for QIcon::Off, @p onPath for QIcon::On, each in normal and disabled mode, so
     * a disabled button keeps its colours. Beside each path an "@3x" or "@2x" file is looked for when the application's
     * device pixel ratio asks for it. A file that does not exist gives an entry without picture and no message.
     *
     * @param onPath  file or resource of the checked look
     * @param offPath file or resource of the unchecked look
     * @param size    edge of the square icon, in logical pixels
     */
    static QIcon create(const QString& onPath, const QString& offPath, int size);

private:
    static QString resolveDpiAwarePath(const QString& path, int size);
};

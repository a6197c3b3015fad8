#pragma once

#include <QByteArray>
#include <QMap>

/**
 * Every QObject of this process that lives, whoever owns it and on whichever thread: what a walk through windows and
 * their children cannot find is found here. For "as many as before" at the end of something that is done many times.
 *
 * @code
 * LiveObjects::Watch();                           // first of all in main()
 * const QMap<QByteArray, int> before = LiveObjects::Count();
 * @endcode
 */
namespace LiveObjects {

/** Starts to watch. What was made before, by static initialisers for instance, is never counted. */
void Watch();

/** How many there are of each class, by its name. To be called while no other thread makes or deletes any. */
QMap<QByteArray, int> Count();

} // namespace LiveObjects

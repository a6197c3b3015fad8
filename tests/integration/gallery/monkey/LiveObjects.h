#pragma once

#include <QByteArray>
#include <QList>

/** Every object of the toolkit that is alive in the process, in the order in which they were made. */
namespace LiveObjects {
/** From here on objects are counted. */
void Install();

/** A mark: what is made later is younger. */
quint64 Mark();

struct Counts
{
    int iWidgets = 0;
    int iWindows = 0; ///< top-level widgets
    int iTimers = 0;  ///< that run in this thread
};
Counts Count();

/** Widgets, and objects with a running timer, that are younger than the mark: class, name, and whom they belong to. */
QList<QByteArray> Younger(quint64 mark);
} // namespace LiveObjects

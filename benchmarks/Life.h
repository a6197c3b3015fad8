#pragma once

#include <benchmarks/Comparison.h>

#include <QSize>

class QWidget;

/**
 * What a benchmark has to know of a control, or of its counterpart, to lead it through its whole life. Only `make` is
 * needed.
 */
struct Subject
{
    /** Makes one; the parent is null where it is a window of its own. Sizes and places it too. */
    std::function<QWidget*(QWidget* parent)> make;
    /** Brings it on the screen; by default show(). */
    std::function<void(QWidget* widget)> show = {};
    /** Into another state and back, a round for each value; what it changes is painted each time. */
    std::function<void(QWidget* widget, bool on)> change = {};
    /** Opens and closes what pops up: the list of a combo box. By default show and hide it. */
    std::function<void(QWidget* widget)> open = {};
    std::function<void(QWidget* widget)> close = {};
    /** What is painted on opening. */
    std::function<QWidget*(QWidget* widget)> popup = {};
    /** Adds entries to those that it has. */
    std::function<void(QWidget* widget, int first, int count)> fill = {};
};

/** A control and its two counterparts. */
struct Cast
{
    std::string strControl;
    std::string strCounterpart;
    Subject subjects[VariantCount] = {};
    /** It is a window. */
    bool bWindow = false;
    /** It is opened and closed again and again: a menu, a box, or what has a list. */
    bool bOpens = false;
    /** Shown like a menu, so that nothing but its opening matters. */
    bool bShowIsOpening = false;
    /** Entries are added while it is on the screen. */
    bool bGrowsOpen = true;
    /** Nothing but the adding of entries is measured: the rest is measured of another cast already. */
    bool bGrowthOnly = false;
    /** It moves while nobody does anything. The toolkit's animations run on timers that belong to no window. */
    bool bAnimated = false;
    std::map<std::string, double> goals = {};
};

namespace Life {

/** Make, show, first paint, repaint, change of state, opening and closing, memory, growth. */
void AddComparisons(const Cast& cast);

/** The casts that were added, for what is measured of all of them together. */
const std::vector<Cast>& Casts();

/** Delivers what is waiting and paints the widget's window here and now, as the window system would a little later. */
void PaintNow(QWidget* widget);

} // namespace Life

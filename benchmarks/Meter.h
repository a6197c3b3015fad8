#pragma once

#include <string>

/**
 * What a piece of work costs: seconds of this process's processor time or, where the program runs under callgrind,
 * executed instructions. Neither counts what other programs do meanwhile.
 *
 * @code
 * Meter::Start();
 * button->repaint();
 * const double cost = Meter::Stop("button/repaint");
 * @endcode
 */
namespace Meter {

/** Whether instructions are counted rather than time. */
bool CountsInstructions();

void Start();

/** What was spent since Start. @p label names the callgrind profile of that stretch. */
double Stop(const std::string& label);

/** Bytes that this process has allocated and not yet given back; 0 where that can't be told. */
double AllocatedBytes();

} // namespace Meter

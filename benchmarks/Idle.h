#pragma once

#include <benchmarks/Comparison.h>

/** What it costs that controls are on the screen and nobody does anything. */
namespace Idle {

/**
 * Shows all controls, and all of their counterparts, in windows of their own, lets ten seconds pass and returns the
 * processor time that each took of them. An event counts for the window that its receiver belongs to. What is animated
 * gets ten seconds alone, and all that the process does counts.
 */
std::vector<Line> Run();

/** Dialogs that move while they wait, beside the bare animation, in processor time of a second. */
void AddWaitingDialogs();

/** Processor time in ten seconds below which nobody notices: a thousandth of a core. */
constexpr double kUnnoticed = 0.01;

} // namespace Idle

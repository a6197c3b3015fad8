#pragma once

/** What a dialog costs that only waits, in seconds of the process's processor time, all threads together. */
namespace Waiting {

/** What one second of the running event loop takes, once it has settled. */
double ProcessorTimeOfASecond();

/** The same with a label that shows the loading animation by the toolkit's own means, and nothing else. */
double ProcessorTimeOfAnimation();

} // namespace Waiting

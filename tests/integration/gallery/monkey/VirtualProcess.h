#pragma once

/**
 * What makes a run of the monkey repeatable and harmless: the thread that calls Start sees a clock that moves only when
 * it is told to, so that each timer fires behind the same event in every run and an hour of timers takes no hour; and
 * from the whole process no connection leaves, whatever address has been typed.
 *
 * The C library's functions are replaced by ones of this program, which the toolkit's libraries then find first.
 */
namespace VirtualProcess {
/** From here on the calling thread's clocks stand still, at a time that is the same in every run. */
void Start();

/** Gives the calling thread its real clocks back. */
void Stop();

/** Moves the calling thread's clocks on. */
void Advance(int ms);

/** Moves them to the beginning of the next second. */
void CompleteSecond();
} // namespace VirtualProcess

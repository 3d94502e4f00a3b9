#pragma once

/// Hours of waiting in minutes: where the thread that called begin() would wait and nothing is ready, the
/// clocks of the process jump to the end of the wait instead. Nothing else changes: timers fire in their
/// order and at their times, and everything that asks a clock sees the same one. Linux.
///
/// The functions of the C library that tell the time and that wait for it are replaced for the whole process,
/// libraries included. Before a jump the other threads get a moment to finish what they do, and no jump goes
/// past the end of another thread's sleep, unless that is the short sleep of one that polls. A wait on the
/// outside (a process, a sound server) still takes the time it takes, and may look far longer.
namespace compressedtime {

/// Call it once, at the start of main().
void begin();

} // namespace compressedtime

#pragma once

#include <chrono>
#include <functional>

/// The time of the fuzzed thread: every wait is over at once and moves its clock on by as long as it would
/// have taken. Stands in for the monotonic clock and the waiting calls of the C library, so that the
/// product's timers, the event loop and the virtual keyboards run as they are, a second of theirs in a
/// fraction of a millisecond. Other threads keep the real time.
namespace fuzzclock {

using Milliseconds = std::chrono::milliseconds;

/// From now on this thread has time of its own.
void start();

/// Runs the event loop for that long.
void letTimePass(Milliseconds time);

/// Moves the clock on at once, so that a timer of a short period fires once only for all that time.
void skip(Milliseconds time);

/// Calls \a action once, from within a wait, when that much time has passed; empty for never.
void setAlarm(Milliseconds time, std::function<void()> action);

} // namespace fuzzclock

#pragma once

#include <atomic>
#include <chrono>

/// Tells the enumeration thread to leave. The thread asks after every wait and before it uses what the
/// program tears down at its end.
class ScanStop
{
public:
    /// Any thread.
    void request() { requested = true; }
    /// The process ends without waiting any longer: should the thread ever come back from the call that holds
    /// it, it must not get anywhere.
    void giveUp() { givenUp = true; }

    /// Whether to leave; on the enumeration thread. Never returns once the thread was given up.
    bool asked() const;
    /// Waits at least that long; false if the thread is to leave. On the enumeration thread.
    bool pause(std::chrono::milliseconds time) const;

private:
    std::atomic_bool requested = false;
    std::atomic_bool givenUp = false;
};

#pragma once

#include "SampleBlock.h"

#include <memory>

/// Captures what the machine plays, from construction to destruction. Where the system has no loopback device
/// it is the monitor of the default output that is captured, whichever output that becomes; never a
/// microphone. If there is nothing to capture a critical message says so once, and the samples stay silent.
///
/// Construct and destroy on one thread. Neither takes long: the device is opened and closed on a thread of
/// its own, and one whose sound server doesn't answer is left behind.
class LoopbackCapture
{
public:
    LoopbackCapture();
    ~LoopbackCapture();
    LoopbackCapture(const LoopbackCapture &) = delete;
    LoopbackCapture &operator=(const LoopbackCapture &) = delete;

    /// The latest block, which changes every few milliseconds while the machine plays. No more blocks come if
    /// nothing plays or the output is gone: whoever silences the block sees whether one came since.
    SampleBlock &samples();

private:
    struct Session;
    std::shared_ptr<Session> session;
};

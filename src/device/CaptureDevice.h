#pragma once

#include "AudioLibrary.h"

class SampleBlock;

/// The audio library's device that captures what the machine plays, and its way to the system. All of it is
/// used on one thread, which it may hold for as long as a sound server doesn't answer. It stays where it is:
/// the library keeps pointers into it.
class CaptureDevice
{
public:
    /// Nothing is opened yet. The library's thread will store each period in \a block.
    explicit CaptureDevice(SampleBlock &block);
    ~CaptureDevice();
    CaptureDevice(const CaptureDevice &) = delete;
    CaptureDevice &operator=(const CaptureDevice &) = delete;

    /// Opens and starts it; if there is nothing to capture it says so in the log and returns false.
    bool open();
    /// Captures from what is the default output now. To be called from time to time once it is open: a
    /// loopback device follows the output by itself, a monitor belongs to one output.
    void followOutput();

private:
    ma_result openLoopback();
    ma_result openMonitor();
    ma_result openMonitorOf(const ma_device_id &id);
    void close();

    const bool hasLoopback;
    ma_device_config audioConfig;
    ma_context context{};
    bool hasContext = false;
    ma_device_id monitor{};
    ma_device audioDevice{};
};

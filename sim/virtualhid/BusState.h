#pragma once

#include "DeviceRecord.h"
#include "VirtualBus.h"

#include <condition_variable>
#include <hidapi/hidapi.h>
#include <mutex>

namespace virtualhid {

struct EnumerationDeleter
{
    void operator()(hid_device_info *list) const;
};
using Enumeration = std::unique_ptr<hid_device_info, EnumerationDeleter>;

/// An open HID interface.
struct Handle
{
    struct Input
    {
        sim::Bytes report;
        sim::TimePoint due;
    };

    unsigned id;
    DevicePtr device;
    sim::Channel channel;
    std::string path;
    bool gone = false; ///< the device was unplugged
    bool nonBlocking = false;
    std::deque<Input> inputs{};
    std::wstring error = L"Success";
    Enumeration info{}; ///< made when first asked for

    DeviceRecord &record() const;
    int fail(std::wstring text);
};

/// What lies behind hidapi's functions: the devices, the handles and the one lock for both.
/// Members are used with the lock held. Lives until the process ends, so that a thread that still sits in
/// a call at exit finds it.
struct BusState
{
    static BusState &get();
    static DeviceRecord &recordOf(const VirtualDevice &device) { return *device.record; }
    static DevicePtr makeDevice(std::unique_ptr<DeviceRecord> record);

    std::mutex mutex;
    std::condition_variable changed; ///< a report, an unplug or a close: whoever waits looks again
    std::vector<DevicePtr> devices;  ///< the plugged ones
    std::map<unsigned, Handle> handles;
    Counters counters;
    std::function<void()> observer;
    unsigned lastHandle = 0;
    unsigned lastDevice = 0;

    /// The handle behind hidapi's pointer; null, counted as a misuse, if there is no such open handle.
    Handle *find(hid_device *device);
    void unplug(const DevicePtr &device);
    /// Puts an input report into the queues of the channel's open handles.
    void deliver(const DeviceRecord &record, sim::Channel channel, const sim::Bytes &report,
                 sim::TimePoint due);
    /// Fetches the reports that the device's channel has sent of its own accord by now.
    void collect(DeviceRecord &record, sim::Channel channel, sim::TimePoint now);
};

/// The pointer that hidapi's callers get: the handle's number, never used again and never dereferenced.
hid_device *toPointer(unsigned handle);

/// The bodies of hidapi's transfer functions.
int sendReport(hid_device *device, Way way, sim::ByteView report);
int readFeature(hid_device *device, std::span<sim::Byte> buffer);
/// Waits up to \a limit for an input report, without an end if it is empty.
int readInput(hid_device *device, std::span<sim::Byte> buffer,
              std::optional<std::chrono::milliseconds> limit);
/// The enumeration entry of one interface.
Enumeration describe(const DeviceRecord &record, sim::Channel channel);
/// The list of plugged interfaces that match; 0 matches any id.
Enumeration enumerate(std::uint16_t vendorId, std::uint16_t productId);
/// Null for a failed open; the reason then stands in openError().
hid_device *openPath(std::string_view path);
/// Why the last enumeration or open of this thread failed.
std::wstring &openError();

} // namespace virtualhid

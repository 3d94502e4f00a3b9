#pragma once

#include "Device.h"
#include "KernelDevice.h"

#include <functional>
#include <map>
#include <memory>

namespace uhid {

/// How a device comes to the kernel.
enum class Way {
    Uhid, ///< each channel as a HID device of its own
    Usb   ///< at a virtual USB host
};

/// A virtual device and what the kernel makes of it. One thread.
class PluggedDevice
{
public:
    using Log = std::function<void(sim::Channel channel, bool feature, sim::ByteView report)>;

    /// \a ready is called once the kernel has started every channel, \a log for each report that comes in.
    /// Throws std::system_error if the kernel refuses.
    PluggedDevice(unsigned number, const sim::Model &model, Way way, std::function<void()> ready, Log log);

    sim::Device &device() { return *virtualDevice; }
    const std::vector<std::unique_ptr<KernelDevice>> &links() const { return kernelDevices; }
    unsigned reports() const { return received; }

    /// Sends the input reports that are due.
    void sendDue(sim::TimePoint now);
    /// When to call sendDue() again; nothing while the device is quiet.
    std::optional<sim::TimePoint> nextDue() const;

private:
    struct Pending
    {
        sim::TimePoint due;
        sim::Channel channel;
        sim::Bytes report;
    };

    Requests requests();
    void plugUhid(unsigned number);
    bool receive(sim::Channel channel, bool feature, sim::ByteView report);

    std::unique_ptr<sim::Device> virtualDevice;
    std::function<void()> ready;
    Log log;
    std::size_t started = 0;
    unsigned received = 0;
    std::vector<Pending> pending;
    std::map<sim::Channel, std::optional<sim::Bytes>> features;
    std::vector<std::unique_ptr<KernelDevice>> kernelDevices;
    std::map<sim::Channel, KernelDevice *> linkOf;
};

} // namespace uhid

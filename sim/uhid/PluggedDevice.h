#pragma once

#include "Device.h"
#include "KernelDevice.h"

#include <functional>
#include <map>

namespace uhid {

/// A virtual device with one kernel device per channel. One thread.
class PluggedDevice
{
public:
    using Log = std::function<void(sim::Channel channel, bool feature, sim::ByteView report)>;

    /// \a ready is called once the kernel has started every channel, \a log for each report that comes in.
    PluggedDevice(unsigned number, const sim::Model &model, std::function<void()> ready, Log log);

    sim::Device &device() { return *virtualDevice; }
    const std::map<sim::Channel, std::unique_ptr<KernelDevice>> &channels() const { return kernelDevices; }
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

    Requests requestsOf(sim::Channel channel);
    bool receive(sim::Channel channel, bool feature, sim::ByteView report);

    std::unique_ptr<sim::Device> virtualDevice;
    std::function<void()> ready;
    Log log;
    std::size_t started = 0;
    unsigned received = 0;
    std::vector<Pending> pending;
    std::map<sim::Channel, std::optional<sim::Bytes>> features;
    std::map<sim::Channel, std::unique_ptr<KernelDevice>> kernelDevices;
};

} // namespace uhid

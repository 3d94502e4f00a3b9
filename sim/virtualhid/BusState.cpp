#include "BusState.h"

namespace virtualhid {
namespace {

constexpr std::size_t InputQueueLimit = 64; ///< as in the kernel; what comes on top is lost

}

DeviceRecord &Handle::record() const
{
    return BusState::recordOf(*device);
}

int Handle::fail(std::wstring text)
{
    error = std::move(text);
    return -1;
}

BusState &BusState::get()
{
    static BusState &state = *new BusState;
    return state;
}

DevicePtr BusState::makeDevice(std::unique_ptr<DeviceRecord> record)
{
    return DevicePtr{new VirtualDevice{std::move(record)}};
}

Handle *BusState::find(hid_device *device)
{
    const auto number = reinterpret_cast<std::uintptr_t>(device);
    const auto handle = handles.find(static_cast<unsigned>(number));
    if (handle != handles.end())
        return &handle->second;
    ++counters.misuses;
    return nullptr;
}

void BusState::unplug(const DevicePtr &device)
{
    std::erase(devices, device);
    recordOf(*device).plugged = false;
    for (auto &[id, handle] : handles) {
        if (handle.device == device)
            handle.gone = true;
    }
    changed.notify_all();
}

void BusState::deliver(const DeviceRecord &record, sim::Channel channel, const sim::Bytes &report,
                       sim::TimePoint due)
{
    for (auto &[id, handle] : handles) {
        if (&handle.record() == &record && handle.channel == channel && !handle.gone &&
            handle.inputs.size() < InputQueueLimit)
            handle.inputs.push_back({report, due});
    }
    changed.notify_all();
}

void BusState::collect(DeviceRecord &record, sim::Channel channel, sim::TimePoint now)
{
    while (const auto report = record.device->takeInput(channel, now))
        deliver(record, channel, *report, now);
}

hid_device *toPointer(unsigned handle)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a ticket, not an address
    return reinterpret_cast<hid_device *>(std::uintptr_t{handle});
}

} // namespace virtualhid

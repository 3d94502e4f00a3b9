#include "BusState.h"

#include <algorithm>
#include <stdexcept>

namespace virtualhid {
namespace {

/// Changes the bus under its lock, then tells the observer without it.
template <typename Change>
void changeBus(Change change)
{
    BusState &bus = BusState::get();
    std::function<void()> observer;
    {
        const std::scoped_lock lock{bus.mutex};
        change(bus);
        observer = bus.observer;
    }
    if (observer)
        observer();
}

} // namespace

VirtualBus &VirtualBus::instance()
{
    static VirtualBus bus;
    return bus;
}

DevicePtr VirtualBus::plug(std::string_view model, const sim::DeviceOptions &options)
{
    const sim::Model *row = sim::findModel(model);
    if (!row)
        throw std::invalid_argument{"no such model: " + std::string{model}};
    auto record = std::make_unique<DeviceRecord>();
    record->device = sim::makeDevice(*row, options);
    record->serial = options.serial;
    record->plugged = true;
    DevicePtr device;
    changeBus([&device, &record](BusState &bus) {
        record->number = ++bus.lastDevice;
        device = BusState::makeDevice(std::move(record));
        bus.devices.push_back(device);
    });
    return device;
}

void VirtualBus::unplug(const DevicePtr &device)
{
    if (device->isPlugged())
        changeBus([&device](BusState &bus) { bus.unplug(device); });
}

void VirtualBus::replug(const DevicePtr &device)
{
    if (device->isPlugged())
        return;
    changeBus([&device](BusState &bus) {
        BusState::recordOf(*device).plugged = true;
        BusState::recordOf(*device).features.clear();
        bus.devices.push_back(device);
    });
}

std::vector<DevicePtr> VirtualBus::plugged() const
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    return bus.devices;
}

Counters VirtualBus::counters() const
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    return bus.counters;
}

int VirtualBus::openHandles() const
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    return static_cast<int>(bus.handles.size());
}

int VirtualBus::openHandles(std::string_view path) const
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    return static_cast<int>(
        std::ranges::count_if(bus.handles, [path](const auto &entry) { return entry.second.path == path; }));
}

void VirtualBus::setHotPlugObserver(std::function<void()> observer)
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    bus.observer = std::move(observer);
}

void VirtualBus::reset()
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    while (!bus.devices.empty())
        bus.unplug(DevicePtr{bus.devices.back()});
    bus.observer = nullptr;
    bus.counters = Counters{.listsAlive = bus.counters.listsAlive};
}

} // namespace virtualhid

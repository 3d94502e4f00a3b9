#include "BusState.h"

#include <algorithm>

namespace virtualhid {
namespace {

template <typename Character>
Character *copyText(std::basic_string_view<Character> text)
{
    auto *copy = new Character[text.size() + 1]{};
    text.copy(copy, text.size());
    return copy;
}

std::wstring widen(std::string_view text)
{
    return {text.begin(), text.end()};
}

int interfaceNumberOf(const sim::Model &model, sim::Channel channel)
{
    const auto channels = model.channelList();
    return static_cast<int>(std::ranges::find(channels, channel) - channels.begin());
}

bool matches(const sim::Model &model, std::uint16_t vendorId, std::uint16_t productId)
{
    return (vendorId == 0 || vendorId == model.vendorId) && (productId == 0 || productId == model.productId);
}

bool isOn(const DeviceRecord &record, std::string_view path, sim::Channel &channel)
{
    for (const sim::Channel candidate : record.device->model().channelList()) {
        if (record.path(candidate) == path) {
            channel = candidate;
            return true;
        }
    }
    return false;
}

/// Opens one interface of a plugged device, or tells in openError() why that fails; the lock is held.
hid_device *openChannel(BusState &bus, const DevicePtr &device, sim::Channel channel)
{
    DeviceRecord &record = BusState::recordOf(*device);
    if (record.denied || record.openFailures > 0) {
        openError() = L"Failed to open a device with path '" + widen(record.path(channel)) + L"': " +
                      (record.denied ? L"Permission denied" : L"Input/output error");
        record.openFailures -= record.denied ? 0 : 1;
        ++bus.counters.failedOpens;
        return nullptr;
    }
    bus.collect(record, channel, sim::Clock::now()); // what came before the open isn't for this handle
    const unsigned id = ++bus.lastHandle;
    bus.handles.try_emplace(
        id, Handle{.id = id, .device = device, .channel = channel, .path = record.path(channel)});
    ++bus.counters.opens;
    openError() = L"Success";
    return toPointer(id);
}

} // namespace

void EnumerationDeleter::operator()(hid_device_info *list) const
{
    while (list) {
        hid_device_info *next = list->next;
        delete[] list->path;
        delete[] list->serial_number;
        delete[] list->manufacturer_string;
        delete[] list->product_string;
        delete list;
        list = next;
    }
}

Enumeration describe(const DeviceRecord &record, sim::Channel channel)
{
    const sim::Model &model = record.device->model();
    const sim::ChannelInfo &info = sim::channelInfo(channel);
    const bool bluetooth = record.device->has(sim::Channel::Bluetooth);
    Enumeration entry{new hid_device_info{}};
    entry->path = copyText<char>(record.path(channel));
    entry->vendor_id = model.vendorId;
    entry->product_id = model.productId;
    entry->serial_number = copyText<wchar_t>(widen(record.serial));
    entry->release_number = model.firmware;
    entry->manufacturer_string = copyText<wchar_t>(bluetooth ? L"" : L"Orbe");
    entry->product_string = copyText<wchar_t>(widen(model.product));
    entry->usage_page = info.usagePage;
    entry->usage = info.usage;
    entry->interface_number = bluetooth ? -1 : interfaceNumberOf(model, channel);
    entry->bus_type = bluetooth ? HID_API_BUS_BLUETOOTH : HID_API_BUS_USB;
    return entry;
}

Enumeration enumerate(std::uint16_t vendorId, std::uint16_t productId)
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    ++bus.counters.enumerations;
    Enumeration list;
    hid_device_info **end = nullptr;
    for (const DevicePtr &device : bus.devices) {
        const DeviceRecord &record = BusState::recordOf(*device);
        if (!matches(record.device->model(), vendorId, productId))
            continue;
        for (const sim::Channel channel : record.device->model().channelList()) {
            hid_device_info *entry = describe(record, channel).release();
            if (end) {
                *end = entry;
            } else {
                list.reset(entry);
            }
            end = &entry->next;
        }
    }
    bus.counters.listsAlive += list != nullptr;
    openError() = list ? L"Success" : L"No HID devices found in the system.";
    return list;
}

hid_device *openPath(std::string_view path)
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    for (const DevicePtr &device : bus.devices) {
        if (sim::Channel channel{}; isOn(BusState::recordOf(*device), path, channel))
            return openChannel(bus, device, channel);
    }
    openError() = L"Failed to open a device with path '" + widen(path) + L"': No such file or directory";
    ++bus.counters.failedOpens;
    return nullptr;
}

std::wstring &openError()
{
    thread_local std::wstring text = L"Success";
    return text;
}

} // namespace virtualhid

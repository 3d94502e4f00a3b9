// hidapi's functions on the virtual bus. Calls with a null, closed or unknown handle fail and are counted.

#include "BusState.h"

#include <algorithm>
#include <cwchar>

using namespace virtualhid;

namespace {

/// Runs \a action on an open handle with the lock held; -1 if there is none.
template <typename Action>
int withHandle(hid_device *device, Action action)
{
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    Handle *handle = bus.find(device);
    return handle ? action(bus, *handle) : -1;
}

hid_device_info *infoOf(Handle &handle)
{
    if (!handle.info)
        handle.info = describe(handle.record(), handle.channel);
    return handle.info.get();
}

int copyString(hid_device *device, wchar_t *hid_device_info::*field, wchar_t *string, std::size_t maxlen)
{
    return withHandle(device, [field, string, maxlen](BusState &, Handle &handle) {
        if (handle.gone)
            return handle.fail(L"Device is disconnected");
        if (!string || maxlen == 0)
            return handle.fail(L"Zero buffer/length");
        const std::wstring_view text = infoOf(handle)->*field;
        string[text.copy(string, maxlen - 1)] = L'\0';
        return 0;
    });
}

} // namespace

extern "C" {

int HID_API_EXPORT HID_API_CALL hid_init(void)
{
    return 0;
}

int HID_API_EXPORT HID_API_CALL hid_exit(void)
{
    return 0;
}

hid_device_info HID_API_EXPORT *HID_API_CALL hid_enumerate(unsigned short vendor_id,
                                                           unsigned short product_id)
{
    return enumerate(vendor_id, product_id).release();
}

void HID_API_EXPORT HID_API_CALL hid_free_enumeration(hid_device_info *devs)
{
    if (!devs)
        return;
    BusState &bus = BusState::get();
    const std::scoped_lock lock{bus.mutex};
    --bus.counters.listsAlive;
    EnumerationDeleter{}(devs);
}

HID_API_EXPORT hid_device *HID_API_CALL hid_open(unsigned short vendor_id, unsigned short product_id,
                                                 const wchar_t *serial_number)
{
    const Enumeration list = enumerate(vendor_id, product_id);
    {
        BusState &bus = BusState::get();
        const std::scoped_lock lock{bus.mutex};
        bus.counters.listsAlive -= list != nullptr;
    }
    for (const hid_device_info *entry = list.get(); entry; entry = entry->next) {
        if (!serial_number || std::wcscmp(serial_number, entry->serial_number) == 0)
            return openPath(entry->path);
    }
    openError() = L"Device with requested VID/PID/(SerialNumber) not found";
    return nullptr;
}

HID_API_EXPORT hid_device *HID_API_CALL hid_open_path(const char *path)
{
    return openPath(path ? path : "");
}

void HID_API_EXPORT HID_API_CALL hid_close(hid_device *dev)
{
    if (!dev) // hidapi allows it
        return;
    withHandle(dev, [](BusState &bus, Handle &handle) {
        bus.handles.erase(handle.id);
        ++bus.counters.closes;
        bus.changed.notify_all();
        return 0;
    });
}

int HID_API_EXPORT HID_API_CALL hid_write(hid_device *dev, const unsigned char *data, size_t length)
{
    return sendReport(dev, Way::OutputSent, {data, data ? length : 0});
}

int HID_API_EXPORT HID_API_CALL hid_send_feature_report(hid_device *dev, const unsigned char *data,
                                                        size_t length)
{
    return sendReport(dev, Way::FeatureSent, {data, data ? length : 0});
}

int HID_API_EXPORT HID_API_CALL hid_get_feature_report(hid_device *dev, unsigned char *data, size_t length)
{
    return readFeature(dev, {data, data ? length : 0});
}

int HID_API_EXPORT HID_API_CALL hid_get_input_report(hid_device *dev, unsigned char *, size_t)
{
    return withHandle(dev,
                      [](BusState &, Handle &handle) { return handle.fail(L"ioctl (GINPUT): Broken pipe"); });
}

int HID_API_EXPORT HID_API_CALL hid_read_timeout(hid_device *dev, unsigned char *data, size_t length,
                                                 int milliseconds)
{
    const auto limit = std::chrono::milliseconds{milliseconds};
    return readInput(dev, {data, data ? length : 0}, milliseconds < 0 ? std::nullopt : std::optional{limit});
}

int HID_API_EXPORT HID_API_CALL hid_read(hid_device *dev, unsigned char *data, size_t length)
{
    const int nonBlocking =
        withHandle(dev, [](BusState &, Handle &handle) { return handle.nonBlocking ? 1 : 0; });
    return nonBlocking < 0 ? -1 : hid_read_timeout(dev, data, length, nonBlocking ? 0 : -1);
}

int HID_API_EXPORT HID_API_CALL hid_set_nonblocking(hid_device *dev, int nonblock)
{
    return withHandle(dev, [nonblock](BusState &, Handle &handle) {
        handle.nonBlocking = nonblock != 0;
        return 0;
    });
}

int HID_API_EXPORT_CALL hid_get_manufacturer_string(hid_device *dev, wchar_t *string, size_t maxlen)
{
    return copyString(dev, &hid_device_info::manufacturer_string, string, maxlen);
}

int HID_API_EXPORT_CALL hid_get_product_string(hid_device *dev, wchar_t *string, size_t maxlen)
{
    return copyString(dev, &hid_device_info::product_string, string, maxlen);
}

int HID_API_EXPORT_CALL hid_get_serial_number_string(hid_device *dev, wchar_t *string, size_t maxlen)
{
    return copyString(dev, &hid_device_info::serial_number, string, maxlen);
}

int HID_API_EXPORT_CALL hid_get_indexed_string(hid_device *dev, int, wchar_t *, size_t)
{
    return withHandle(dev, [](BusState &, Handle &handle) {
        return handle.fail(L"hid_get_indexed_string: not supported by hidraw");
    });
}

hid_device_info HID_API_EXPORT *HID_API_CALL hid_get_device_info(hid_device *dev)
{
    hid_device_info *info = nullptr;
    withHandle(dev, [&info](BusState &, Handle &handle) {
        info = infoOf(handle);
        return 0;
    });
    return info;
}

HID_API_EXPORT const wchar_t *HID_API_CALL hid_error(hid_device *dev)
{
    if (!dev)
        return openError().c_str();
    const wchar_t *text = L"no such handle";
    withHandle(dev, [&text](BusState &, Handle &handle) {
        text = handle.error.c_str();
        return 0;
    });
    return text;
}

HID_API_EXPORT const hid_api_version *HID_API_CALL hid_version(void)
{
    static constexpr hid_api_version Version{HID_API_VERSION_MAJOR, HID_API_VERSION_MINOR,
                                             HID_API_VERSION_PATCH};
    return &Version;
}

HID_API_EXPORT const char *HID_API_CALL hid_version_str(void)
{
    return HID_API_VERSION_STR;
}

} // extern "C"

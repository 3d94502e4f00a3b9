#include "KeptHandles.h"

#include <array>
#include <hidapi/hidapi.h>

namespace {

constexpr std::size_t LargestReport = 256;
/// No system queues this many reports; a device that sends faster than they are read must not hold the pass.
constexpr int MostQueuedReports = 1024;

/// Throws away the input reports that came since the last pass. False if the device behind the handle is
/// gone.
bool drain(hid_device *device)
{
    std::array<unsigned char, LargestReport> report;
    int result = 1;
    for (int count = 0; count < MostQueuedReports && result > 0; ++count)
        result = hid_read_timeout(device, report.data(), report.size(), 0);
    return result >= 0;
}

} // namespace

hid_device *KeptHandles::open(const QString &path)
{
    Kept &entry = kept[path];
    entry.used = true;
    if (entry.handle && drain(entry.handle.get()))
        return entry.handle.get();
    entry.handle.close();
    entry.handle = HidHandle::open(path.toUtf8());
    entry.handle.setNonblocking(false);
    return entry.handle.get();
}

void KeptHandles::endPass()
{
    std::erase_if(kept, [](const auto &item) { return !item.second.used; });
    for (auto &item : kept)
        item.second.used = false;
}

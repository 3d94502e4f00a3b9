#include "DeviceList.h"

#include "OrbeDeviceEnum.h"

#include <algorithm>
#include <iterator>
#include <QDebug>
#include <QPointer>

namespace {

/// A device that no pass has met for longer than this is taken for gone, even if its path is still there.
constexpr qint64 OnlineSeconds = 60;

/// Whether it may be the same device, its keyboard exchanged behind a receiver or not. Some systems give the
/// path of a device that is gone to the next one.
bool isSameDevice(const DeviceEnumInfo &record, const DeviceSighting &sighting)
{
    return record.vendorId == sighting.vendorId && record.productId == sighting.productId &&
           record.connectionType == quint8(sighting.connection) && record.family == sighting.family;
}

} // namespace

DeviceList::DeviceList(QObject *parent)
    : QObject(parent)
{
}

DeviceList::~DeviceList() = default;

void DeviceList::watch(OrbeDeviceEnum *enumeration)
{
    connect(
        enumeration, &OrbeDeviceEnum::passDone, this,
        [this, source = QPointer(enumeration)] {
            if (!source)
                return;
            for (const ScanResult &pass : source->takeResults())
                applyPass(pass);
        },
        Qt::QueuedConnection);
}

int DeviceList::onlineCount() const
{
    return int(
        std::count_if(listed.begin(), listed.end(), [](const auto *device) { return device->online; }));
}

void DeviceList::clear()
{
    std::move(records.begin(), records.end(), std::back_inserter(retired));
    records.clear();
    listed.clear();
    unopenedDevices.clear();
}

void DeviceList::addDevice(const DeviceSighting &sighting)
{
    DeviceEnumInfo *known = recordOf(sighting.devicePath);
    if (known && isSameDevice(*known, sighting)) {
        known->deviceId = sighting.deviceId;
        known->online = true;
        known->lastSeen = quint32(sighting.seenAt);
        return;
    }
    if (known)
        replace(known);
    Record record = newRecord(sighting.devicePath);
    *record = {.vendorId = sighting.vendorId,
               .productId = sighting.productId,
               .deviceId = sighting.deviceId,
               .deviceType = quint8(sighting.deviceType),
               .family = sighting.family,
               .connectionType = quint8(sighting.connection),
               .online = true,
               .reserved = 0,
               .lastSeen = quint32(sighting.seenAt),
               .displayName = sighting.displayName,
               .reservedText = {},
               .vendorPath = sighting.vendorPath,
               .devicePath = sighting.devicePath};
    listed.append(record.get());
    records.push_back(std::move(record));
}

/// Its path is another device's now.
void DeviceList::replace(DeviceEnumInfo *gone)
{
    listed.removeOne(gone);
    const auto record =
        std::find_if(records.begin(), records.end(), [gone](const Record &it) { return it.get() == gone; });
    retired.push_back(std::move(*record));
    records.erase(record);
    if (gone == current)
        tellLoss();
}

void DeviceList::applyPass(const ScanResult &pass)
{
    for (const DeviceSighting &sighting : pass.sightings)
        addDevice(sighting);
    age(pass);
    seenPaths = pass.seenPaths;
    unopenedDevices = pass.unopened;
    Q_EMIT oEnumDeiceDone();
}

DeviceEnumInfo *DeviceList::recordOf(const QString &devicePath) const
{
    const auto found = std::find_if(listed.begin(), listed.end(), [&devicePath](const auto *device) {
        return device->devicePath == devicePath;
    });
    return found == listed.end() ? nullptr : *found;
}

/// A retired record of the same device is used again, so that years of pressing the scan button hold no more
/// memory than there are devices. The current one is not: its loss must not be told for a later sighting.
DeviceList::Record DeviceList::newRecord(const QString &devicePath)
{
    const auto old = std::find_if(retired.begin(), retired.end(), [this, &devicePath](const Record &record) {
        return record->devicePath == devicePath && record.get() != current;
    });
    if (old == retired.end())
        return std::make_unique<DeviceEnumInfo>();
    Record record = std::move(*old);
    retired.erase(old);
    return record;
}

void DeviceList::age(const ScanResult &pass)
{
    for (DeviceEnumInfo *device : listed) {
        const bool seen = pass.seenPaths.contains(device->devicePath);
        if (!seen || pass.finishedAt - qint64(device->lastSeen) > OnlineSeconds)
            device->online = false;
    }
    if (current && listed.contains(current) && !pass.seenPaths.contains(current->devicePath))
        tellLoss();
}

void DeviceList::tellLoss()
{
    qDebug().noquote() << "Lost:" << current->displayName << "Set OrbeReturn 1";
    Q_EMIT currentDeviceLost();
}

#include "ScanPass.h"

#include "OrbeDeviceBase.h"

#include <algorithm>
#include <array>
#include <QDateTime>

namespace {

constexpr quint64 LargestCloudId = 65536;

constexpr std::array Parts{scanCloudFamily, scanWsFamily, scanByFamily, scanJmFamily};

} // namespace

ScanPass::ScanPass(const ScanStop &stopFlag, KeptHandles &keptHandles, bool tarnwick)
    : stop(stopFlag)
    , kept(keptHandles)
    , tarnwickBuild(tarnwick)
{
}

void ScanPass::run()
{
    for (const auto scanFamily : Parts) {
        if (stop.asked())
            return;
        scanFamily(*this);
    }
    kept.endPass();
}

ScanResult ScanPass::takeResult()
{
    result.finishedAt = QDateTime::currentSecsSinceEpoch();
    return std::move(result);
}

void ScanPass::missOpen(const HidEntry &entry, const QString &path, quint8 connection)
{
    const bool noted =
        std::any_of(result.unopened.begin(), result.unopened.end(),
                    [&path](const UnopenedDevice &device) { return device.devicePath == path; });
    if (!noted)
        result.unopened.push_back({entry.product, connection, path});
}

void ScanPass::addDevice(const HidEntry &entry, quint64 id, const QString &vendorPath,
                         const QString &devicePath, quint16 connection, quint8 family)
{
    if (stop.asked())
        return;
    DeviceSighting device{.vendorId = entry.vendorId,
                          .productId = entry.productId,
                          .deviceId = id,
                          .connection = connection,
                          .family = family,
                          .seenAt = QDateTime::currentSecsSinceEpoch(),
                          .displayName = {},
                          .vendorPath = vendorPath,
                          .devicePath = devicePath};
    if (identify(device))
        result.sightings.push_back(std::move(device));
}

bool ScanPass::identify(DeviceSighting &device) const
{
    if (device.family == CloudFamily) {
        if (device.deviceId == 0 || device.deviceId > LargestCloudId)
            return false;
        const int brand = tarnwickBuild ? OrbeDeviceBase::SecondBrand : OrbeDeviceBase::FirstBrand;
        device.displayName = OrbeDeviceBase::lookupName(quint32(device.deviceId), device.deviceType, brand);
    } else {
        device.deviceId =
            OrbeDeviceBase::lookupCustom(device.vendorId, device.productId, device.deviceId,
                                         device.displayName, device.deviceType, device.connection);
    }
    return !device.displayName.isEmpty();
}

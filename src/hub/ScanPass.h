#pragma once

#include "HidEntry.h"
#include "KeptHandles.h"
#include "ScanResult.h"
#include "ScanStop.h"

/// One pass under way: what its parts may use, and what they have found so far. Enumeration thread only.
class ScanPass
{
public:
    ScanPass(const ScanStop &stop, KeptHandles &kept, bool tarnwickBuild);

    /// Runs all four parts. A pass that was told to stop has no result worth using.
    void run();
    /// What was found, with the time at which the pass ended.
    ScanResult takeResult();

    // For the parts

    const ScanStop &stop;
    KeptHandles &kept;
    const bool tarnwickBuild;

    /// Notes that something with that path is on the bus.
    void see(const QString &path) { result.seenPaths.insert(path); }
    /// Notes that the device at that path, of which \a entry is an interface, couldn't be opened.
    void missOpen(const HidEntry &entry, const QString &path, quint8 connection);
    /// Takes a device with the id that its probe got. Families 1 to 3 get their final id and connection from
    /// the custom list. A device that no catalogue knows is dropped.
    void addDevice(const HidEntry &entry, quint64 id, const QString &vendorPath, const QString &devicePath,
                   quint16 connection, quint8 family);

private:
    bool identify(DeviceSighting &device) const;

    ScanResult result;
};

/// The parts of a pass, one for each family. They leave early when the pass is told to stop.
void scanCloudFamily(ScanPass &pass);
void scanWsFamily(ScanPass &pass);
void scanByFamily(ScanPass &pass);
void scanJmFamily(ScanPass &pass);

/// Products that share a vendor id with the cloud driver family, but belong to the WS and BY families.
constexpr bool isSiblingProduct(quint16 productId)
{
    return (productId >= 0x000B && productId <= 0x0050) || productId == 0x5151 || productId == 0x5152 ||
           productId == 0x22B4 || productId == 0x22B5;
}

/// Vendor path of a device that has no second interface.
constexpr QLatin1String NoVendorPath("null");

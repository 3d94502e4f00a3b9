#pragma once

#include "DeviceEnumInfo.h"

#include <QSet>
#include <vector>

/// One supported device as a pass met it, already named by the catalogue.
struct DeviceSighting
{
    quint16 vendorId = 0;
    quint16 productId = 0;
    quint64 deviceId = 0;
    quint16 deviceType = 0xFFFF; ///< the low byte goes into the record
    quint16 connection = 0;      ///< the low byte goes into the record
    quint8 family = CloudFamily;
    qint64 seenAt = 0; ///< seconds since the epoch
    QString displayName;
    QString vendorPath;
    QString devicePath;
};

/// One interface that is asked who it is, and that a pass couldn't open.
struct UnopenedDevice
{
    QString product; ///< as the device calls itself; may be empty
    quint8 connectionType = UsbConnection;
    QString devicePath;
};

/// What one pass found; plain values that go from the enumeration thread to the GUI thread.
struct ScanResult
{
    std::vector<DeviceSighting> sightings; ///< in the order they were met
    QSet<QString> seenPaths;               ///< met on the bus, supported or not
    std::vector<UnopenedDevice> unopened;  ///< each path once
    qint64 finishedAt = 0;                 ///< seconds since the epoch
};

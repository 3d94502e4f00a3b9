#pragma once

#include <QString>
#include <QtGlobal>

/// Values of DeviceEnumInfo::deviceType.
enum DeviceTypes : quint8 {
    KeyboardType = 0,
    MouseType = 1,
    HitBoxType = 3,
    UnknownType = 255,
};

/// Values of DeviceEnumInfo::family; also the slot of the sibling window that serves it.
enum DeviceFamilies : quint8 {
    CloudFamily = 0, ///< cloud driver family with the native keyboards
    WsFamily = 1,
    ByFamily = 2,
    JmFamily = 3,
};

/// Values of DeviceEnumInfo::connectionType.
enum ConnectionTypes : quint8 {
    UsbConnection = 0,
    ReceiverConnection = 1,
    BluetoothConnection = 2,
};

/// What is known of one discovered device. GUI thread only; DeviceList owns the records, and a pointer to one
/// stays valid for as long as the list lives.
struct DeviceEnumInfo
{
    quint16 vendorId = 0;
    quint16 productId = 0;
    quint64 deviceId = 0;            ///< from the probe, or from the custom list for families 1 to 3
    quint8 deviceType = UnknownType; ///< see DeviceTypes; a catalogue may hold other values
    quint8 family = CloudFamily;
    quint8 connectionType = UsbConnection; ///< see ConnectionTypes; the custom list may hold other values
    bool online = false;
    quint32 reserved = 0;
    quint32 lastSeen = 0; ///< seconds since the epoch
    QString displayName;
    QString reservedText;
    QString vendorPath; ///< HID path, "null", "HitScreen", or the 12 digits of a family 2 device
    QString devicePath; ///< HID path (family 2: the 12 digits again); no two records of a list share it
};

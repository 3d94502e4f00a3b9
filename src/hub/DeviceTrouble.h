#pragma once

#include "DeviceEnumInfo.h"
#include "HidHandle.h"

#include <QList>

class DeviceList;

/// Why a device that is known, or stands on the bus, can't be used.
enum class DeviceTrouble {
    None,
    Gone,    ///< not on the bus
    Silent,  ///< on the bus, but for a minute it hasn't told who it is
    Denied,  ///< the system gives this user no access
    NotOpen, ///< can't be opened for another reason
};

/// A device without a card of its own that the user should hear of all the same.
struct AbsentDevice
{
    QString name;
    quint8 deviceType = KeyboardType;
    quint8 connectionType = UsbConnection;
    DeviceTrouble trouble = DeviceTrouble::Gone;
};

namespace devicetrouble {

/// The trouble that a failure to open is.
DeviceTrouble ofFailure(OpenFailure failure);
/// What kept the path from being opened when that was last tried; None if it could be.
DeviceTrouble ofPath(const QString &devicePath);

/// A word or two for a badge; empty for None.
QString badge(DeviceTrouble trouble);
/// What the user can do about it; empty for None.
QString advice(DeviceTrouble trouble);

/// The devices of the last pass that can't be used and aren't online: those that were there before, in the
/// order of the list, each model once and not while one of that model is online; and behind them those that
/// couldn't be opened and never could. GUI thread.
QList<AbsentDevice> absentDevices(const DeviceList &devices);

} // namespace devicetrouble

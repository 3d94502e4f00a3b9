#pragma once

#include "ConfigFolder.h"
#include "DeviceList.h"
#include "OrbeDeviceEnum.h"
#include "VirtualBus.h"

#include <QStringList>

/// The search for keyboards on an empty virtual bus, with the shipped catalogues and the gate open.
class Scanner
{
public:
    explicit Scanner(bool tarnwickBuild = false);
    ~Scanner();
    Scanner(const Scanner &) = delete;
    Scanner &operator=(const Scanner &) = delete;

    /// Lets one pass run and waits until its result stands in the list.
    bool scan(int limitMs = 20000);
    /// Waits for the end of a pass that was asked for otherwise.
    bool waitForPass(int limitMs = 20000);
    /// Whether a pass is under way \a ms from now, after a request.
    bool isHeldAfter(int ms);

    QStringList onlineNames() const;
    const DeviceEnumInfo *only() const;

    ConfigFolder config;
    virtualhid::VirtualBus &bus;
    DeviceList list;
    OrbeDeviceEnum::Pointer enumeration;
    int passes = 0; ///< that ended so far
};

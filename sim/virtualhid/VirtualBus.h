#pragma once

#include "VirtualDevice.h"

#include <functional>
#include <memory>
#include <string_view>

namespace virtualhid {

/// What came through hidapi's functions since the process started or the last reset().
struct Counters
{
    unsigned enumerations = 0; ///< calls of hid_enumerate
    unsigned listsAlive = 0;   ///< lists not yet given to hid_free_enumeration
    unsigned opens = 0;        ///< successful opens
    unsigned failedOpens = 0;
    unsigned closes = 0;
    unsigned misuses = 0; ///< calls with a null, closed or unknown handle; 0 in a sound program
};

/// The devices that hidapi's functions see in this process. Any thread.
class VirtualBus
{
public:
    static VirtualBus &instance();

    VirtualBus(const VirtualBus &) = delete;
    VirtualBus &operator=(const VirtualBus &) = delete;

    /// Plugs a new device of that model (see sim::Models). Throws std::invalid_argument for a name that is
    /// not there. The returned object outlives the unplug, so that its log can still be read.
    DevicePtr plug(std::string_view model, const sim::DeviceOptions &options = {});
    /// Takes the device off the bus: from now on its handles fail. Does nothing if it is not plugged.
    void unplug(const DevicePtr &device);
    /// Plugs it back under its old paths and with the state it kept; old handles stay dead.
    void replug(const DevicePtr &device);

    std::vector<DevicePtr> plugged() const;
    Counters counters() const;
    int openHandles() const;
    int openHandles(std::string_view path) const;

    /// Called after each plug and unplug, outside the lock, on the thread that caused it; empty for none.
    void setHotPlugObserver(std::function<void()> observer);

    /// Back to an empty bus: everything unplugged, counters 0, no observer. Open handles stay open and dead.
    void reset();

private:
    VirtualBus() = default;
};

} // namespace virtualhid

#pragma once

#include "ModelCatalog.h"

#include <functional>
#include <optional>

namespace uhid {

/// What the kernel asks of a device. Reports carry their id first.
struct Requests
{
    std::function<void()> started; ///< the kernel's side is up
    /// False: the host gets an error.
    std::function<bool(sim::Channel channel, bool feature, sim::ByteView report)> written;
    /// Nothing: the host gets an error.
    std::function<std::optional<sim::Bytes>(sim::Channel channel)> featureRead;
};

/// A way into the kernel for one or more channels of a device; what the kernel made of it goes with the
/// object.
class KernelDevice
{
public:
    KernelDevice() = default;
    virtual ~KernelDevice() = default;
    KernelDevice(const KernelDevice &) = delete;
    KernelDevice &operator=(const KernelDevice &) = delete;

    /// Readable when handleEvent() has something to do.
    virtual int descriptor() const = 0;
    /// Throws std::system_error if the kernel is gone.
    virtual void handleEvent() = 0;
    virtual void sendInput(sim::Channel channel, sim::ByteView report) = 0;
};

/// A report of the host with its id first. An unnumbered one comes with or without its leading 0, depending
/// on the way it took.
sim::Bytes withReportId(const sim::ChannelInfo &channel, bool feature, sim::ByteView data);

/// Throws std::system_error for the last failed system call.
[[noreturn]] void failSystemCall(const char *what);

} // namespace uhid

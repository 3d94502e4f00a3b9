#pragma once

#include "ModelCatalog.h"

#include <functional>
#include <optional>
#include <string>

struct uhid_event;

namespace uhid {

/// What the kernel is told about a new HID device.
struct Description
{
    const sim::ChannelInfo &channel;
    const sim::Model &model;
    std::string path; ///< shown as the physical path
    std::string serial;
    bool bluetooth;
};

/// What the kernel asks of a device. Reports carry their id first.
struct Requests
{
    std::function<void()> started;                                   ///< the kernel's side is up
    std::function<bool(bool feature, sim::ByteView report)> written; ///< false: the host gets an error
    std::function<std::optional<sim::Bytes>()> featureRead;          ///< nothing: the host gets an error
};

/// One HID device of the kernel, made through /dev/uhid; it goes with the object.
class KernelDevice
{
public:
    /// Throws std::system_error if the kernel refuses.
    KernelDevice(const Description &description, Requests requests);
    ~KernelDevice();
    KernelDevice(const KernelDevice &) = delete;
    KernelDevice &operator=(const KernelDevice &) = delete;

    /// Readable when handleEvent() has something to do.
    int descriptor() const { return file; }
    void handleEvent();
    void sendInput(sim::ByteView report);

private:
    void write(const uhid_event &event);
    void answerSet(const uhid_event &event);
    void answerGet(const uhid_event &event);
    bool take(bool feature, sim::ByteView data);

    sim::ChannelInfo channel;
    Requests requests;
    int file;
};

} // namespace uhid

#pragma once

#include "KernelDevice.h"

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

/// One channel as a HID device of the kernel, made through /dev/uhid.
class UhidDevice : public KernelDevice
{
public:
    /// Throws std::system_error if the kernel refuses.
    UhidDevice(const Description &description, Requests requests);
    ~UhidDevice() override;

    int descriptor() const override { return file; }
    void handleEvent() override;
    void sendInput(sim::Channel channel, sim::ByteView report) override;

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

#pragma once

#include "KernelDevice.h"

#include <deque>
#include <set>
#include <string>

namespace uhid {

/// A whole device at a port of the kernel's virtual USB host (module vhci-hcd): the kernel's USB core, its
/// HID driver and udev see it as they see one on a cable. The kernel speaks USB/IP over a socket for it.
class UsbDevice : public KernelDevice
{
public:
    /// Throws std::system_error if there is no such host or no free port, or the user may not use it.
    UsbDevice(const sim::Model &model, const std::string &serial, Requests requests);
    ~UsbDevice() override;

    int descriptor() const override { return socket; }
    void handleEvent() override;
    /// Reports that the host doesn't fetch are kept as far as a device has memory for them.
    void sendInput(sim::Channel channel, sim::ByteView report) override;

private:
    struct Transfer;
    struct Setup;
    using Answer = std::optional<sim::Bytes>;

    struct Interface
    {
        sim::ChannelInfo channel;
        std::deque<std::uint32_t> waiting; ///< sequence numbers of the host's reads
        std::deque<sim::Bytes> reports;
    };

    void attach();
    bool takePacket();
    void submit(const Transfer &transfer);
    void unlink(std::uint32_t sequence, std::uint32_t victim);
    void deliver(Interface &interface);

    Answer control(const Setup &setup, sim::ByteView data);
    Answer standardRequest(const Setup &setup) const;
    Answer interfaceRequest(const Setup &setup, sim::ByteView data);
    Answer reportDescriptorOf(std::size_t number);
    Answer featureReport(const sim::ChannelInfo &channel) const;

    void reply(std::uint32_t sequence, std::int32_t status, std::size_t length, sim::ByteView data);
    void send(sim::ByteView packet);

    sim::Model model;
    std::string serial;
    Requests requests;
    int socket = -1;
    sim::Bytes received;
    std::vector<Interface> interfaces;
    std::set<std::size_t> described; ///< interfaces whose report descriptor was read
};

} // namespace uhid

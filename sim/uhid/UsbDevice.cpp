#include "UsbDevice.h"

#include "ReportDescriptor.h"
#include "UsbDescriptors.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace uhid {
namespace {

using sim::Byte;
using sim::Bytes;

const std::string HostFolder = "/sys/devices/platform/vhci_hcd.0/";
constexpr unsigned FreePort = 4; ///< a port's state in the host's table
constexpr unsigned FullSpeed = 2;
constexpr std::size_t MostKeptReports = 8;

// A packet begins with twelve numbers, the highest byte first. These are their places and values.
constexpr std::size_t HeaderSize = 48;
constexpr std::size_t CommandAt = 0;
constexpr std::size_t SequenceAt = 4;
constexpr std::size_t DirectionAt = 12;
constexpr std::size_t EndpointAt = 16;
constexpr std::size_t LengthAt = 24; ///< of a transfer to do; a transfer done has its status before it
constexpr std::size_t StatusAt = 20;
constexpr std::size_t VictimAt = 20;
constexpr std::size_t SetupAt = 40;
constexpr std::uint32_t SubmitCommand = 1;
constexpr std::uint32_t UnlinkCommand = 2;
constexpr std::uint32_t SubmitReply = 3;
constexpr std::uint32_t UnlinkReply = 4;

std::uint32_t numberAt(sim::ByteView packet, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | packet[offset + i];
    return value;
}

void putNumber(Bytes &packet, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        packet[offset + i] = static_cast<Byte>(value >> (24 - 8 * i));
}

Bytes header(std::uint32_t command, std::uint32_t sequence, std::int32_t status)
{
    Bytes packet(HeaderSize);
    putNumber(packet, CommandAt, command);
    putNumber(packet, SequenceAt, sequence);
    putNumber(packet, StatusAt, static_cast<std::uint32_t>(status));
    return packet;
}

/// A free port for a device that isn't faster than "high speed". Throws std::system_error.
unsigned freePort()
{
    std::ifstream table{HostFolder + "status"};
    if (!table)
        failSystemCall("the virtual USB host (modprobe vhci-hcd)");
    for (std::string line; std::getline(table, line);) {
        std::istringstream words{line};
        std::string hub;
        unsigned port = 0;
        unsigned state = 0;
        if (words >> hub >> port >> state && hub == "hs" && state == FreePort)
            return port;
    }
    throw std::system_error{EBUSY, std::generic_category(), "no free port at the virtual USB host"};
}

} // namespace

struct UsbDevice::Transfer
{
    std::uint32_t sequence;
    std::uint32_t endpoint;
    bool towardsHost;
    std::uint32_t length;
    sim::ByteView setup;
    sim::ByteView data;
};

/// What a control transfer asks for.
struct UsbDevice::Setup
{
    explicit Setup(sim::ByteView bytes)
        : request(static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]))
        , value(bytes[2])
        , kind(bytes[3])
        , index(bytes[4])
    {
    }

    std::uint16_t request; ///< kind of request and recipient, then the request
    Byte value;
    Byte kind; ///< of descriptor or report
    Byte index;
};

UsbDevice::UsbDevice(const sim::Model &deviceModel, const std::string &serialNumber, Requests deviceRequests)
    : model(deviceModel)
    , serial(serialNumber)
    , requests(std::move(deviceRequests))
{
    for (const sim::Channel channel : model.channelList())
        interfaces.push_back({.channel = sim::channelInfo(channel), .waiting = {}, .reports = {}});
    attach();
}

UsbDevice::~UsbDevice()
{
    ::close(socket); // to the kernel that is a pulled cable
}

void UsbDevice::attach()
{
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) < 0)
        failSystemCall("socketpair");
    socket = ends[0];
    try {
        const unsigned port = freePort();
        std::ofstream host{HostFolder + "attach"};
        host << port << ' ' << ends[1] << ' ' << port + 1 << ' ' << FullSpeed << std::flush;
        if (!host)
            failSystemCall("the virtual USB host refuses the device");
    } catch (...) {
        ::close(ends[1]);
        ::close(socket);
        throw;
    }
    ::close(ends[1]); // the kernel has its own by now
}

void UsbDevice::handleEvent()
{
    Byte buffer[4096];
    const ssize_t count = ::recv(socket, buffer, sizeof buffer, MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0)
        throw std::system_error{ENODEV, std::generic_category(), "the virtual USB host closed the port"};
    received.insert(received.end(), buffer, buffer + count);
    while (takePacket()) {
    }
}

/// Does what the first packet asks for; false while it isn't whole.
bool UsbDevice::takePacket()
{
    if (received.size() < HeaderSize)
        return false;
    const bool submits = numberAt(received, CommandAt) == SubmitCommand;
    const bool towardsHost = numberAt(received, DirectionAt) != 0;
    const std::uint32_t length = submits ? numberAt(received, LengthAt) : 0;
    const std::size_t size = HeaderSize + (towardsHost ? 0 : length);
    if (received.size() < size)
        return false;
    const Bytes packet{received.begin(), received.begin() + static_cast<std::ptrdiff_t>(size)};
    received.erase(received.begin(), received.begin() + static_cast<std::ptrdiff_t>(size));
    const sim::ByteView view{packet};
    const std::uint32_t sequence = numberAt(view, SequenceAt);
    if (submits)
        submit({sequence, numberAt(view, EndpointAt), towardsHost, length,
                view.subspan(SetupAt, HeaderSize - SetupAt), view.subspan(HeaderSize)});
    else if (numberAt(view, CommandAt) == UnlinkCommand)
        unlink(sequence, numberAt(view, VictimAt));
    return true;
}

void UsbDevice::submit(const Transfer &transfer)
{
    if (transfer.endpoint == 0) {
        const Answer answer = control(Setup{transfer.setup}, transfer.data);
        const std::size_t whole = transfer.towardsHost && answer ? answer->size() : transfer.data.size();
        const std::size_t length = std::min<std::size_t>(whole, transfer.length);
        const bool brings = transfer.towardsHost && answer;
        reply(transfer.sequence, answer ? 0 : -EPIPE, answer ? length : 0,
              brings ? sim::ByteView{*answer}.first(length) : sim::ByteView{});
    } else if (transfer.towardsHost && transfer.endpoint <= interfaces.size()) {
        Interface &interface = interfaces[transfer.endpoint - 1];
        interface.waiting.push_back(transfer.sequence);
        deliver(interface);
    } else {
        reply(transfer.sequence, -EPIPE, 0, {});
    }
}

/// The host takes a read back. Status 0 says that it was answered before.
void UsbDevice::unlink(std::uint32_t sequence, std::uint32_t victim)
{
    std::size_t found = 0;
    for (Interface &interface : interfaces)
        found += std::erase(interface.waiting, victim);
    send(header(UnlinkReply, sequence, found > 0 ? -ECONNRESET : 0));
}

void UsbDevice::sendInput(sim::Channel channel, sim::ByteView report)
{
    for (Interface &interface : interfaces) {
        if (interface.channel.channel != channel)
            continue;
        interface.reports.emplace_back(report.begin(), report.end());
        if (interface.reports.size() > MostKeptReports)
            interface.reports.pop_front();
        deliver(interface);
    }
}

void UsbDevice::deliver(Interface &interface)
{
    while (!interface.waiting.empty() && !interface.reports.empty()) {
        const Bytes &report = interface.reports.front();
        reply(interface.waiting.front(), 0, report.size(), report);
        interface.waiting.pop_front();
        interface.reports.pop_front();
    }
}

/// What a control transfer brings, empty for one that only tells; nothing for what the device refuses.
UsbDevice::Answer UsbDevice::control(const Setup &setup, sim::ByteView data)
{
    if (const Answer answer = standardRequest(setup))
        return answer;
    return setup.index < interfaces.size() ? interfaceRequest(setup, data) : std::nullopt;
}

UsbDevice::Answer UsbDevice::standardRequest(const Setup &setup) const
{
    constexpr std::uint16_t GetDescriptor = 0x8006;
    constexpr std::array<std::uint16_t, 3> Statuses{0x8000, 0x8100, 0x8200};
    constexpr std::array<std::uint16_t, 5> Acknowledged{0x0009, 0x010B, 0x0201, 0x210A, 0x210B};
    if (std::ranges::count(Statuses, setup.request) > 0)
        return Bytes{0, 0};
    if (std::ranges::count(Acknowledged, setup.request) > 0)
        return Bytes{};
    if (setup.request != GetDescriptor)
        return {};
    switch (setup.kind) {
    case 1:
        return usb::deviceDescriptor(model);
    case 2:
        return usb::configurationDescriptor(model);
    case 3:
        return usb::stringDescriptor(model, serial, setup.value);
    default:
        return {};
    }
}

UsbDevice::Answer UsbDevice::interfaceRequest(const Setup &setup, sim::ByteView data)
{
    constexpr Byte ReportDescriptorKind = 0x22;
    constexpr Byte FeatureKind = 3;
    const sim::ChannelInfo &channel = interfaces[setup.index].channel;
    const bool feature = setup.kind == FeatureKind;
    switch (setup.request) {
    case 0x8106: // get descriptor
        return setup.kind == ReportDescriptorKind ? reportDescriptorOf(setup.index) : std::nullopt;
    case 0x2109: { // set report
        const bool taken = requests.written(channel.channel, feature, withReportId(channel, feature, data));
        return taken ? Answer{Bytes{}} : std::nullopt;
    }
    case 0xA101: // get report
        return feature ? featureReport(channel) : std::nullopt;
    default:
        return {};
    }
}

UsbDevice::Answer UsbDevice::reportDescriptorOf(std::size_t number)
{
    if (described.insert(number).second && described.size() == interfaces.size())
        requests.started();
    return reportDescriptor(interfaces[number].channel);
}

/// On the cable an unnumbered report goes without its 0.
UsbDevice::Answer UsbDevice::featureReport(const sim::ChannelInfo &channel) const
{
    Answer report = requests.featureRead(channel.channel);
    if (report && channel.reportId == 0 && !report->empty())
        report->erase(report->begin());
    return report;
}

void UsbDevice::reply(std::uint32_t sequence, std::int32_t status, std::size_t length, sim::ByteView data)
{
    Bytes packet = header(SubmitReply, sequence, status);
    putNumber(packet, LengthAt, static_cast<std::uint32_t>(length));
    packet.insert(packet.end(), data.begin(), data.end());
    send(packet);
}

void UsbDevice::send(sim::ByteView packet)
{
    while (!packet.empty()) {
        const ssize_t count = ::send(socket, packet.data(), packet.size(), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR)
            failSystemCall("the virtual USB host");
        packet = packet.subspan(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

} // namespace uhid

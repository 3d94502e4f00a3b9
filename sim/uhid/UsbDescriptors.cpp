#include "UsbDescriptors.h"

#include "ReportDescriptor.h"

#include <algorithm>
#include <iterator>

namespace uhid::usb {
namespace {

using sim::Byte;
using sim::Bytes;

constexpr Byte DeviceType = 1;
constexpr Byte ConfigurationType = 2;
constexpr Byte StringType = 3;
constexpr Byte InterfaceType = 4;
constexpr Byte EndpointType = 5;
constexpr Byte HidType = 0x21;
constexpr Byte ReportType = 0x22;

constexpr Byte HidClass = 3;
constexpr Byte BootSubclass = 1;
constexpr Byte KeyboardProtocol = 1;
constexpr Byte InterruptTransfers = 3;
constexpr Byte TowardsHost = 0x80;
constexpr Byte BusPowered = 0x80;
constexpr Byte TenthAmpere = 50; ///< in steps of 2 mA
constexpr std::uint16_t UsEnglish = 0x0409;
constexpr std::size_t ConfigurationHeader = 9;

constexpr Byte low(std::size_t value)
{
    return static_cast<Byte>(value);
}

constexpr Byte high(std::size_t value)
{
    return static_cast<Byte>(value >> 8);
}

void append(Bytes &descriptor, const Bytes &part)
{
    std::ranges::copy(part, std::back_inserter(descriptor));
}

Bytes interfaceDescriptors(Byte number, const sim::ChannelInfo &channel)
{
    const bool boot = channel.channel == sim::Channel::BootKeyboard;
    const std::size_t reports = reportDescriptor(channel).size();
    Bytes descriptors{9,
                      InterfaceType,
                      number,
                      0,
                      1,
                      HidClass,
                      boot ? BootSubclass : Byte{0},
                      boot ? KeyboardProtocol : Byte{0},
                      0};
    append(descriptors, {9, HidType, 0x11, 0x01, 0, 1, ReportType, low(reports), high(reports)});
    append(descriptors,
           {7, EndpointType, low(TowardsHost + number + 1u), InterruptTransfers, EndpointSize, 0, 1});
    return descriptors;
}

/// \a text is ASCII; the wire has UTF-16.
Bytes stringOf(std::string_view text)
{
    Bytes descriptor{low(2 + 2 * text.size()), StringType};
    for (const char c : text)
        append(descriptor, {static_cast<Byte>(c), 0});
    return descriptor;
}

} // namespace

Bytes deviceDescriptor(const sim::Model &model)
{
    return {18,
            DeviceType,
            0x00,
            0x02,
            0,
            0,
            0,
            EndpointSize,
            low(model.vendorId),
            high(model.vendorId),
            low(model.productId),
            high(model.productId),
            low(model.firmware),
            high(model.firmware),
            1,
            2,
            3,
            1};
}

Bytes configurationDescriptor(const sim::Model &model)
{
    Bytes interfaces;
    Byte number = 0;
    for (const sim::Channel channel : model.channelList())
        append(interfaces, interfaceDescriptors(number++, sim::channelInfo(channel)));
    const std::size_t total = ConfigurationHeader + interfaces.size();
    Bytes descriptor{ConfigurationHeader, ConfigurationType, low(total), high(total), number, 1, 0,
                     BusPowered,          TenthAmpere};
    append(descriptor, interfaces);
    return descriptor;
}

std::optional<Bytes> stringDescriptor(const sim::Model &model, std::string_view serial, unsigned index)
{
    switch (index) {
    case 0:
        return Bytes{4, StringType, low(UsEnglish), high(UsEnglish)};
    case 1:
        return stringOf("Orbe");
    case 2:
        return stringOf(model.product);
    case 3:
        return stringOf(serial);
    default:
        return {};
    }
}

} // namespace uhid::usb

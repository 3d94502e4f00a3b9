#include "ReportDescriptor.h"

namespace uhid {
namespace {

using sim::Byte;
using sim::Bytes;

/// Tags of HID items, without their size bits.
enum Item : Byte {
    UsagePage = 0x04,
    Usage = 0x08,
    LogicalMinimum = 0x14,
    LogicalMaximum = 0x24,
    ReportSize = 0x74,
    ReportId = 0x84,
    ReportCount = 0x94,
    Input = 0x80,
    Output = 0x90,
    Feature = 0xB0,
    Collection = 0xA0,
    EndCollection = 0xC0,
};

constexpr unsigned Application = 1;
constexpr unsigned DataVariable = 2;
constexpr Byte TwoBytes = 2; ///< size bits of an item

void put(Bytes &descriptor, Item tag, unsigned value)
{
    descriptor.insert(descriptor.end(), {static_cast<Byte>(tag | TwoBytes), static_cast<Byte>(value),
                                         static_cast<Byte>(value >> 8)});
}

/// A report of \a count bytes, 0 to 255 each, without further meaning; nothing for a count of 0.
void putReport(Bytes &descriptor, Item kind, unsigned usage, unsigned count)
{
    if (count == 0)
        return;
    put(descriptor, Usage, usage);
    put(descriptor, LogicalMinimum, 0);
    put(descriptor, LogicalMaximum, 255);
    put(descriptor, ReportSize, 8);
    put(descriptor, ReportCount, count);
    put(descriptor, kind, DataVariable);
}

/// A boot keyboard: modifiers, a reserved byte, six keys, and five lamps.
constexpr std::array<Byte, 63> BootKeyboard{
    0x05, 0x01, 0x09, 0x06, 0xA1, 0x01, 0x05, 0x07, 0x19, 0xE0, 0x29, 0xE7, 0x15, 0x00, 0x25, 0x01,
    0x75, 0x01, 0x95, 0x08, 0x81, 0x02, 0x95, 0x01, 0x75, 0x08, 0x81, 0x01, 0x95, 0x05, 0x75, 0x01,
    0x05, 0x08, 0x19, 0x01, 0x29, 0x05, 0x91, 0x02, 0x95, 0x01, 0x75, 0x03, 0x91, 0x01, 0x95, 0x06,
    0x75, 0x08, 0x15, 0x00, 0x25, 0x65, 0x05, 0x07, 0x19, 0x00, 0x29, 0x65, 0x81, 0x00, 0xC0};

} // namespace

Bytes reportDescriptor(const sim::ChannelInfo &channel)
{
    if (channel.channel == sim::Channel::BootKeyboard)
        return {BootKeyboard.begin(), BootKeyboard.end()};
    Bytes descriptor;
    put(descriptor, UsagePage, channel.usagePage);
    put(descriptor, Usage, channel.usage);
    put(descriptor, Collection, Application);
    if (channel.reportId != 0)
        put(descriptor, ReportId, channel.reportId);
    putReport(descriptor, Input, 0x20, channel.input);
    putReport(descriptor, Output, 0x21, channel.output);
    putReport(descriptor, Feature, 0x22, channel.feature);
    descriptor.push_back(EndCollection);
    return descriptor;
}

} // namespace uhid

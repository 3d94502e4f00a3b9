#pragma once

#include "Bytes.h"

#include <string_view>

namespace sim {

/// One HID interface (top-level collection) that a device offers.
enum class Channel : Byte {
    BootKeyboard, ///< what the operating system types with; the hub has no use for it
    KeyTest,      ///< input reports of the key test
    Command,      ///< feature reports of the wired framing
    Bluetooth,    ///< output and input reports of the wireless framing
    HitScreen,    ///< command channel of the hit box screen
    Ws,
    By,
    Jm,
};

/// What a channel looks like in a HID enumeration and which reports it has.
/// Lengths are in bytes without the report id; 0 means that there is no such report.
struct ChannelInfo
{
    Channel channel;
    std::string_view name;
    std::uint16_t usagePage;
    std::uint16_t usage;
    Byte reportId; ///< 0 for unnumbered reports
    std::uint16_t input;
    std::uint16_t output;
    std::uint16_t feature;
};

inline constexpr std::array ChannelTable{
    ChannelInfo{Channel::BootKeyboard, "boot", 0x0001, 0x0006, 0x00, 8, 1, 0},
    ChannelInfo{Channel::KeyTest, "keytest", 0xFFFF, 0x0001, 0x05, 63, 0, 0},
    ChannelInfo{Channel::Command, "command", 0xFFFF, 0x0002, 0x00, 0, 0, 64},
    ChannelInfo{Channel::Bluetooth, "bluetooth", 0xFF55, 0x0202, 0x06, 65, 65, 0},
    ChannelInfo{Channel::HitScreen, "screen", 0xFF01, 0x0001, 0x00, 0, 0, 64},
    ChannelInfo{Channel::Ws, "ws", 0xFF1C, 0x0092, 0x04, 15, 7, 0},
    ChannelInfo{Channel::By, "by", 0xFF60, 0x0061, 0x09, 63, 63, 0},
    ChannelInfo{Channel::Jm, "jm", 0xFF02, 0x0002, 0x08, 16, 16, 0},
};

constexpr const ChannelInfo &channelInfo(Channel channel)
{
    return ChannelTable[static_cast<std::size_t>(channel)];
}

/// Which program runs in a device.
enum class Kind : Byte {
    Keyboard, ///< native keyboard
    Receiver, ///< 2.4 GHz receiver of a native keyboard
    Identity, ///< tells who it is and nothing else: keyboards and mice of the cloud family, the screen
    Ws,
    By,
    Jm,
};

/// One row of the device list.
struct Model
{
    std::string_view name; ///< what tests and command lines call it
    Kind kind;
    std::uint16_t vendorId;
    std::uint16_t productId;
    std::uint32_t deviceId; ///< what the probe answers
    std::uint16_t firmware; ///< version, 0x512 is 5.12
    std::string_view product;
    std::array<Channel, 3> channels;
    std::size_t channelCount;
    std::string_view paired = {}; ///< model of the keyboard behind a receiver

    constexpr std::span<const Channel> channelList() const { return {channels.data(), channelCount}; }
};

inline constexpr std::array UsbKeyboardChannels{Channel::BootKeyboard, Channel::KeyTest, Channel::Command};
inline constexpr std::array BluetoothChannels{Channel::BootKeyboard, Channel::Bluetooth, Channel::Bluetooth};
constexpr std::array<Channel, 3> onlyChannel(Channel channel)
{
    return {channel, channel, channel};
}

/// Every device that the front ends can plug.
inline constexpr std::array Models{
    Model{"wired-500", Kind::Keyboard, 0x3151, 0x502F, 0x0AF7, 0x0512, "Orbe Magnetic 68",
          UsbKeyboardChannels, 3},
    Model{"wired-300", Kind::Keyboard, 0x3151, 0x5030, 0x0EC3, 0x0308, "Orbe Magnetic 75",
          UsbKeyboardChannels, 3},
    Model{"wired-2ff", Kind::Keyboard, 0x3151, 0x5031, 0x0709, 0x02FF, "Orbe 7090", UsbKeyboardChannels, 3},
    Model{"bluetooth", Kind::Keyboard, 0x3151, 0x5055, 0x0AF7, 0x0512, "Orbe Magnetic 68 BT",
          BluetoothChannels, 2},
    Model{"receiver", Kind::Receiver, 0x3151, 0x5038, 0x13151, 0x0100, "Orbe 2.4G Receiver",
          UsbKeyboardChannels, 3, "wired-300"},
    Model{"receiver-unpaired", Kind::Receiver, 0x3151, 0x5039, 0x13151, 0x0100, "Orbe 2.4G Receiver",
          UsbKeyboardChannels, 3},
    Model{"cloud", Kind::Identity, 0x25A7, 0xFA10, 0x0222, 0x0120, "Orbe Cloud 98", UsbKeyboardChannels, 3},
    Model{"cloud-mouse", Kind::Identity, 0x0461, 0x4E22, 0x0333, 0x0110, "Orbe Cloud Mouse",
          UsbKeyboardChannels, 3},
    Model{"hitscreen", Kind::Identity, 0x3151, 0x504A, 0x0444, 0x0101, "Orbe Hit Box Screen",
          onlyChannel(Channel::HitScreen), 1},
    Model{"ws", Kind::Ws, 0x38EE, 0x0031, 0x0051, 0x0100, "Orbe WS Keyboard", onlyChannel(Channel::Ws), 1},
    Model{"by", Kind::By, 0x38EE, 0x0016, 123456, 0x0100, "Orbe BY Keyboard", onlyChannel(Channel::By), 1},
    Model{"jm", Kind::Jm, 0x3554, 0xFA09, 0xFB29, 0x0100, "Orbe JM Keyboard", onlyChannel(Channel::Jm), 1},
};

/// The row called \a name, or null.
constexpr const Model *findModel(std::string_view name)
{
    for (const Model &model : Models) {
        if (model.name == name)
            return &model;
    }
    return nullptr;
}

} // namespace sim

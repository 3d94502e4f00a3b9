#pragma once

#include <QtGlobal>

#include <array>

/// What a key does: byte 0 of a KeyEntry. The value bytes 1 to 3 are told for each kind.
namespace KeyKind {
enum : quint8 {
    Keys = 0x00,      ///< 00 k1 k2 k3: one to three usages; 00 00 u 00: the factory form of a plain key
    Mouse = 0x01,     ///< 01 00 code amount: code F0 to F8, amount a signed byte
    Power = 0x02,     ///< 02 code 00 00: 81 power, 82 sleep, 83 wake
    Consumer = 0x03,  ///< 03 00 low high: 16-bit consumer usage
    Profile = 0x08,   ///< 08 00 op arg: 0 value, 1 next, 2 previous, 3 loop, 4 go to profile arg
    Macro = 0x09,     ///< 09 mode slot 00: play mode 0 to 2, slot 0 to 49
    Keyboard = 0x0A,  ///< 0A op arg 00: Fn key, factory reset, Win lock and so on
    Light = 0x0D,     ///< 0D group a b: groups 00 to 06 backlight, 08 side light
    Link = 0x0E,      ///< 0E 00 n 00: choose the link; 0E 01 n 00: start pairing
    Assistant = 0x12, ///< 12 00 E3 2C: call up the voice assistant
    Dpi = 0x14,       ///< 14 00 n 00: mouse DPI loop, up, down, shift
};
}

/// The function of one key: a kind byte and three value bytes, the same on the wire and in the
/// caches. Two entries are the same function only if all four bytes agree. Plain data.
struct KeyEntry
{
    static constexpr qsizetype Size = 4;

    std::array<quint8, Size> bytes{};

    constexpr quint8 kind() const { return bytes[0]; }

    /// All four bytes 0: the key has no function.
    constexpr bool isEmpty() const { return *this == KeyEntry{}; }

    friend constexpr bool operator==(const KeyEntry &, const KeyEntry &) = default;
};

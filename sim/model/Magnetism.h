#pragma once

#include "KeyMatrices.h"

namespace sim {

/// One per-key table of the magnetic switches. Its pages hold 64 bytes.
struct MagnetTable
{
    Byte number;
    Byte width;            ///< bytes per key in a page
    std::uint32_t factory; ///< value of a key fresh from the factory

    constexpr std::size_t pages() const { return std::size_t{width} * KeyMatrices::Positions / PageSize; }
};

constexpr Byte SensorTable = 0xFE; ///< live readings; can't be written

inline constexpr std::array MagnetTables{
    MagnetTable{0x00, 2, 400}, // actuation travel, 0.005 mm
    MagnetTable{0x01, 2, 560}, // release travel
    MagnetTable{0x02, 2, 60},  // rapid trigger, press
    MagnetTable{0x03, 2, 60},  // rapid trigger, release
    MagnetTable{0x04, 2, 200}, // dynamic keystroke travel
    MagnetTable{0x05, 1, 2},   // mod-tap hold time, 100 ms
    MagnetTable{0x06, 2, 60},  // top dead zone
    MagnetTable{0x07, 1, 0},   // key mode, bit 7 rapid trigger
    MagnetTable{0x08, 1, 0},   // dynamic keystroke actions
    MagnetTable{0x09, 1, 0},   // position of the partner key
    MagnetTable{0x0A, 4, 0},        MagnetTable{0xFF, 2, 0},
    MagnetTable{SensorTable, 2, 0}, MagnetTable{0xFC, 1, 2}, // switch type
    MagnetTable{0xFB, 1, 60},                                // bottom dead zone
};

/// The row of a table number, or null.
constexpr const MagnetTable *findMagnetTable(Byte number)
{
    for (const MagnetTable &table : MagnetTables) {
        if (table.number == number)
            return &table;
    }
    return nullptr;
}

/// The per-key tables of one profile. Values are kept as they were written, all 32 bits;
/// a page carries them at the table's width.
class Magnetism
{
public:
    static constexpr Byte AllKeys = 0xFF;

    /// Factory state.
    Magnetism();

    /// 0 for an unknown table or a position past the end.
    std::uint32_t value(Byte table, int position) const;
    /// Does nothing for an unknown table or a position past the end; AllKeys sets every key.
    void setValue(Byte table, int position, std::uint32_t value);
    /// True while a group of writes has not seen its commit.
    bool groupOpen() const { return group; }

    Answer write(const Frame &frame);
    Answer read(const Frame &frame) const;

private:
    std::array<std::array<std::uint32_t, KeyMatrices::Positions>, MagnetTables.size()> values{};
    bool group = false;
};

} // namespace sim

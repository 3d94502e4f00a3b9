#pragma once

#include <array>
#include <QtGlobal>

/// The per-key tables of the magnetic switches. A table holds one value for each of the 128 matrix positions,
/// so its width fixes how many 64-byte pages it takes. The order is that of the read sequence.
struct MagnetTable
{
    quint8 number;
    quint8 width; ///< bytes per value
    quint8 pages;
};

constexpr int MatrixPositions = 128;
constexpr int PageBytes = 64;

inline constexpr std::array MagnetTables{
    MagnetTable{0x00, 2, 4}, // actuation travel
    MagnetTable{0x01, 2, 4}, // release travel
    MagnetTable{0x02, 2, 4}, // rapid trigger, press travel
    MagnetTable{0x03, 2, 4}, // rapid trigger, release travel
    MagnetTable{0x04, 2, 4}, // travel of a dynamic keystroke
    MagnetTable{0x05, 1, 2}, // mod-tap hold time
    MagnetTable{0x06, 2, 4}, // top dead zone
    MagnetTable{0x07, 1, 2}, // key mode, and a flag in bit 7
    MagnetTable{0x08, 1, 2}, // dynamic keystroke actions
    MagnetTable{0x09, 1, 2}, // position of the SnapKey partner
    MagnetTable{0x0A, 4, 8}, // kept for the keyboard, not interpreted
    MagnetTable{0xFF, 2, 4}, // kept for the keyboard, not interpreted
    MagnetTable{0xFE, 2, 4}, // live sensor reading
    MagnetTable{0xFC, 1, 2}, // switch type
    MagnetTable{0xFB, 1, 2}, // bottom dead zone
};

/// Place of a table in the array above, or -1 for a number that no table has.
constexpr int magnetTableIndex(quint8 number)
{
    for (int i = 0; i < int(MagnetTables.size()); ++i) {
        if (MagnetTables[size_t(i)].number == number)
            return i;
    }
    return -1;
}

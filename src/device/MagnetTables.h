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

/// Numbers of the tables that something is done with. Travels and dead zones are in steps of 0.005 mm.
namespace magnettable {
constexpr quint8 Actuation = 0x00;    ///< travel at which a key is down
constexpr quint8 Release = 0x01;      ///< travel at which it is up again
constexpr quint8 RapidPress = 0x02;   ///< rapid trigger, press travel
constexpr quint8 RapidRelease = 0x03; ///< rapid trigger, release travel
constexpr quint8 DksTravel = 0x04;    ///< travel of a dynamic keystroke
constexpr quint8 HoldTime = 0x05;     ///< mod-tap, in steps of 100 ms
constexpr quint8 TopDeadZone = 0x06;
constexpr quint8 Mode = 0x07;       ///< a KeyMode in bits 0 to 6, the rapid-trigger flag in bit 7
constexpr quint8 DksActions = 0x08; ///< written as 32 bits, of which the cache keeps 8
constexpr quint8 Partner = 0x09;    ///< position of the SnapKey partner
constexpr quint8 Sensor = 0xFE;     ///< live reading
constexpr quint8 SwitchType = 0xFC;
constexpr quint8 BottomDeadZone = 0xFB;
} // namespace magnettable

/// What makes a key more than a plain one: the low seven bits of table Mode.
namespace KeyMode {
enum : quint8 {
    Plain = 0,
    DynamicKeystroke = 2,
    ModTap = 3,
    ToggleFirst = 4,
    ToggleSecond = 5,
    SnapKey = 7,
    Bits = 0x7F,
    Flag = 0x80, ///< rapid trigger over the full travel; not part of the mode
};
}

constexpr int MatrixPositions = 128;
constexpr int PageBytes = 64;

inline constexpr std::array MagnetTables{
    MagnetTable{magnettable::Actuation, 2, 4},
    MagnetTable{magnettable::Release, 2, 4},
    MagnetTable{magnettable::RapidPress, 2, 4},
    MagnetTable{magnettable::RapidRelease, 2, 4},
    MagnetTable{magnettable::DksTravel, 2, 4},
    MagnetTable{magnettable::HoldTime, 1, 2},
    MagnetTable{magnettable::TopDeadZone, 2, 4},
    MagnetTable{magnettable::Mode, 1, 2},
    MagnetTable{magnettable::DksActions, 1, 2},
    MagnetTable{magnettable::Partner, 1, 2},
    MagnetTable{0x0A, 4, 8}, // kept for the keyboard, not interpreted
    MagnetTable{0xFF, 2, 4}, // kept for the keyboard, not interpreted
    MagnetTable{magnettable::Sensor, 2, 4},
    MagnetTable{magnettable::SwitchType, 1, 2},
    MagnetTable{magnettable::BottomDeadZone, 1, 2},
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

#pragma once

#include <array>
#include <QtGlobal>

/// The commands that the system knows by name, in the order in which the console lists them.
struct CatalogueRow
{
    const char *name;
    quint8 command;
    quint8 dataLength;               ///< as shown; 9 for the two frames with their checksum at offset 8
    std::array<quint8, 7> arguments; ///< defaults of Byte1 to Byte7
};

// clang-format off
inline constexpr std::array CommandCatalogue{
    CatalogueRow{"CMD_SET_INFOR",      0x00, 8, {}},
    CatalogueRow{"CMD_GET_INFOR",      0x8F, 8, {}},
    CatalogueRow{"CMD_SET_RESET",      0x01, 8, {}},
    CatalogueRow{"CMD_GET_RESET",      0x81, 8, {}},
    CatalogueRow{"CMD_SET_BATTERY",    0x02, 8, {}},
    CatalogueRow{"CMD_GET_BATTERY",    0x82, 8, {}},
    CatalogueRow{"CMD_SET_REPORT",     0x03, 8, {}},
    CatalogueRow{"CMD_GET_REPORT",     0x83, 8, {}},
    CatalogueRow{"CMD_SET_PROFILE",    0x04, 8, {}},
    CatalogueRow{"CMD_GET_PROFILE",    0x84, 8, {}},
    CatalogueRow{"CMD_SET_LEDONOFF",   0x05, 8, {1, 1}},
    CatalogueRow{"CMD_GET_LEDONOFF",   0x85, 8, {}},
    CatalogueRow{"CMD_SET_DEBOUNCE",   0x06, 8, {}},
    CatalogueRow{"CMD_GET_DEBOUNCE",   0x86, 8, {}},
    CatalogueRow{"CMD_SET_LEDPARAM",   0x07, 9, {1, 3, 3, 7, 255, 255, 255}},
    CatalogueRow{"CMD_GET_LEDPARAM",   0x87, 8, {}},
    CatalogueRow{"CMD_SET_SLEDPARAM",  0x08, 9, {1, 3, 3, 7, 255, 255, 255}},
    CatalogueRow{"CMD_GET_SLEDPARAM",  0x88, 8, {}},
    CatalogueRow{"CMD_SET_KBOPTION",   0x09, 8, {}},
    CatalogueRow{"CMD_GET_KBOPTION",   0x89, 8, {}},
    CatalogueRow{"CMD_SET_KEYMATRIX",  0x0A, 8, {}},
    CatalogueRow{"CMD_GET_KEYMATRIX",  0x8A, 8, {}},
    CatalogueRow{"CMD_SET_MACRO",      0x0B, 8, {}},
    CatalogueRow{"CMD_GET_MACRO",      0x8B, 8, {}},
    CatalogueRow{"CMD_SET_USERPIC",    0x0C, 8, {}},
    CatalogueRow{"CMD_GET_USERPIC",    0x8C, 8, {}},
    CatalogueRow{"CMD_SET_MUSIC",      0x0D, 8, {}},
    CatalogueRow{"CMD_SET_WINDOWS",    0x0E, 8, {}},
    CatalogueRow{"CMD_SET_FN",         0x10, 8, {}},
    CatalogueRow{"CMD_GET_FN",         0x90, 8, {}},
    CatalogueRow{"CMD_SET_SLEEPTIME",  0x11, 8, {}},
    CatalogueRow{"CMD_GET_SLEEPTIME",  0x91, 8, {}},
    CatalogueRow{"CMD_SET_USERGIF",    0x12, 8, {}},
    CatalogueRow{"CMD_SET_AUTOOSEN",   0x17, 8, {}},
    CatalogueRow{"CMD_GET_AUTOOSEN",   0x97, 8, {}},
    CatalogueRow{"CMD_SET_SKU",        0x50, 8, {}},
    CatalogueRow{"CMD_GET_SKU",        0xD0, 8, {}},
    CatalogueRow{"CMD_SET_MAGNETISM",  0x1D, 8, {}},
    CatalogueRow{"CMD_GET_MAGNETISM",  0x9D, 8, {}},
};
// clang-format on

/// Speed of an effect as users count it, from 0; the wire counts down from here.
constexpr int FastestSpeed = 4;

/// The effect that shows a user picture; its option is the picture's slot.
constexpr int PictureEffect = 13;

/// Command bytes that the code sends and reads by number.
namespace command {
constexpr quint8 SetReset = 0x01;
constexpr quint8 SetReport = 0x03;
constexpr quint8 SetProfile = 0x04;
constexpr quint8 SetLedOnOff = 0x05;
constexpr quint8 SetDebounce = 0x06;
constexpr quint8 SetLedParam = 0x07;
constexpr quint8 SetSideLedParam = 0x08;
constexpr quint8 SetKbOption = 0x09;
constexpr quint8 SetKeyMatrix = 0x0A;
constexpr quint8 SetMacro = 0x0B;
constexpr quint8 SetUserPicture = 0x0C;
constexpr quint8 SetMusic = 0x0D;
constexpr quint8 SetFn = 0x10;
constexpr quint8 SetSleepTime = 0x11;
constexpr quint8 KeyTest = 0x1B;
constexpr quint8 Calibration = 0x1E;
constexpr quint8 SetMagnetValue = 0x65;
constexpr quint8 GetReport = 0x83;
constexpr quint8 GetProfile = 0x84;
constexpr quint8 GetDebounce = 0x86;
constexpr quint8 GetLedParam = 0x87;
constexpr quint8 GetSideLedParam = 0x88;
constexpr quint8 GetKbOption = 0x89;
constexpr quint8 GetKeyMatrix = 0x8A;
constexpr quint8 GetUserPicture = 0x8C;
constexpr quint8 GetInfo = 0x8F;
constexpr quint8 GetFn = 0x90;
constexpr quint8 GetSleepTime = 0x91;
constexpr quint8 ReadMagnetTable = 0xE5;
} // namespace command

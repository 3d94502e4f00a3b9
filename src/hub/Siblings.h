#pragma once

#include "DeviceEnumInfo.h"

#include <array>
#include <QString>

/// A driver program beside the hub that serves one family of keyboards.
struct Sibling
{
    const char *name;    ///< for the log
    const char *program; ///< path under the sibling root
    const char *process; ///< in the system's list of processes
    const char *title;   ///< of its window
    bool embedded;       ///< shown inside the hub; otherwise its window takes the hub's place
};

/// The drivers by slot; the slot is the family that they serve.
using SiblingTable = std::array<Sibling, 4>;

inline constexpr SiblingTable OrbeSiblings{
    Sibling{"RY", "/RyExe/OrbeCloudDriver.exe", "OrbeCloudDriver.exe", "Orbe Cloud Driver", true},
    Sibling{"WS", "/WsExe/Orbe-WS.exe", "Orbe-WS.exe", "Orbe", false},
    Sibling{"BY", "/ByExe/Orbe-BY.exe", "Orbe-BY.exe", "bymold", true},
    Sibling{"JM", "/JmExe/Orbe-Gaming-Bub.exe", "Orbe-Gaming-Bub.exe", "Orbe-Gaming-Bub", false},
};

/// The second brand has an RY driver of its own; the process that is looked for stays the first brand's.
inline constexpr SiblingTable TarnwickSiblings = [] {
    SiblingTable table = OrbeSiblings;
    table[CloudFamily].program = "/TrExe/TarnwickDriver.exe";
    table[CloudFamily].title = "Tarnwick Driver";
    return table;
}();

/// The folder that holds the drivers' folders: the application's own or, with no RY driver in it, the one
/// above.
QString siblingRoot(const QString &applicationFolder);

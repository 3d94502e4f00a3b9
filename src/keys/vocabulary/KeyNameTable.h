#pragma once

#include <QString>

#include <array>

/// One key of the vocabulary. Several rows may share a usage or a scan code.
struct KeyName
{
    QStringView name;
    quint16 usage; ///< HID keyboard usage; the knob's halves have EA and E9
    quint16 scan;  ///< set-1 scan code, E0 in the high byte for extended keys; 0 if the key has none
};

/// Names of keys, the same in every language. In every search the first row in table order wins,
/// so the navigation keys of the number block are found under their plain names.
namespace keys {

extern const std::array<KeyName, 118> KeyNameTable;

/// Name of the key with this usage; empty if no row has it.
QString KeyNameByCode(quint16 usage);

/// Name of the key with this scan code; empty if no row has it. Print-Screen shares the scan
/// code of R-Win and is never found.
QString KeyNameByScan(quint16 scan);

/// Usage of the key with this scan code; 0 if no row has it.
quint16 CodeByScan(quint16 scan);

} // namespace keys

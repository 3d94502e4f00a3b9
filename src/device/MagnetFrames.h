#pragma once

#include <QByteArray>

/// The commands about the magnetic switches.
namespace magnetframes {

/// Position that stands for every key in a write.
constexpr quint8 AllKeys = 0xFF;

/// Reads one 64-byte page of a table.
QByteArray readPage(quint8 table, quint8 page);

/// Writes one value, with all its 32 bits whatever the table's width. \a commit is 1 on the last write of a
/// group, else 0.
QByteArray setValue(quint8 table, quint8 position, quint32 value, quint8 commit);

/// Starts and stops the stream of key-test samples.
QByteArray switchKeyTest(bool on);

/// Starts and stops the calibration scan.
QByteArray switchCalibration(bool on);

} // namespace magnetframes

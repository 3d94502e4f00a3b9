#pragma once

#include <QByteArray>

/// The commands that write and read a user picture: a colour map of three bytes, red, green and blue, for
/// each matrix position. Writing and reading cut the map into pages of different sizes.
namespace pictureframes {

inline constexpr quint8 WritePages = 7;
inline constexpr quint8 ReadPages = 6;
inline constexpr int WrittenBytes = 392; ///< of a map, 8 past its 128 positions

/// Writes a page, 0 to 6, of the picture in a slot. Bytes that the map is too short for go out as 0.
QByteArray writePage(quint8 slot, quint8 page, const QByteArray &colourMap);

/// Reads a page, 0 to 5, of the picture in a slot.
QByteArray readPage(quint8 slot, quint8 page);

} // namespace pictureframes

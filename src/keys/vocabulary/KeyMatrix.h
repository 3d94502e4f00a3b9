#pragma once

#include "KeyEntry.h"

#include <QByteArray>

/// Key matrices and the two ways to name a key. A matrix holds 128 entries of 4 bytes by position
/// (column times 6 plus row); pages name a key by its code, the number in its button's name.
/// Everything here belongs to the GUI thread.
namespace keys {

inline constexpr int PositionCount = 128;
inline constexpr qsizetype MatrixSize = PositionCount * KeyEntry::Size;

/// Result of PositionOfCode for a code that the keyboard doesn't have.
inline constexpr quint8 NoPosition = 0xFF;

/// Code of the Fn key, one of four keys whose factory entry holds no usable code.
inline constexpr quint8 FnKeyCode = 0xFA;

/// The entry at a position of any matrix; empty if the position is negative or past its end.
KeyEntry entryAt(const QByteArray &matrix, int position);

/// Writes an entry into a matrix. A position that the matrix doesn't hold changes nothing and gives false.
bool setEntryAt(QByteArray &matrix, int position, const KeyEntry &entry);

/// The default key matrix, always 512 bytes: the factory table until SetDefaultKeyMap replaces it.
const QByteArray &defaultKeyMatrix();

/// The default Fn matrix, always 512 bytes. From position 15 to 89 its rows stand one byte early.
const QByteArray &defaultFnMatrix();

/// Replaces the default key matrix by the first 512 bytes given; codes, positions and defaults
/// follow it from then on. Fewer bytes change nothing and give false.
[[nodiscard]] bool SetDefaultKeyMap(const QByteArray &matrix);

/// Code of the key at a position; 0 for a hole in the matrix and for a position above 127.
quint8 CodeOfPosition(quint8 position);

/// First position of the key with this code, NoPosition if there is none. Code 0 finds the first hole.
quint8 PositionOfCode(quint8 code);

/// Entry of the default key matrix; empty for a position above 127.
KeyEntry DefaultEntryAt(quint8 position);

/// Whether an entry differs from the default of its position in any byte. The factory form of a
/// plain key (00 00 29 00) and the picked form (00 29 00 00) thus count as different.
bool IsModifiedEntry(quint8 position, const KeyEntry &entry);

} // namespace keys

#include "KeyMatrix.h"

#include <algorithm>

namespace keys {

namespace {

constexpr int Rows = 6;

struct PlacedEntry
{
    quint8 position;
    KeyEntry entry;
};

/// Usages of the plain keys, column by column from the left, rows top down; 0 for a hole.
constexpr std::array<std::array<quint8, Rows>, 15> PlainKeys{{
    {0x29, 0x35, 0x2B, 0x39, 0xE1, 0xE0},
    {0x3A, 0x1E, 0x14, 0x04, 0x00, 0xE3},
    {0x3B, 0x1F, 0x1A, 0x16, 0x1D, 0xE2},
    {0x3C, 0x20, 0x08, 0x07, 0x1B, 0x00},
    {0x3D, 0x21, 0x15, 0x09, 0x06, 0x00},
    {0x3E, 0x22, 0x17, 0x0A, 0x19, 0x00},
    {0x3F, 0x23, 0x1C, 0x0B, 0x05, 0x2C},
    {0x40, 0x24, 0x18, 0x0D, 0x11, 0x00},
    {0x41, 0x25, 0x0C, 0x0E, 0x10, 0x00},
    {0x42, 0x26, 0x12, 0x0F, 0x36, 0xE6},
    {0x43, 0x27, 0x13, 0x33, 0x37, 0x00},
    {0x44, 0x2D, 0x2F, 0x34, 0x38, 0xE4},
    {0x45, 0x2E, 0x30, 0x00, 0xE5, 0x50},
    {0x4C, 0x2A, 0x31, 0x28, 0x52, 0x51},
    {0x00, 0x4A, 0x4B, 0x4E, 0x4D, 0x4F},
}};

/// Keys whose factory function is no plain usage: Fn, the knob, and two lighting keys.
constexpr auto SpecialKeys = std::to_array<PlacedEntry>({
    {65, {KeyKind::Keyboard, 0x01, 0x00, 0x00}},
    {90, {KeyKind::Consumer, 0x00, 0xEA, 0x00}},
    {91, {KeyKind::Consumer, 0x00, 0xE9, 0x00}},
    {92, {KeyKind::Keyboard, 0x0E, 0x00, 0x00}},
    {96, {KeyKind::Light, 0x02, 0x02, 0x00}},
    {97, {KeyKind::Light, 0x02, 0x01, 0x00}},
});

/// What the Fn layer does from the factory; keys that aren't listed do nothing.
constexpr auto FnKeys = std::to_array<PlacedEntry>({
    {1, {KeyKind::Keyboard, 0x02, 0x00, 0x00}},  // grave: factory reset
    {5, {KeyKind::Light, 0x08, 0x00, 0x00}},     // L-Ctrl: side light on, off
    {6, {KeyKind::Consumer, 0x00, 0x94, 0x01}},  // F1: my computer
    {11, {KeyKind::Keyboard, 0x03, 0x00, 0x00}}, // L-Win: Win lock
    {12, {KeyKind::Consumer, 0x00, 0x8A, 0x01}}, // F2: mail
    {14, {KeyKind::Keyboard, 0x0A, 0x00, 0x00}}, // W: swap WASD and arrows
    {16, {KeyKind::Light, 0x08, 0x01, 0x00}},    // Z: side light brightness
    {17, {KeyKind::Light, 0x08, 0x03, 0x00}},    // L-Alt: side light colour
    {18, {KeyKind::Consumer, 0x00, 0x21, 0x02}}, // F3: search
    {24, {KeyKind::Consumer, 0x00, 0x23, 0x02}}, // F4: home page
    {30, {KeyKind::Consumer, 0x00, 0x83, 0x01}}, // F5: player
    {36, {KeyKind::Consumer, 0x00, 0xB7, 0x00}}, // F6: stop
    {42, {KeyKind::Consumer, 0x00, 0xB6, 0x00}}, // F7: previous title
    {48, {KeyKind::Consumer, 0x00, 0xCD, 0x00}}, // F8: play, pause
    {54, {KeyKind::Consumer, 0x00, 0xB5, 0x00}}, // F9: next title
    {60, {KeyKind::Consumer, 0x00, 0xE2, 0x00}}, // F10: mute
    {66, {KeyKind::Consumer, 0x00, 0xEA, 0x00}}, // F11: volume down
    {72, {KeyKind::Consumer, 0x00, 0xE9, 0x00}}, // F12: volume up
    {77, {KeyKind::Light, 0x03, 0x01, 0x00}},    // left: backlight slower
    {82, {KeyKind::Light, 0x02, 0x01, 0x00}},    // up: backlight brighter
    {83, {KeyKind::Light, 0x02, 0x02, 0x00}},    // down: backlight darker
    {89, {KeyKind::Light, 0x03, 0x02, 0x00}},    // right: backlight faster
    {90, {KeyKind::Light, 0x02, 0x02, 0x00}},    // knob left: backlight darker
    {91, {KeyKind::Light, 0x02, 0x01, 0x00}},    // knob right: backlight brighter
    {92, {KeyKind::Light, 0x00, 0x00, 0x00}},    // knob press: backlight on, off
});

using MatrixBytes = std::array<quint8, MatrixSize>;

constexpr void place(MatrixBytes &matrix, qsizetype offset, const KeyEntry &entry)
{
    std::ranges::copy(entry.bytes, matrix.begin() + offset);
}

constexpr MatrixBytes DefaultKeyMap = [] {
    MatrixBytes matrix{};
    for (int position = 0; position < int(PlainKeys.size()) * Rows; ++position) {
        const quint8 usage = PlainKeys[position / Rows][position % Rows];
        place(matrix, position * KeyEntry::Size, {KeyKind::Keys, 0, usage, 0});
    }
    for (const PlacedEntry &key : SpecialKeys)
        place(matrix, key.position * KeyEntry::Size, key.entry);
    return matrix;
}();

// The boards' own factory table is one byte early over this range. It stays so: what the keyboard
// returns at the first read replaces the table, and a corrected one would match no board.
constexpr int FnShiftedFrom = 15;
constexpr int FnShiftedTo = 89;

constexpr MatrixBytes DefaultFnMap = [] {
    MatrixBytes matrix{};
    for (const PlacedEntry &key : FnKeys) {
        const bool shifted = key.position >= FnShiftedFrom && key.position <= FnShiftedTo;
        place(matrix, key.position * KeyEntry::Size - (shifted ? 1 : 0), key.entry);
    }
    return matrix;
}();

QByteArray bytesOf(const MatrixBytes &matrix)
{
    return QByteArray(reinterpret_cast<const char *>(matrix.data()), MatrixSize);
}

/// The matrix in force, the one that SetDefaultKeyMap replaces.
QByteArray &currentKeyMatrix()
{
    static QByteArray matrix = bytesOf(DefaultKeyMap);
    return matrix;
}

/// Keys whose default entry holds no usage have a code of their own.
struct OwnCode
{
    quint8 position;
    quint8 code;
};

constexpr auto OwnCodes = std::to_array<OwnCode>({{65, FnKeyCode}, {92, 0xFB}, {96, 0xFC}, {97, 0xFD}});

constexpr int UsageByte = 2;

bool holds(const QByteArray &matrix, int position)
{
    return position >= 0 && position < matrix.size() / KeyEntry::Size;
}

} // namespace

KeyEntry entryAt(const QByteArray &matrix, int position)
{
    KeyEntry entry;
    if (holds(matrix, position))
        std::copy_n(matrix.cbegin() + position * KeyEntry::Size, KeyEntry::Size, entry.bytes.begin());
    return entry;
}

bool setEntryAt(QByteArray &matrix, int position, const KeyEntry &entry)
{
    if (!holds(matrix, position))
        return false;
    std::ranges::copy(entry.bytes, matrix.begin() + position * KeyEntry::Size);
    return true;
}

const QByteArray &defaultKeyMatrix()
{
    return currentKeyMatrix();
}

const QByteArray &defaultFnMatrix()
{
    static const QByteArray matrix = bytesOf(DefaultFnMap);
    return matrix;
}

bool SetDefaultKeyMap(const QByteArray &matrix)
{
    if (matrix.size() < MatrixSize)
        return false;
    currentKeyMatrix() = matrix.first(MatrixSize);
    return true;
}

quint8 CodeOfPosition(quint8 position)
{
    const auto own = std::ranges::find(OwnCodes, position, &OwnCode::position);
    return own != OwnCodes.end() ? own->code : DefaultEntryAt(position).bytes[UsageByte];
}

quint8 PositionOfCode(quint8 code)
{
    const auto own = std::ranges::find(OwnCodes, code, &OwnCode::code);
    if (own != OwnCodes.end())
        return own->position;
    for (int position = 0; position < PositionCount; ++position) {
        if (DefaultEntryAt(quint8(position)).bytes[UsageByte] == code)
            return quint8(position);
    }
    return NoPosition;
}

KeyEntry DefaultEntryAt(quint8 position)
{
    return entryAt(currentKeyMatrix(), position);
}

bool IsModifiedEntry(quint8 position, const KeyEntry &entry)
{
    return entry != DefaultEntryAt(position);
}

} // namespace keys

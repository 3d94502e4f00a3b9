#pragma once

#include <array>
#include <QRect>
#include <QString>
#include <QtGlobal>

/// The board that the on-screen keyboard draws: where each key stands and what is printed on it.
namespace keys {

/// One key. Lengths are device-independent pixels on the keyboard's frame; all keys are KeyHeight high.
struct KeyPlace
{
    quint8 code;
    qint16 left;
    qint16 top;
    qint16 width;
    QStringView legend; ///< as a button's text: "&&" stands for "&"

    constexpr QRect rect() const;
};

inline constexpr int KeyHeight = 48;

/// The knob's halves, in the order in which they stand on the board.
inline constexpr quint8 KnobLeftCode = 234;
inline constexpr quint8 KnobRightCode = 233;

inline constexpr quint8 RightArrowCode = 79;
inline constexpr quint8 LeftArrowCode = 80;
inline constexpr quint8 DownArrowCode = 81;
inline constexpr quint8 UpArrowCode = 82;

/// The keys row by row, from left to right: the order in which keys are counted and selected.
extern const std::array<KeyPlace, 84> KeyboardLayout;

/// The only link from a widget to its key: "pushButton_Hid" and the code in three digits.
QString keyButtonName(quint8 code);

constexpr QRect KeyPlace::rect() const
{
    return QRect(left, top, width, KeyHeight);
}

} // namespace keys

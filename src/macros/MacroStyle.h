#pragma once

#include <QColor>
#include <QString>

/// How the macro page looks: style texts, each built once, and the colours of the squares.
namespace macrostyle {

extern const QString Panels;
extern const QString Legend;
extern const QString AccentButton;
extern const QString PlainButton;
extern const QString RoundButton;
extern const QString NumberBox;
extern const QString SquareBox;
extern const QString SquareButton;
extern const QString Row;
extern const QString SelectedRow;
extern const QString RowButton;
extern const QString RowEdit;
extern const QString ScrollArea;
extern const QString Card;

/// A square's ground and what is written on it.
struct SquareColours
{
    QColor ground;
    QColor border;
    QColor text;
};

inline constexpr SquareColours Press{{0xE6, 0xD9, 0xF9}, {0xD8, 0xBD, 0xFF}, {0x00, 0x00, 0x00}};
inline constexpr SquareColours Release{{0x63, 0x29, 0xB6}, {0x63, 0x29, 0xB6}, {0xFF, 0xFF, 0xFF}};
inline constexpr SquareColours Delay{{0xFF, 0xF3, 0xE2}, {0xFF, 0xD9, 0xA8}, {0x7A, 0x45, 0x00}};
inline constexpr SquareColours Position{{0xF0, 0xF0, 0xF3}, {0xE0, 0xE0, 0xE4}, {0x22, 0x22, 0x22}};

} // namespace macrostyle

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

class QPainter;

/// How a key looks in each of its states. One table of colours serves all keys of all keyboards, so that a
/// change of state costs a repaint of one key and no restyling.
namespace keystyle {

enum class Style : quint8 {
    Base,     ///< a key with its factory function
    Modified, ///< a key with a function of the user's
    Coloured, ///< text and border in the key's own colour
    Hit,      ///< disabled, and reached by the calibration
};

enum class Shape : quint8 {
    Key,
    RoundLeft,  ///< left half of the knob
    RoundRight, ///< right half of the knob
};

struct State
{
    bool enabled;
    bool hovered;
    bool pressed;
    bool checked;
};

struct Colors
{
    QColor background;
    QColor border;
    QColor text;
    int borderWidth = 1; ///< pixels
};

inline constexpr QColor Hover{0xD8, 0xD8, 0xD8};
inline constexpr QColor PlainBorder{0xEA, 0xEA, 0xEA};
inline constexpr QColor DisabledText{0x80, 0x80, 0x80};
inline constexpr QColor HitBackground{0xFF, 0x90, 0x52};
inline constexpr QColor DefaultKeyColor{0x9B, 0x9B, 0x9B};

/// Colours of a key; \a own is the key's own colour for the Coloured style.
Colors colors(Style style, State state, const QColor &own);

/// Outline of a key of that shape that fills the rectangle; a radius too large for it is reduced.
QPainterPath outline(const QRectF &rect, Shape shape, qreal radius);

/// Paints the cap of a key without anything on it. A raised cap has a lower edge like a real one.
void paintCap(QPainter &painter, const QRectF &rect, Shape shape, const Colors &colors, bool raised);

} // namespace keystyle

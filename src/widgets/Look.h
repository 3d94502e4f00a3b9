#pragma once

#include <QColor>

class QFont;
class QPainter;
class QPixmap;
class QPointF;
class QRectF;
class QString;
class QWidget;

/// How the program looks: every colour, radius, gap and text size that more than one place needs, and the few
/// things that all controls draw alike. Lengths are device-independent pixels.
namespace look {

inline constexpr QColor Accent{0x63, 0x29, 0xB6};
inline constexpr QColor AccentHover{0x74, 0x40, 0xC0};
inline constexpr QColor AccentPressed{0x52, 0x20, 0x9A};
inline constexpr QColor OnAccent{0xFF, 0xFF, 0xFF};
inline constexpr QColor RingColor{0x63, 0x29, 0xB6, 102}; // the accent at 40 %

inline constexpr QColor Window{0xFF, 0xFF, 0xFF};
inline constexpr QColor Panel{0xF6, 0xF6, 0xF6};
inline constexpr QColor InnerCard{0xFF, 0xFF, 0xFF};
inline constexpr QColor DeviceCard{0xF4, 0xF4, 0xF4};
inline constexpr QColor DeviceCardHover{0xE0, 0xE0, 0xE0};
inline constexpr QColor DeviceCardHoverBorder{0xB0, 0xB0, 0xB0};
inline constexpr QColor Edit{0xED, 0xED, 0xED};
inline constexpr QColor ControlLine{0xE0, 0xE0, 0xE4}; // around what can be pressed or typed in
inline constexpr QColor TickLine{0x8E, 0x8E, 0x99};    // around what can be ticked: 3:1 on white
inline constexpr QColor FocusLine{0xA1, 0x7F, 0xD3};
inline constexpr QColor Tint{0xFA, 0xF7, 0xFF}; // of what the pointer is on
inline constexpr QColor TintLine{0xD8, 0xBD, 0xFF};
inline constexpr QColor TintPressed{0xF0, 0xE8, 0xFB};
inline constexpr QColor Scroll{0xD0, 0xD0, 0xD6};
inline constexpr QColor Groove{0xE4, 0xE4, 0xEA};
inline constexpr QColor Line{0xE6, 0xE6, 0xEA};

inline constexpr QColor Text{0x22, 0x22, 0x22};
inline constexpr QColor TextSecondary{0x6B, 0x6B, 0x75};
inline constexpr QColor TextDisabled{0xB3, 0xB3, 0xB3};
inline constexpr QColor Placeholder{0x62, 0x62, 0x6C}; // what an empty box says

inline constexpr QColor PressSide{0xFF, 0xA7, 0x3C};
inline constexpr QColor ReleaseSide{0x39, 0xE1, 0xDC};

inline constexpr QColor KeyPlain{0xFB, 0xFB, 0xFB};
inline constexpr QColor KeyModified{0xFA, 0xF7, 0xFF};
inline constexpr QColor KeyModifiedBorder{0xD8, 0xBD, 0xFF};
inline constexpr QColor KeySelected{0x3F, 0x3F, 0x3F};
inline constexpr QColor KeyDisabled{0xEA, 0xEA, 0xEA};

inline constexpr int WindowRadius = 20;
inline constexpr int PanelRadius = 24;
inline constexpr int InnerCardRadius = 20;
inline constexpr int DeviceCardRadius = 32;
inline constexpr int KeyRadius = 10;
inline constexpr int EditRadius = 6;
inline constexpr int PillRadius = 0x4000; // half the height, whatever the height is

inline constexpr int Space4 = 4;
inline constexpr int Space8 = 8;
inline constexpr int Space12 = 12;
inline constexpr int Space16 = 16;
inline constexpr int Space24 = 24;
inline constexpr int Space32 = 32;

inline constexpr int PageTitleSize = 20;
inline constexpr int SectionSize = 18;
inline constexpr int GroupTitleSize = 15;
inline constexpr int GroupTitleWeight = 600;
inline constexpr int BodySize = 14;
inline constexpr int SignSize = 16; // − and + of step buttons
inline constexpr int NoteSize = 13;
inline constexpr int SmallSize = 12;
inline constexpr int KeyCaptionSize = 9;

inline constexpr qreal LeastContrast = 4.5; // of text that can be read

inline constexpr int RingWidth = 2;
inline constexpr int SmallestTarget = 24; // nothing that a hand aims at is smaller

/// The style sheet with what stands here in place of each name that begins with an @, such as @accent or
/// @body. A name that isn't known stays as it is and gives one line in the log. May be called before main().
QString sheet(const QString &text);

/// Sets the widget's style sheet unless it is set already: setting one costs a restyling of all its children.
/// A null widget is ignored.
void setStyleOnce(QWidget *widget, const QString &style);

/// Paints the background and border of the widget's style sheet; for the paintEvent() of translucent windows,
/// for which Qt leaves both out.
void paintStyledBackground(QWidget *widget);

/// The picture at path in the sharpness of the screen that the widget is on; uses "name@2x.png" beside it.
/// A path that can't be read gives a null picture and one line in the log.
QPixmap picture(const QString &path, const QWidget *on);

/// How much two opaque colours stand out from each other: 1 (not at all) to 21 (black and white).
qreal contrast(const QColor &one, const QColor &other);

/// What a translucent colour gives on an opaque ground.
QColor laidOver(const QColor &color, const QColor &ground);

/// The font in another size (pixels) and weight (100 to 900).
QFont sized(const QFont &font, int pixelSize, int weight);

/// The radius as far as the rectangle has room for it.
qreal fittingRadius(const QRectF &rect, qreal radius);

/// The focus ring along the inner side of the rectangle's edge.
void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius);

/// A round white handle with a soft shadow; flat and gray when disabled.
void drawHandle(QPainter &painter, const QPointF &centre, qreal radius, bool enabled);

} // namespace look

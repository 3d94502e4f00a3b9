// How a key is painted; see KeyboardButton.cpp for what it does.

#include "KeyboardButton.h"
#include "KeyboardLayout.h"
#include "Look.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int SignSize = 14;          ///< a letter, a digit or the name of an F key, in pixels
constexpr int WordSize = 12;          ///< a word such as SHIFT
constexpr int StackedSize = 13;       ///< the two signs of a key, one above the other
constexpr int LongestSign = 3;        ///< "F12", or two signs with a space between them
constexpr int LegendMargin = 3;       ///< that a legend leaves free on both sides, in pixels
constexpr int LegendLift = 1;         ///< that a legend goes up by to make room for the values below it
constexpr int CaptionMargin = 2;      ///< between a value and the edge of the key
constexpr int CaptionGap = 2;         ///< between two values side by side
constexpr int PastMiddle = 4;         ///< from the middle of the key to where the values may stand
constexpr qreal CaptionTracking = 96; ///< per cent of a character's width
constexpr qreal FillRadius = 14;
constexpr int FillAlpha = 160;

/// The two sides of a value, and their lighter tones for a key that is dark because it is selected.
constexpr QColor First{0xC8, 0x00, 0xC0};
constexpr QColor FirstOnDark{0xFF, 0x9A, 0xF5};
constexpr QColor Second{0x00, 0x80, 0x80};
constexpr QColor SecondOnDark{0x7D, 0xE8, 0xE8};

constexpr int HoverDarker = 135; ///< per cent, on the darker ground of a key that the pointer is on

/// Draws one line of text, narrowed as far as the rectangle makes it necessary.
void drawFitting(QPainter &painter, const QRectF &rect, Qt::Alignment alignment, const QString &text)
{
    const qreal needed = QFontMetricsF(painter.font()).horizontalAdvance(text);
    if (needed <= rect.width() || needed <= 0) {
        painter.drawText(rect, int(alignment) | Qt::TextDontClip, text);
        return;
    }
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / needed, 1);
    painter.drawText(QRectF(0, 0, needed, rect.height()), int(alignment) | Qt::TextDontClip, text);
    painter.restore();
}

QFont captionFont(const QFont &font)
{
    QFont result = look::sized(font, look::KeyCaptionSize, QFont::Normal);
    result.setLetterSpacing(QFont::PercentageSpacing, CaptionTracking);
    return result;
}

keystyle::Shape shapeOf(quint8 code)
{
    switch (code) {
    case keys::KnobLeftCode:
        return keystyle::Shape::RoundLeft;
    case keys::KnobRightCode:
        return keystyle::Shape::RoundRight;
    default:
        return keystyle::Shape::Key;
    }
}

/// Whether a legend is the two signs of one key, such as "7 &".
bool isTwoSigns(QStringView legend)
{
    return legend.size() == LongestSign && legend[1] == QLatin1Char(' ');
}

/// Whether a legend is short and made of signs; short words like "Esc" are set like the longer ones.
bool isSign(QStringView legend)
{
    return legend.size() == 1 || isTwoSigns(legend) ||
           (legend.startsWith(QLatin1Char('F')) && legend.size() <= LongestSign && legend[1].isDigit());
}

} // namespace

QString KeyboardButton::paintedLegend() const
{
    switch (keyCode) {
    case keys::UpArrowCode:
        return QStringLiteral("↑");
    case keys::DownArrowCode:
        return QStringLiteral("↓");
    case keys::LeftArrowCode:
        return QStringLiteral("←");
    case keys::RightArrowCode:
        return QStringLiteral("→");
    default:
        return text().trimmed().replace(QLatin1String("&&"), QLatin1String("&"));
    }
}

void KeyboardButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (fill.isValid()) {
        paintFilled(painter);
        return;
    }
    const keystyle::State state{isEnabled(), underMouse(), isDown(), isChecked()};
    const keystyle::Colors colors = keystyle::colors(style, state, border);
    const bool raised = state.enabled && !state.pressed && !state.checked;
    keystyle::paintCap(painter, rect(), shapeOf(keyCode), colors,
                       raised && style != keystyle::Style::Coloured);
    paintLegend(painter, colors.text);
    const bool onDark = state.enabled && state.checked && style == keystyle::Style::Base;
    painter.setFont(captionFont(font()));
    if (mode == TwoValues) {
        paintHalves(painter, onDark);
    } else if (mode == CornerValues) {
        paintCorners(painter, onDark);
    }
}

void KeyboardButton::paintFilled(QPainter &painter) const
{
    QColor paint = fill;
    paint.setAlpha(FillAlpha);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(paint);
    const QRectF cap = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawPath(keystyle::outline(cap, shapeOf(keyCode), FillRadius));
    // The panel shines through the fill, which makes every colour lighter than it is.
    const QColor seen = look::laidOver(paint, look::Panel);
    const bool white = look::contrast(Qt::white, seen) >= look::LeastContrast;
    paintLegend(painter, white ? QColor(Qt::white) : look::Text);
}

void KeyboardButton::paintLegend(QPainter &painter, const QColor &color) const
{
    const QString legend = paintedLegend();
    const bool sign = isSign(legend);
    const bool withValues = showsValues() && !fill.isValid();
    QRectF place = QRectF(rect()).adjusted(LegendMargin, 0, -LegendMargin, 0);
    painter.setPen(color);
    if (isTwoSigns(legend) && !withValues) {
        painter.setFont(look::sized(font(), StackedSize, QFont::DemiBold));
        const qreal middle = place.center().y();
        const qreal line = StackedSize + 4;
        drawFitting(painter, {place.left(), middle - line, place.width(), line}, Qt::AlignCenter,
                    legend.right(1));
        drawFitting(painter, {place.left(), middle, place.width(), line}, Qt::AlignCenter, legend.left(1));
        return;
    }
    if (mode == CornerValues && withValues)
        place.translate(0, -LegendLift);
    const bool small = !sign || (withValues && isTwoSigns(legend));
    painter.setFont(look::sized(font(), small ? WordSize : SignSize, QFont::DemiBold));
    drawFitting(painter, place, Qt::AlignCenter, legend);
}

void KeyboardButton::paintHalves(QPainter &painter, bool onDark) const
{
    const QRectF area = QRectF(rect()).adjusted(CaptionMargin, CaptionMargin, -CaptionMargin, -CaptionMargin);
    const qreal height = area.height() / 2 - PastMiddle;
    painter.setPen(onDark ? FirstOnDark : underMouse() ? First.darker(HoverDarker) : First);
    drawFitting(painter, {area.left(), area.top(), area.width(), height}, Qt::AlignCenter, halves[0]);
    painter.setPen(onDark ? SecondOnDark : underMouse() ? Second.darker(HoverDarker) : Second);
    drawFitting(painter, {area.left(), area.bottom() - height, area.width(), height}, Qt::AlignCenter,
                halves[1]);
}

void KeyboardButton::paintCorners(QPainter &painter, bool onDark) const
{
    const QRectF area = QRectF(rect()).adjusted(CaptionMargin, CaptionMargin, -CaptionMargin, -CaptionMargin);
    const qreal width = (area.width() - CaptionGap) / 2;
    const qreal height = area.height() / 2 - PastMiddle;
    const qreal right = area.right() - width;
    const qreal lower = area.bottom() - height;
    painter.setPen(onDark ? FirstOnDark : underMouse() ? First.darker(HoverDarker) : First);
    drawFitting(painter, {area.left(), lower, width, height}, Qt::AlignLeft | Qt::AlignVCenter, corners[0]);
    painter.setPen(onDark ? SecondOnDark : underMouse() ? Second.darker(HoverDarker) : Second);
    constexpr Qt::Alignment AtRight = Qt::AlignRight | Qt::AlignVCenter;
    if (hasExtra)
        drawFitting(painter, {right, area.top(), width, height}, Qt::AlignRight | Qt::AlignTop, extra[0]);
    drawFitting(painter, {right, lower, width, height}, AtRight, hasExtra ? extra[1] : corners[1]);
}

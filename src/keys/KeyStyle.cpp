#include "KeyStyle.h"

#include "Look.h"

#include <QPainter>

namespace keystyle {

namespace {

constexpr QColor RestingText{0x00, 0x00, 0x00};
constexpr qreal HalfKnobRadius = 20;
constexpr qreal LowerEdge = 1;      ///< how far the lower edge of a cap shows, in pixels
constexpr int LowerEdgeShade = 106; ///< per cent darker than the border

/// The style of the whole program writes a key's own colour with red and blue exchanged, and the colours that
/// pages give are chosen for that.
QColor exchanged(const QColor &color)
{
    return QColor(color.blue(), color.green(), color.red());
}

Colors plainColors(State state, const Colors &resting, const QColor &checked)
{
    if (!state.enabled)
        return {look::KeyDisabled, look::KeyDisabled, DisabledText};
    if (state.checked)
        return {checked, checked, Qt::white};
    if (state.pressed)
        return {Hover, resting.border, Qt::white};
    if (state.hovered)
        return {Hover, resting.border, resting.text};
    return resting;
}

} // namespace

Colors colors(Style style, State state, const QColor &own)
{
    constexpr Colors Base{look::KeyPlain, PlainBorder, RestingText};
    constexpr Colors Modified{look::KeyModified, look::KeyModifiedBorder, RestingText};
    switch (style) {
    case Style::Modified:
        return plainColors(state, Modified, look::KeyModifiedBorder);
    case Style::Coloured:
        return {look::KeyPlain, exchanged(own), exchanged(own), 2};
    case Style::Hit:
        if (!state.enabled)
            return {HitBackground, HitBackground, Qt::white};
        break;
    case Style::Base:
        break;
    }
    return plainColors(state, Base, look::KeySelected);
}

QPainterPath outline(const QRectF &rect, Shape shape, qreal radius)
{
    QPainterPath path;
    if (shape == Shape::Key) {
        const qreal fitting = look::fittingRadius(rect, radius);
        path.addRoundedRect(rect, fitting, fitting);
        return path;
    }
    // Twice as wide as the half, so that the round side keeps its full radius; the other half is cut off.
    const qreal beyond = shape == Shape::RoundLeft ? rect.width() : -rect.width();
    QRectF whole = rect;
    if (beyond > 0) {
        whole.setRight(rect.right() + beyond);
    } else {
        whole.setLeft(rect.left() + beyond);
    }
    QPainterPath round;
    round.addRoundedRect(whole, HalfKnobRadius, HalfKnobRadius);
    path.addRect(rect);
    return path.intersected(round);
}

void paintCap(QPainter &painter, const QRectF &rect, Shape shape, const Colors &colors, bool raised)
{
    painter.setPen(Qt::NoPen);
    if (raised) {
        painter.setBrush(colors.border.darker(LowerEdgeShade));
        painter.drawPath(outline(rect, shape, look::KeyRadius));
    }
    const qreal inset = colors.borderWidth / 2.0;
    const QRectF top = rect.adjusted(inset, inset, -inset, -inset - (raised ? LowerEdge : 0));
    painter.setPen(QPen(colors.border, colors.borderWidth));
    painter.setBrush(colors.background);
    painter.drawPath(outline(top, shape, look::KeyRadius - inset));
}

} // namespace keystyle

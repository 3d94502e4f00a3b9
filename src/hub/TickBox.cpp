#include "TickBox.h"

#include "Look.h"

#include <QPainter>

namespace {

constexpr int BoxSize = 20;
constexpr int BoxRadius = 6;
constexpr int RingMargin = 3; // around the box, for the focus ring
constexpr int TextLeft = RingMargin + BoxSize + look::Space12;
constexpr QColor Border(0xB3, 0xB3, 0xB3);
constexpr qreal TickWidth = 2;

// On a box of 20 by 20.
constexpr QPointF TickStart(5, 10.5);
constexpr QPointF TickTurn(8.6, 14);
constexpr QPointF TickEnd(15, 6.8);

} // namespace

TickBox::TickBox(QWidget *parent)
    : QCheckBox(parent)
{
    setCursor(Qt::PointingHandCursor);
}

QSize TickBox::sizeHint() const
{
    return {TextLeft + textWidth(), BoxSize + 2 * RingMargin};
}

bool TickBox::hitButton(const QPoint &position) const
{
    return QRect(0, 0, TextLeft + textWidth(), height()).contains(position);
}

int TickBox::textWidth() const
{
    return fontMetrics().horizontalAdvance(text());
}

void TickBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(RingMargin, (height() - BoxSize) / 2.0, BoxSize, BoxSize);
    if (hasFocus()) {
        look::drawFocusRing(painter, box.adjusted(-RingMargin, -RingMargin, RingMargin, RingMargin),
                            BoxRadius + RingMargin);
    }
    painter.setPen(isChecked() ? QPen(Qt::NoPen) : QPen(underMouse() ? look::Accent : Border, 1.5));
    painter.setBrush(isChecked() ? (isEnabled() ? look::Accent : look::TextDisabled) : look::Window);
    const QRectF frame = isChecked() ? box : box.adjusted(0.75, 0.75, -0.75, -0.75);
    painter.drawRoundedRect(frame, BoxRadius, BoxRadius);
    if (isChecked()) {
        painter.translate(box.topLeft());
        painter.setPen(QPen(look::OnAccent, TickWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(std::array{TickStart, TickTurn, TickEnd}.data(), 3);
        painter.resetTransform();
    }
    painter.setPen(isEnabled() ? look::Text : look::TextDisabled);
    const QRect area(TextLeft, 0, width() - TextLeft, height());
    painter.drawText(area, Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}

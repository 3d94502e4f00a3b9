#include "TravelRuler.h"

#include "Look.h"

#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>

namespace {

constexpr int Margin = 4;
constexpr int LastTick = 34; ///< tenths of a millimetre
constexpr int TicksPerNumber = 5;
constexpr int NumberSize = 8;
constexpr int BarFromLeft = 50;
constexpr int BarFromRight = 30;
constexpr int HousingHeight = 24; ///< the bottom that the key comes down on
constexpr int HousingFromDepth = 20;
constexpr Qt::GlobalColor BarGround = Qt::gray;
constexpr Qt::GlobalColor Housing = Qt::black;

} // namespace

TravelRuler::TravelRuler(QWidget *parent)
    : QLabel(parent)
{
    setAccessibleName(tr("行程测试"));
}

void TravelRuler::setDepth(std::optional<float> newDepth)
{
    const int before = barEnd(depth);
    const int after = barEnd(newDepth);
    depth = newDepth;
    if (before != after)
        update(QRect(barRect().left(), qMin(before, after), barRect().width(), qAbs(after - before) + 1));
}

QRect TravelRuler::barRect() const
{
    return rect().adjusted(BarFromLeft, Margin, -BarFromRight, -Margin);
}

/// The label's last row that the bar reaches. It is counted from the height alone, so that a key that is
/// hardly pressed doesn't show.
int TravelRuler::barEnd(std::optional<float> of) const
{
    return of ? int(float(barRect().height() - HousingFromDepth) * *of) : 0;
}

void TravelRuler::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!barRect().contains(event->rect()))
        paintScale(painter);
    if (barRect().intersects(event->rect()))
        paintBar(painter);
}

void TravelRuler::paintScale(QPainter &painter) const
{
    const QRect inner = rect().adjusted(Margin, Margin, -Margin, -Margin);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(look::sized(font(), NumberSize, QFont::Normal));
    painter.setPen(QPen(Qt::gray, 1));
    const int left = inner.left();
    const int right = inner.right();
    for (int i = 0; i <= LastTick; ++i) {
        const bool numbered = i % TicksPerNumber == 0;
        const int length = numbered ? 10 : 5;
        const double y = inner.top() + i * (inner.height() / double(LastTick));
        painter.drawLine(QPointF(right - 20, y), QPointF(right - 20 + length, y));
        painter.drawLine(QPointF(left + 40, y), QPointF(left + 40 - length, y));
        if (numbered)
            painter.drawText(QPointF(left + 2, y + 4), QString::number(i / 10.0, 'f', 2));
    }
}

void TravelRuler::paintBar(QPainter &painter) const
{
    const QRect bar = barRect();
    QPainterPath shape;
    const qreal radius = look::fittingRadius(bar, look::PillRadius);
    shape.addRoundedRect(bar, radius, radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(shape, Qt::IntersectClip);
    painter.fillRect(bar, BarGround);
    painter.fillRect(bar.adjusted(0, bar.height() - HousingHeight, 0, 0), Housing);
    QRect travel = bar;
    travel.setBottom(barEnd(depth));
    if (depth && travel.isValid())
        painter.fillRect(travel, look::Accent);
}

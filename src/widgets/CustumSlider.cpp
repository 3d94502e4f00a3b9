#include "CustumSlider.h"

#include "AccessibleControls.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr qreal GrooveHeight = 6;
constexpr qreal HandleRadius = 10;
constexpr qreal HandleMargin = 4; // room for shadow and focus ring beside the handle at either end
constexpr int HorizontalThickness = 28;
constexpr int TravelWidth = 40;
constexpr int HaloAlpha = 48;
constexpr QColor DisabledFill(0xCC, 0xCC, 0xD2);

} // namespace

CustumSlider::CustumSlider(QWidget *parent)
    : CustumSlider(Qt::Vertical, parent)
{
}

CustumSlider::CustumSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    accessible::setDefaultName(this, tr("滑块"));
}

void CustumSlider::setFillColor(const QColor &color)
{
    fill = color.isValid() ? color : look::Accent;
    update();
}

QSize CustumSlider::sizeHint() const
{
    return orientation() == Qt::Horizontal ? QSize(160, HorizontalThickness) : QSize(TravelWidth, 128);
}

QSize CustumSlider::minimumSizeHint() const
{
    return orientation() == Qt::Horizontal ? QSize(64, HorizontalThickness) : QSize(TravelWidth, 80);
}

int CustumSlider::valueAt(const QPoint &pointer) const
{
    const bool horizontal = orientation() == Qt::Horizontal;
    const qint64 length = qMax(1, horizontal ? width() : height());
    const qint64 way = qBound<qint64>(0, horizontal ? pointer.x() : qint64(height()) - pointer.y(), length);
    const qint64 range = qint64(maximum()) - minimum();
    return int(minimum() + range * way / length);
}

void CustumSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    dragging = true;
    setSliderDown(true);
    setValue(valueAt(event->position().toPoint()));
    update();
}

void CustumSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (dragging) {
        event->accept();
        setValue(valueAt(event->position().toPoint()));
    } else {
        event->ignore();
    }
}

void CustumSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (dragging && event->button() == Qt::LeftButton) {
        event->accept();
        endDrag();
    } else {
        event->ignore();
    }
}

void CustumSlider::endDrag()
{
    if (!dragging)
        return;
    dragging = false;
    setSliderDown(false);
    update();
}

void CustumSlider::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        endDrag();
    } else if (event->type() == QEvent::LanguageChange) {
        accessible::setDefaultName(this, tr("滑块"));
    }
    QSlider::changeEvent(event);
}

void CustumSlider::hideEvent(QHideEvent *event)
{
    endDrag();
    QSlider::hideEvent(event);
}

qreal CustumSlider::handlePart() const
{
    const double range = double(maximum()) - minimum();
    return range > 0 ? (double(sliderPosition()) - minimum()) / range : 0;
}

void CustumSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (orientation() == Qt::Horizontal) {
        paintHorizontal(painter);
    } else {
        paintVertical(painter);
    }
}

void CustumSlider::paintHandle(QPainter &painter, const QPointF &centre, qreal radius) const
{
    if (isEnabled() && (dragging || underMouse())) {
        QColor halo = fill;
        halo.setAlpha(dragging ? 2 * HaloAlpha : HaloAlpha);
        painter.setBrush(halo);
        const qreal reach = qMin(radius + HandleMargin, qMin(width(), height()) / 2.0);
        painter.drawEllipse(centre, reach, reach);
    }
    look::drawHandle(painter, centre, radius, isEnabled());
    if (hasFocus()) {
        const qreal reach = radius + look::RingWidth;
        look::drawFocusRing(painter, QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach),
                            reach);
    }
}

void CustumSlider::paintHorizontal(QPainter &painter) const
{
    const qreal middle = height() / 2.0;
    const qreal reach = HandleRadius + HandleMargin;
    const QPointF centre(reach + handlePart() * qMax(0.0, width() - 2 * reach), middle);

    QRectF groove(HandleMargin, middle - GrooveHeight / 2, width() - 2 * HandleMargin, GrooveHeight);
    painter.setBrush(look::Groove);
    painter.drawRoundedRect(groove, GrooveHeight / 2, GrooveHeight / 2);
    groove.setRight(centre.x());
    painter.setBrush(isEnabled() ? fill : DisabledFill);
    painter.drawRoundedRect(groove, GrooveHeight / 2, GrooveHeight / 2);
    paintHandle(painter, centre, HandleRadius);
}

void CustumSlider::paintVertical(QPainter &painter) const
{
    const qreal thickness = qMin(TravelWidth, width());
    const QRectF track((width() - thickness) / 2, 0, thickness, height());
    const qreal round = look::fittingRadius(track, thickness / 2);
    const QPointF centre(width() / 2.0, round + (1 - handlePart()) * (height() - 2 * round));

    QPainterPath shape;
    shape.addRoundedRect(track, round, round);
    painter.setBrush(look::Groove);
    painter.drawPath(shape);
    QPainterPath above;
    above.addRect(QRectF(track.topLeft(), QPointF(track.right(), centre.y())));
    painter.setBrush(isEnabled() ? fill : DisabledFill);
    painter.drawPath(shape.intersected(above));
    paintHandle(painter, centre, qMax(1.0, round - look::RingWidth));
}

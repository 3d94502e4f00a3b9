#include "ColorLabel.h"

#include "AccessibleControls.h"
#include "FocusRing.h"
#include "Look.h"

#include <QHash>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr qreal RingInset = 2;
constexpr qreal SwatchInset = 4; ///< beyond the ring's
constexpr qreal RingWidth = 2.0;

/// The selected swatch of each parent.
QHash<const QObject *, ColorLabel *> &selection()
{
    static QHash<const QObject *, ColorLabel *> selected;
    return selected;
}

void drawRounded(QPainter &painter, const QRectF &rect)
{
    const qreal radius = look::fittingRadius(rect, look::PillRadius);
    painter.drawRoundedRect(rect, radius, radius);
}

} // namespace

ColorLabel::ColorLabel(QWidget *parent)
    : QLabel(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    accessible::setRole(this, QAccessible::RadioButton);
    accessible::setOn(this, false);
    FocusRing::follow(this, look::PillRadius);
}

ColorLabel::~ColorLabel()
{
    selection().removeIf([this](const auto &entry) { return entry.value() == this; });
}

void ColorLabel::setColor(const QColor &color)
{
    if (shown == color)
        return;
    shown = color;
    update();
}

bool ColorLabel::isSelected() const
{
    return selectedOf(parent()) == this;
}

void ColorLabel::select()
{
    if (!parent())
        return;
    ColorLabel *former = std::exchange(selection()[parent()], this);
    if (former) {
        accessible::setOn(former, false);
        former->update();
    }
    accessible::setOn(this, true);
    update();
}

ColorLabel *ColorLabel::selectedOf(const QObject *parent)
{
    return parent ? selection().value(parent) : nullptr;
}

void ColorLabel::mousePressEvent(QMouseEvent *)
{
    select(); // and the event is taken: the release comes here too
}

void ColorLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        select();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void ColorLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(RingInset, RingInset, -RingInset, -RingInset);
    if (shown.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(shown);
        drawRounded(painter, ring.adjusted(SwatchInset, SwatchInset, -SwatchInset, -SwatchInset));
    }
    if (isSelected()) {
        painter.setPen(QPen(shown, RingWidth));
        painter.setBrush(Qt::NoBrush);
        drawRounded(painter, ring);
    }
}

#include "ToggleButton.h"

#include "AccessibleControls.h"
#include "FocusRing.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr QSize SwitchSize(52, 24);
constexpr QColor UncheckedKnob(0xE0, 0xE0, 0xE0);
constexpr int KnobInset = 2;
} // namespace

ToggleButton::ToggleButton(QWidget *parent)
    : QCheckBox(parent)
{
    setMinimumSize(SwitchSize);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    // A click with the mouse leaves the focus where it was; Tab reaches the switch.
    setFocusPolicy(Qt::TabFocus);
    FocusRing::follow(this, look::PillRadius);
    accessible::setDefaultName(this, tr("开关"));
}

QSize ToggleButton::sizeHint() const
{
    return SwitchSize;
}

QSize ToggleButton::minimumSizeHint() const
{
    return SwitchSize;
}

bool ToggleButton::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void ToggleButton::mouseReleaseEvent(QMouseEvent *event)
{
    const bool begunElsewhere = event->button() == Qt::LeftButton && !isDown();
    if (begunElsewhere && isEnabled() && hitButton(event->position().toPoint())) {
        click();
        event->accept();
    } else {
        QCheckBox::mouseReleaseEvent(event);
    }
    update();
}

void ToggleButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        accessible::setDefaultName(this, tr("开关"));
    QCheckBox::changeEvent(event);
}

void ToggleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const QRectF pill = QRectF(rect()).adjusted(1, 1, -1, -1);
    const qreal pillRadius = look::fittingRadius(pill, look::PillRadius);
    QColor color = isChecked() ? checkedColor : uncheckedColor;
    if (!isEnabled()) {
        color = Qt::lightGray;
    } else if (underMouse()) {
        color = color.lighter(108);
    }
    painter.setBrush(color);
    painter.drawRoundedRect(pill, pillRadius, pillRadius);

    QRectF knob = pill.adjusted(KnobInset, KnobInset, -KnobInset, -KnobInset);
    if (isChecked()) {
        knob.setLeft(knob.right() - knob.height());
    } else {
        knob.setWidth(knob.height());
    }
    painter.setBrush(isChecked() ? look::OnAccent : UncheckedKnob);
    painter.drawEllipse(knob);
}

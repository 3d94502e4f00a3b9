#include "PickerSlot.h"

#include "AccessibleControls.h"
#include "KeyStyle.h"
#include "Look.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

const QString EmptyText = QStringLiteral("--");
constexpr int Height = 36;
constexpr int SmallestWidth = 84;
constexpr int SmallestText = 11; ///< pixels; what needs more room than that is cut

} // namespace

PickerSlot::PickerSlot(QWidget *parent)
    : QLabel(EmptyText, parent)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_Hover);
    accessible::setRole(this, QAccessible::Button);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PickerSlot::fill(const QString &text)
{
    filled = true;
    setText(text);
    setToolTip(text);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void PickerSlot::empty()
{
    filled = false;
    setText(EmptyText);
    setToolTip({});
    unsetCursor();
    setFocusPolicy(Qt::NoFocus);
}

QSize PickerSlot::sizeHint() const
{
    return {SmallestWidth, Height};
}

void PickerSlot::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    Q_EMIT pressed();
}

void PickerSlot::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT pressed();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void PickerSlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (filled) {
        painter.setPen(QPen(look::KeyModifiedBorder, 1));
        painter.setBrush(underMouse() ? look::TintPressed : look::KeyModified);
    } else {
        painter.setPen(QPen(look::TextDisabled, 1, Qt::DashLine));
    }
    painter.drawRoundedRect(frame, look::KeyRadius, look::KeyRadius);

    const QRect place = rect().adjusted(look::Space8, 0, -look::Space8, 0);
    int size = look::BodySize;
    do {
        painter.setFont(look::sized(font(), size, filled ? QFont::DemiBold : QFont::Normal));
    } while (--size >= SmallestText && painter.fontMetrics().horizontalAdvance(text()) > place.width());
    painter.setPen(filled ? look::Accent : look::TextSecondary);
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
    if (hasFocus())
        look::drawFocusRing(painter, rect(), look::KeyRadius);
}

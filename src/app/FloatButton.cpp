#include "FloatButton.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr qreal ArrowOpacity = 0.6;
constexpr QRgb PillLine = 0x64FFFFFF;
constexpr QRgb PillFill = 0x64646464;
constexpr qreal PillRadius = 16;
constexpr QMargins PillPictureMargins(24, 2, 24, 2);
} // namespace

FloatButton::FloatButton(Look buttonLook, const QString &picturePath, QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
    , look(buttonLook)
    , picture(picturePath)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setCursor(Qt::PointingHandCursor);
    if (look == Look::Arrow)
        setWindowOpacity(ArrowOpacity);
}

void FloatButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (look == Look::Arrow) {
        painter.drawPixmap(rect(), picture);
        return;
    }
    painter.setPen(QColor::fromRgba(PillLine));
    painter.setBrush(QColor::fromRgba(PillFill));
    painter.drawRoundedRect(rect().marginsRemoved({1, 1, 1, 1}), PillRadius, PillRadius);
    painter.drawPixmap(rect().marginsRemoved(PillPictureMargins), picture);
}

void FloatButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT released();
    QDialog::mouseReleaseEvent(event);
}

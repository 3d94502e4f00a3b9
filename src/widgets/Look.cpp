#include "Look.h"

#include <QFont>
#include <QIcon>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QRadialGradient>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

Q_LOGGING_CATEGORY(lcWidgets, "orbe.widgets")

namespace look {

void setStyleOnce(QWidget *widget, const QString &style)
{
    if (widget && widget->styleSheet() != style)
        widget->setStyleSheet(style);
}

void paintStyledBackground(QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}

QPixmap picture(const QString &path, const QWidget *on)
{
    const qreal ratio = on ? on->devicePixelRatioF() : 1.0;
    const QString key = QStringLiteral("look::picture %1 %2").arg(ratio).arg(path);
    QPixmap found;
    // A file may be another one later, so only what is built into the program is remembered.
    const bool isBuiltIn = path.startsWith(u':');
    if (isBuiltIn && QPixmapCache::find(key, &found))
        return found;
    const QPixmap plain(path);
    if (plain.isNull()) {
        qCWarning(lcWidgets) << "no picture at" << path;
        return plain;
    }
    // An icon looks for the @2x file by itself and scales it smoothly to a factor between the two. Every new
    // icon leaves its own copy in Qt's cache.
    found = QIcon(path).pixmap(plain.deviceIndependentSize().toSize(), ratio);
    if (isBuiltIn)
        QPixmapCache::insert(key, found);
    return found;
}

QFont sized(const QFont &font, int pixelSize, int weight)
{
    QFont result(font);
    result.setPixelSize(qMax(1, pixelSize));
    result.setWeight(QFont::Weight(qBound(1, weight, 1000)));
    return result;
}

qreal fittingRadius(const QRectF &rect, qreal radius)
{
    return qBound(0.0, radius, qMax(0.0, qMin(rect.width(), rect.height()) / 2));
}

void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius)
{
    const qreal half = RingWidth / 2.0;
    const QRectF line = rect.adjusted(half, half, -half, -half);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(RingColor, RingWidth));
    painter.setBrush(Qt::NoBrush);
    const qreal fitting = fittingRadius(line, radius - half);
    painter.drawRoundedRect(line, fitting, fitting);
    painter.restore();
}

void drawHandle(QPainter &painter, const QPointF &centre, qreal radius, bool enabled)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (enabled) {
        const QPointF below = centre + QPointF(0, 1);
        const qreal reach = radius + 3;
        QRadialGradient shadow(below, reach);
        shadow.setColorAt(0, QColor(0, 0, 0, 90));
        shadow.setColorAt((radius - 1) / reach, QColor(0, 0, 0, 70));
        shadow.setColorAt(1, QColor(0, 0, 0, 0));
        painter.setBrush(shadow);
        painter.drawEllipse(below, reach, reach);
        painter.setBrush(OnAccent);
    } else {
        painter.setPen(QPen(Line, 1));
        painter.setBrush(Panel);
    }
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

} // namespace look

#include "ProgressBadge.h"

#include "Look.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QSize Preferred(240, 32);
constexpr int SmallestWidth = 130;
constexpr int LineHeight = 4;
constexpr int TextSize = 13;

} // namespace

ProgressBadge::ProgressBadge(QWidget *parent)
    : QProgressBar(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMaximumWidth(Preferred.width());
    setFont(look::sized(font(), TextSize, QFont::Normal));
    setTextVisible(false);
}

void ProgressBadge::setCaption(const QString &text)
{
    setAccessibleName(text);
    setToolTip(text);
    update();
}

QSize ProgressBadge::sizeHint() const
{
    return Preferred;
}

QSize ProgressBadge::minimumSizeHint() const
{
    return {SmallestWidth, Preferred.height()};
}

void ProgressBadge::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect captionRect = rect().adjusted(0, 0, 0, -LineHeight - look::Space4);
    const QString percent = QStringLiteral("%1%").arg(value() * 100 / qMax(1, maximum()));
    const QFontMetrics metrics = fontMetrics();
    const int room = width() - metrics.horizontalAdvance(percent) - look::Space8;
    painter.setPen(look::TextSecondary);
    painter.drawText(captionRect, Qt::AlignRight | Qt::AlignBottom, percent);
    painter.drawText(captionRect, Qt::AlignLeft | Qt::AlignBottom,
                     metrics.elidedText(accessibleName(), Qt::ElideRight, room));

    const QRectF groove(0, height() - LineHeight - 1, width(), LineHeight);
    QPainterPath outline;
    outline.addRoundedRect(groove, LineHeight / 2.0, LineHeight / 2.0);
    painter.fillPath(outline, look::Groove);
    painter.setClipPath(outline);
    const qreal filled = groove.width() * (value() - minimum()) / qMax(1, maximum() - minimum());
    painter.fillRect(QRectF(groove.topLeft(), QSizeF(filled, LineHeight)), look::Accent);
}

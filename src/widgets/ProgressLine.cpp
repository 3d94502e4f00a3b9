#include "ProgressLine.h"

#include "Look.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int LineHeight = 4;

} // namespace

ProgressLine::ProgressLine(QWidget *parent, int inset)
    : QProgressBar(parent)
    , sideInset(inset)
{
    setTextVisible(false);
    parent->installEventFilter(this);
    place();
    hide();
}

void ProgressLine::place()
{
    setGeometry(sideInset, parentWidget()->height() - LineHeight, parentWidget()->width() - 2 * sideInset,
                LineHeight);
}

bool ProgressLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        place();
    return QProgressBar::eventFilter(watched, event);
}

void ProgressLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF groove(rect());
    QPainterPath outline;
    outline.addRoundedRect(groove, LineHeight / 2.0, LineHeight / 2.0);
    painter.fillPath(outline, look::Groove);
    painter.setClipPath(outline);
    const qreal share = qreal(value() - minimum()) / qMax(1, maximum() - minimum());
    painter.fillRect(QRectF(groove.topLeft(), QSizeF(groove.width() * share, LineHeight)), look::Accent);
}

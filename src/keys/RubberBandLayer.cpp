#include "RubberBandLayer.h"

#include <QPainter>

RubberBandLayer::RubberBandLayer(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground); // the style of a page doesn't fill it
    hide();
}

void RubberBandLayer::setBand(const QRect &rect)
{
    updateEdges();
    band = rect;
    setGeometry(parentWidget()->rect());
    raise();
    show();
    updateEdges();
}

void RubberBandLayer::updateEdges()
{
    // Only the lines are painted, so the keys that lie inside need no painting.
    update(QRegion(band.adjusted(-1, -1, 2, 2)) - band.adjusted(2, 2, -2, -2));
}

void RubberBandLayer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(Qt::blue, 0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(band);
}

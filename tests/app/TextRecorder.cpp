#include "TextRecorder.h"

#include <QFontInfo>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

/// Paints nothing and takes down what is written.
class Recorder : public QPaintEngine
{
public:
    Recorder()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        if (item.text().trimmed().isEmpty())
            return;
        const QTransform toDevice = painter()->deviceTransform();
        const QTransform toWindow = toDevice * QTransform::fromScale(1 / paintDevice()->devicePixelRatioF(),
                                                                     1 / paintDevice()->devicePixelRatioF());
        DrawnText drawn;
        drawn.text = item.text();
        drawn.rect = toWindow.mapRect(
            QRectF(base.x(), base.y() - item.ascent(), item.width(), item.ascent() + item.descent()));
        drawn.clip = QRectF(systemClip().boundingRect());
        const qreal ratio = paintDevice()->devicePixelRatioF();
        drawn.clip = QRectF(drawn.clip.topLeft() / ratio, drawn.clip.size() / ratio);
        if (painter()->hasClipping())
            drawn.clip &= toWindow.mapRect(painter()->clipBoundingRect());
        drawn.color = painter()->pen().color();
        drawn.color.setAlphaF(float(drawn.color.alphaF() * painter()->opacity()));
        drawn.pixelSize = QFontInfo(item.font()).pixelSize();
        drawn.bold = item.font().weight() >= QFont::Bold;
        // What is selected in a box comes first; after it the whole text, less that.
        if (!texts.isEmpty() && texts.last().text == drawn.text && texts.last().rect == drawn.rect)
            return;
        texts.append(drawn);
    }

    QList<DrawnText> texts;
};

class Paper : public QPaintDevice
{
public:
    Paper(const QWidget *widget, Recorder *recorder)
        : engine(recorder)
        , size(widget->size())
        , ratio(widget->devicePixelRatioF())
        , dotsPerInch(widget->logicalDpiX())
    {
    }
    QPaintEngine *paintEngine() const override { return engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return qRound(size.width() * ratio);
        case PdmHeight:
            return qRound(size.height() * ratio);
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDevicePixelRatio:
            return qRound(ratio);
        case PdmDevicePixelRatioScaled:
            return qRound(ratio * devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    Recorder *engine;
    QSize size;
    qreal ratio;
    int dotsPerInch;
};

} // namespace

QList<DrawnText> drawnTexts(QWidget *window)
{
    Recorder recorder;
    Paper paper(window, &recorder);
    window->render(&paper);
    return recorder.texts;
}

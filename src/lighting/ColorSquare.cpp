#include "ColorSquare.h"

#include "AccessibleControls.h"
#include "Look.h"

#include <array>
#include <limits>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <vector>

namespace {

constexpr double RingRadius = 8;
constexpr double RingPen = 3;
constexpr double LastDarkValue = 0.5;
constexpr int KeyStep = 1;
constexpr int KeyStride = 10; ///< with Shift
constexpr int FullChannel = std::numeric_limits<quint16>::max();
constexpr int HueSector = 6000; ///< a sixth of the circle, in the hundredths of a degree that QColor counts

/// Kept to 0 to 1; what is no number is 0.
double unit(double value)
{
    return value > 0 ? qMin(value, 1.0) : 0.0;
}

/// How much of each channel a full saturation takes away at a hue.
std::array<double, 3> takenAway(double hue)
{
    const double sixths = qRound(float(hue) * 36000.0F) % 36000 / double(HueSector);
    const int sector = int(sixths);
    const double part = sixths - sector;
    switch (sector) {
    case 0:
        return {0, 1 - part, 1};
    case 1:
        return {part, 0, 1};
    case 2:
        return {1, 0, 1 - part};
    case 3:
        return {1, part, 0};
    case 4:
        return {1 - part, 1, 0};
    default:
        return {0, 1, part};
    }
}

/// The plane of one hue, one pixel wider and higher than \a size. Its colours are those of QColor::fromHsvF,
/// bit for bit; asking that for each of them would take a whole frame of the screen.
QImage planeOf(double hue, const QSize &size)
{
    const int width = qMax(1, size.width());
    const int height = qMax(1, size.height());
    const std::array<double, 3> taken = takenAway(hue);
    std::array<std::vector<double>, 3> left; // of each channel, in each column
    for (size_t channel = 0; channel < left.size(); ++channel) {
        left[channel].resize(size_t(width) + 1);
        for (int x = 0; x <= width; ++x) {
            const double saturation = qRound(float(double(x) / width) * FullChannel) / double(FullChannel);
            left[channel][size_t(x)] = 1.0 - saturation * taken[channel];
        }
    }
    QImage plane(width + 1, height + 1, QImage::Format_RGB32);
    for (int y = 0; y <= height; ++y) {
        const double value = qRound(float(double(height - y) / height) * FullChannel) / double(FullChannel);
        const auto byteOf = [value](double part) { return qRound(value * part * FullChannel) >> 8; };
        auto *line = reinterpret_cast<QRgb *>(plane.scanLine(y));
        for (size_t x = 0; x <= size_t(width); ++x)
            line[x] = qRgb(byteOf(left[0][x]), byteOf(left[1][x]), byteOf(left[2][x]));
    }
    return plane;
}

} // namespace

ColorSquare::ColorSquare(QWidget *parent)
    : QFrame(parent)
{
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ColorSquare::setColor(const QColor &color)
{
    hueShown = qMax(0.0F, color.hueF());
    saturationShown = color.saturationF();
    valueShown = color.valueF();
    update();
}

void ColorSquare::setHue(double hue)
{
    hueShown = unit(hue);
    reportPending = true;
    update();
}

void ColorSquare::setSaturation(double saturation)
{
    saturationShown = unit(saturation);
    update();
}

void ColorSquare::setValue(double value)
{
    valueShown = unit(value);
    update();
}

void ColorSquare::setCheckedColor(char checked)
{
    mode = checked;
    update();
}

void ColorSquare::render()
{
    const QSize wanted = size().expandedTo(QSize(1, 1)) + QSize(1, 1);
    if (image.size() == wanted && qFuzzyCompare(imageHue + 1, hueShown + 1))
        return;
    image = planeOf(hueShown, size());
    imageHue = hueShown;
}

QColor ColorSquare::colorUnderPointer()
{
    if (image.isNull())
        render();
    const QPoint pixel = pointer.toPoint();
    return image.pixelColor(qBound(0, pixel.x(), image.width() - 1),
                            qBound(0, pixel.y(), image.height() - 1));
}

void ColorSquare::movePointer(const QPointF &position)
{
    pointer =
        QPointF(qBound(0.0, position.x(), double(width())), qBound(0.0, position.y(), double(height())));
    update();
    Q_EMIT colorSelected(colorUnderPointer());
}

void ColorSquare::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        movePointer(event->position());
    } else {
        event->ignore();
    }
}

void ColorSquare::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        movePointer(event->position());
    } else {
        event->ignore();
    }
}

void ColorSquare::keyPressEvent(QKeyEvent *event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? KeyStride : KeyStep;
    switch (event->key()) {
    case Qt::Key_Left:
        movePointer(pointer - QPointF(step, 0));
        break;
    case Qt::Key_Right:
        movePointer(pointer + QPointF(step, 0));
        break;
    case Qt::Key_Up:
        movePointer(pointer - QPointF(0, step));
        break;
    case Qt::Key_Down:
        movePointer(pointer + QPointF(0, step));
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void ColorSquare::paintEvent(QPaintEvent *)
{
    render();
    {
        QPainter painter(this);
        painter.drawImage(0, 0, image);
        painter.setRenderHint(QPainter::Antialiasing);
        const double valueThere = height() > 0 ? (height() - pointer.y()) / height() : 0;
        painter.setPen(QPen(valueThere <= LastDarkValue ? Qt::white : Qt::black, RingPen));
        painter.drawEllipse(pointer, RingRadius, RingRadius);
        if (hasFocus())
            look::drawFocusRing(painter, rect(), 0);
    }
    if (std::exchange(reportPending, false))
        Q_EMIT colorSelected(colorUnderPointer());
}

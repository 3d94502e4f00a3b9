#include "ColorSquare.h"

#include "AccessibleControls.h"
#include "Look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <vector>

namespace {

constexpr double CornerRadius = 8;
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

/// A channel of 0 to 1 in eight bits, rounded twice as QColor rounds.
QRgb toByte(double channel)
{
    const int raised = int(std::lround(channel * FullChannel)) + 128;
    return QRgb((raised - (raised >> 8)) >> 8); // a division by 257
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

/// \a part of \a whole, in the steps in which QColor counts.
double stepped(int part, int whole)
{
    return int(std::lround(float(double(part) / whole) * FullChannel)) / double(FullChannel);
}

/// The plane of one hue, one pixel wider and higher than \a size. Its colours are those of QColor::fromHsvF,
/// bit for bit; asking that for each of them would take a whole frame of the screen.
QImage planeOf(double hue, const QSize &size)
{
    const int width = qMax(1, size.width());
    const int height = qMax(1, size.height());
    const std::array<double, 3> taken = takenAway(hue);
    const size_t fullChannel = size_t(std::find(taken.begin(), taken.end(), 0.0) - taken.begin());
    const size_t other = (fullChannel + 1) % 3;
    const size_t another = (fullChannel + 2) % 3;
    std::vector<double> left(size_t(width) + 1); // of the other two, in each column
    std::vector<double> leftToo(left.size());
    for (int x = 0; x <= width; ++x) {
        left[size_t(x)] = 1.0 - stepped(x, width) * taken[other];
        leftToo[size_t(x)] = 1.0 - stepped(x, width) * taken[another];
    }
    constexpr std::array Shifts{16, 8, 0};
    QImage plane(width + 1, height + 1, QImage::Format_RGB32);
    for (int y = 0; y <= height; ++y) {
        const double value = stepped(height - y, height);
        const QRgb full = 0xFF000000U | toByte(value) << Shifts[fullChannel];
        auto *line = reinterpret_cast<QRgb *>(plane.scanLine(y));
        for (size_t x = 0; x < left.size(); ++x)
            line[x] = full | toByte(value * left[x]) << Shifts[other] |
                      toByte(value * leftToo[x]) << Shifts[another];
    }
    return plane;
}

} // namespace

ColorSquare::ColorSquare(QWidget *parent)
    : QFrame(parent)
{
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    accessible::setRole(this, QAccessible::ColorChooser);
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

void ColorSquare::renderPlane()
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
        renderPlane();
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
    renderPlane();
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(image);
        painter.drawRoundedRect(rect(), CornerRadius, CornerRadius);
        painter.setBrush(Qt::NoBrush);
        const double valueThere = height() > 0 ? (height() - pointer.y()) / height() : 0;
        painter.setPen(QPen(valueThere <= LastDarkValue ? Qt::white : Qt::black, RingPen));
        painter.drawEllipse(pointer, RingRadius, RingRadius);
        if (hasFocus())
            look::drawFocusRing(painter, rect(), CornerRadius);
    }
    if (std::exchange(reportPending, false))
        Q_EMIT colorSelected(colorUnderPointer());
}

#include "ScreenPipette.h"

#include "LightingLog.h"
#include "Look.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

using namespace std::chrono_literals;

namespace {

constexpr QSize PipetteSize(64, 64);
constexpr QSize CursorSize(32, 32);
constexpr auto LookInterval = 10ms;
constexpr auto CursorDelay = 100ms;
const QString CursorPicture = QStringLiteral(":/images/pickup2.png");

/// One pixel of the screen; null if it can't be read.
QImage screenPixel(const QPoint &position)
{
    QScreen *screen = QGuiApplication::screenAt(position);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    const QPoint onScreen = position - screen->geometry().topLeft();
    return screen->grabWindow(0, onScreen.x(), onScreen.y(), 1, 1).toImage();
}

} // namespace

ScreenPipette::ScreenPipette(QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowOpacity(0);
    setFixedSize(PipetteSize);
    timer.setInterval(LookInterval);
    connect(&timer, &QTimer::timeout, this, &ScreenPipette::followPointer);
}

void ScreenPipette::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    lastPosition = QCursor::pos();
    move(lastPosition - rect().center());
    timer.start();
    QTimer::singleShot(CursorDelay, this, &ScreenPipette::showCursor);
}

void ScreenPipette::hideEvent(QHideEvent *event)
{
    timer.stop();
    QDialog::hideEvent(event);
}

void ScreenPipette::showCursor()
{
    // The tip of the pipette is its lower left end.
    const QPixmap picture =
        look::picture(CursorPicture, this)
            .scaled(CursorSize * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    setCursor(QCursor(picture, 0, CursorSize.height() - 1));
}

void ScreenPipette::followPointer()
{
    const QPoint position = QCursor::pos();
    if (position == lastPosition)
        return;
    lastPosition = position;
    const QImage pixel = screenPixel(position);
    if (pixel.isNull()) {
        qCDebug(lcLighting) << "The screen can't be read at" << position;
    } else {
        lastPixel = pixel;
        Q_EMIT colorSeen(pixel.pixelColor(0, 0));
    }
    move(position - rect().center());
    update();
}

void ScreenPipette::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle(0, 0, height(), height());
    QPainterPath inside;
    inside.addEllipse(circle);
    painter.setClipPath(inside);
    if (lastPixel.isNull()) {
        painter.fillRect(circle, Qt::red);
    } else {
        painter.drawImage(circle, lastPixel);
    }
    painter.setClipping(false);
    painter.setPen(QPen(look::Line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle.adjusted(0.5, 0.5, -0.5, -0.5));
}

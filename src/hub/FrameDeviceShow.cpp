#include "FrameDeviceShow.h"

#include "DeviceBattery.h"
#include "DeviceNameText.h"
#include "Look.h"
#include "ui_FrameDeviceShow.h"

#include <array>
#include <chrono>
#include <QCoreApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

using namespace std::chrono_literals;

namespace {

constexpr auto FirstReportDelay = 2000ms;
constexpr auto ReportPeriod = 10000ms;
constexpr auto OpenDelay = 50ms;

constexpr int KeyboardWidth = 970;
constexpr int SmallDeviceWidth = 280;
constexpr int ReceiverType = 2; ///< a device type of custom lists, shown like a mouse
constexpr int PictureMargin = 40;
constexpr int PictureHeight = 210;
constexpr int CardMargin = 80;
constexpr int SmallestCard = 290;

constexpr int BatteryStep = 20; ///< percent for each of the battery pictures
constexpr std::array BatteryImages{"batt-low.png", "batt-25.png", "batt-50.png", "batt-75.png",
                                   "batt-full.png"};
constexpr std::array ConnectionImages{"usb.png", "2.4g.png", "ble.png"};

const QString NormalStyle = QStringLiteral(
    "#FrameDeviceShow{background-color:#F4F4F4; border-radius:32px; border: 1px solid transparent;}");
const QString HoverStyle = QStringLiteral(
    "#FrameDeviceShow{background-color:#E0E0E0; border-radius:32px; border: 1px solid #B0B0B0;}");
const QString TipStyle = QStringLiteral("QToolTip{background-color:#F0F8FF; color:#333333; font-size:12px;}");

std::array<QPointer<FrameDeviceShow>, FrameDeviceShow::PoolSize> &pool()
{
    static std::array<QPointer<FrameDeviceShow>, FrameDeviceShow::PoolSize> cards;
    return cards;
}

QPointer<FrameDeviceShow> &selectedCard()
{
    static QPointer<FrameDeviceShow> card;
    return card;
}

QString resource(const char *image)
{
    return QLatin1String(":/images/dev/") + QLatin1String(image);
}

QString batteryImage(int percent)
{
    const int step = (percent - 1) / BatteryStep;
    return resource(BatteryImages[size_t(qBound(0, step, int(BatteryImages.size()) - 1))]);
}

QString imageFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/images/");
}

/// The picture of a device, empty if there is none. The name comes from a file that anyone may edit, so it is
/// only compared with what the folder holds and never becomes a part of a path.
QString imageOf(const QString &deviceName)
{
    const QStringList present = QDir(imageFolder()).entryList(QDir::Files);
    const QString file = deviceName + QLatin1String(".png");
    const QString dashed = QString(file).replace(QLatin1Char(' '), QLatin1Char('-'));
    for (const QString &wanted : {file, dashed}) {
        if (present.contains(wanted))
            return imageFolder() + wanted;
    }
    return {};
}

QSize fitted(const QSize &picture, int available)
{
    const double ratio = double(picture.width()) / picture.height();
    if (ratio > 1) {
        const int height = int(available / ratio);
        return height > PictureHeight ? QSize(int(ratio * PictureHeight), PictureHeight)
                                      : QSize(available, height);
    }
    const int width = int(ratio * PictureHeight);
    return width > available ? QSize(available, int(available / ratio)) : QSize(width, PictureHeight);
}

} // namespace

FrameDeviceShow::FrameDeviceShow(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameDeviceShow>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, NormalStyle);
    auto *timer = new QTimer(this);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, &FrameDeviceShow::report);
    timer->start(ReportPeriod);
    if (!selectedCard())
        selectedCard() = this;
}

FrameDeviceShow::~FrameDeviceShow() = default;

FrameDeviceShow *FrameDeviceShow::acquire(int index, QWidget *parent)
{
    if (index < 0 || index >= PoolSize)
        return nullptr;
    auto &card = pool()[size_t(index)];
    if (!card)
        card = new FrameDeviceShow(parent);
    return card;
}

void FrameDeviceShow::hideFrom(int index)
{
    for (int i = qMax(0, index); i < PoolSize; ++i) {
        if (const auto &card = pool()[size_t(i)])
            card->hide();
    }
}

void FrameDeviceShow::setScrollArea(QScrollArea *area)
{
    scrollArea = area;
}

void FrameDeviceShow::setDevice(DeviceEnumInfo *shown)
{
    if (!shown)
        return;
    if (shown != device) { // what a pooled card showed before says nothing about this device
        ui->labelPower->setPixmap(look::picture(resource(BatteryImages.back()), this));
        ui->labelPower->setToolTip({});
    }
    device = shown;
    setImage(imageOf(device->displayName), device->deviceType);
    ui->labelPower->setHidden(device->connectionType == UsbConnection);
    const size_t connection = device->connectionType;
    connectionImage = resource(ConnectionImages[connection < ConnectionImages.size() ? connection : 0]);
    ui->labelType->setPixmap(look::picture(connectionImage, this));
    showName();
    QTimer::singleShot(FirstReportDelay, this, &FrameDeviceShow::report);
}

void FrameDeviceShow::setImage(const QString &path, int deviceType)
{
    if (deviceType == KeyboardType)
        setFixedWidth(KeyboardWidth);
    else if (deviceType == MouseType || deviceType == ReceiverType)
        setFixedWidth(SmallDeviceWidth);

    deviceImage = path;
    QPixmap picture(path);
    if (picture.isNull()) {
        deviceImage = imageFolder() + QStringLiteral("default%1.png").arg(deviceType);
        picture.load(deviceImage);
    }
    if (!picture.isNull()) {
        const QSize size = fitted(picture.size(), width() - PictureMargin);
        ui->labelImage->setFixedSize(size);
        setFixedWidth(qMax(size.width() + CardMargin, SmallestCard));
    }
    ui->labelImage->setScaledContents(true);
    ui->labelImage->setPixmap(picture);
}

void FrameDeviceShow::report()
{
    if (!device || device->connectionType == UsbConnection)
        return;
    const auto battery = readBattery(*device);
    if (!battery)
        return;
    const QString image = batteryImage(*battery);
    const QString tip = tr("剩余电量") + QStringLiteral(": %1%").arg(*battery);
    ui->labelPower->setPixmap(look::picture(image, this));
    ui->labelPower->setToolTip(tip);
    look::setStyleOnce(ui->labelPower, TipStyle);
    ui->labelPower->update();
    setAccessibleDescription(tip);
    Q_EMIT onReport(device, image, connectionImage, tip, TipStyle);
}

bool FrameDeviceShow::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        scrollSideways(static_cast<QWheelEvent *>(event)->angleDelta().y());
        event->accept();
        return true;
    case QEvent::Enter:
        look::setStyleOnce(this, HoverStyle);
        break;
    case QEvent::Leave: // a selected card too: the pointer says more than an old press
        look::setStyleOnce(this, NormalStyle);
        break;
    case QEvent::MouseButtonPress:
        openSoon();
        break;
    case QEvent::KeyPress:
        if (const int key = static_cast<QKeyEvent *>(event)->key();
            key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
            select();
            openSoon();
            return true;
        }
        break;
    case QEvent::Paint: {
        const bool painted = QFrame::event(event);
        paintFocus();
        return painted;
    }
    default:
        break;
    }
    return QFrame::event(event);
}

void FrameDeviceShow::mousePressEvent(QMouseEvent *event)
{
    select();
    QFrame::mousePressEvent(event);
}

/// The name at the width that the card has for it, and whole for the tip and for screen readers.
void FrameDeviceShow::showName()
{
    const QMargins margins = ui->layoutCard->contentsMargins();
    const int icons =
        (ui->labelPower->isHidden() ? 1 : 2) * (ui->labelType->width() + ui->layoutName->spacing());
    const int room = width() - margins.left() - margins.right() - icons - 2 * ui->layoutName->spacing();
    devicename::show(ui->labelDeviceName, device->displayName, room);
    setAccessibleName(device->displayName);
}

void FrameDeviceShow::select()
{
    if (selectedCard())
        look::setStyleOnce(selectedCard(), NormalStyle);
    selectedCard() = this;
    look::setStyleOnce(this, HoverStyle);
}

void FrameDeviceShow::openSoon()
{
    if (!device)
        return;
    QTimer::singleShot(OpenDelay, this, [this, pressed = device, image = deviceImage] {
        Q_EMIT onClicked(pressed, image);
        report();
    });
}

void FrameDeviceShow::scrollSideways(int distance)
{
    if (!scrollArea)
        return;
    QScrollBar *bar = scrollArea->horizontalScrollBar();
    bar->setValue(bar->value() - distance);
}

void FrameDeviceShow::paintFocus()
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    look::drawFocusRing(painter, QRectF(rect()), look::DeviceCardRadius);
}

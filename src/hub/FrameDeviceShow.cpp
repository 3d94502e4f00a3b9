#include "FrameDeviceShow.h"

#include "AccessibleControls.h"
#include "DeviceBattery.h"
#include "DeviceNameText.h"
#include "DevicePicture.h"
#include "Look.h"
#include "ui_FrameDeviceShow.h"

#include <array>
#include <chrono>
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

constexpr int BatteryStep = 20; ///< percent for each of the battery pictures
constexpr std::array BatteryImages{"batt-low.png", "batt-25.png", "batt-50.png", "batt-75.png",
                                   "batt-full.png"};
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

} // namespace

FrameDeviceShow::FrameDeviceShow(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameDeviceShow>())
{
    ui->setupUi(this);
    accessible::setRole(this, QAccessible::Button);
    look::setStyleOnce(this, NormalStyle);
    ui->labelState->hide();
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
    showTrouble();
    setImage(devicepicture::ofName(device->displayName), device->deviceType);
    ui->labelPower->setHidden(device->connectionType == UsbConnection);
    connectionImage = devicepicture::ofConnection(device->connectionType);
    ui->labelType->setPixmap(look::picture(connectionImage, this));
    showName();
    QTimer::singleShot(FirstReportDelay, this, &FrameDeviceShow::report);
}

void FrameDeviceShow::setImage(const QString &path, int deviceType)
{
    deviceImage = devicepicture::show(this, ui->labelImage, path, deviceType, trouble != DeviceTrouble::None);
}

/// A device that is still online, but was not opened by the last pass, says so.
void FrameDeviceShow::showTrouble()
{
    trouble = devicetrouble::ofPath(device->devicePath);
    const QString badge = devicetrouble::badge(trouble);
    ui->labelState->setText(badge);
    ui->labelState->setHidden(badge.isEmpty());
    setToolTip(devicetrouble::advice(trouble));
    setAccessibleDescription(badge.isEmpty() ? ui->labelPower->toolTip()
                                             : badge + QLatin1Char('\n') + toolTip());
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
    case QEvent::LanguageChange:
        if (device)
            showTrouble();
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

#include "FrameAbsentDevice.h"

#include "DeviceNameText.h"
#include "DevicePicture.h"
#include "Look.h"
#include "ui_FrameDeviceShow.h"

#include <QEvent>
#include <QPainter>

namespace {

const QString CardStyle = QStringLiteral(
    "#FrameAbsentDevice{background-color:#F9F9FA; border-radius:32px; border: 1px dashed #D6D6DC;}");

constexpr int IconsRoom = 80; ///< that the name leaves for the connection, with the gaps
const QString NameStyle = QStringLiteral("QLabel { font-size: 18px; font-weight: 600; color: #6B6B75; }");

} // namespace

FrameAbsentDevice::FrameAbsentDevice(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameDeviceShow>())
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("FrameAbsentDevice"));
    look::setStyleOnce(this, CardStyle);
    look::setStyleOnce(ui->labelDeviceName, NameStyle);
    ui->labelImage->unsetCursor();
    ui->labelPower->hide();
}

FrameAbsentDevice::~FrameAbsentDevice() = default;

void FrameAbsentDevice::setDevice(const AbsentDevice &absent)
{
    device = absent;
    devicepicture::show(this, ui->labelImage, devicepicture::ofName(device.name), device.deviceType, true);
    ui->labelType->setPixmap(look::picture(devicepicture::ofConnection(device.connectionType), this));
    devicename::show(ui->labelDeviceName, device.name, width() - IconsRoom);
    showTexts();
}

void FrameAbsentDevice::showTexts()
{
    const QString badge = devicetrouble::badge(device.trouble);
    const QString advice = devicetrouble::advice(device.trouble);
    ui->labelState->setText(badge);
    ui->labelState->show();
    setToolTip(advice);
    setAccessibleName(device.name);
    setAccessibleDescription(badge + QLatin1Char('\n') + advice);
}

void FrameAbsentDevice::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    QFrame::changeEvent(event);
}

void FrameAbsentDevice::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    look::drawFocusRing(painter, QRectF(rect()), look::DeviceCardRadius);
}

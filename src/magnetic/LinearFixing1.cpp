#include "LinearFixing1.h"

#include "CalibrationStyle.h"
#include "DialogDeviceConnect.h"
#include "LinearFixing2.h"
#include "Look.h"
#include "ui_LinearFixing1.h"

#include <array>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>

namespace {

const QString Backdrop = look::sheet(QStringLiteral(
    "LinearFixing1 { background-color: rgba(120, 120, 120, 0.8); border-radius: @cardRadius; }"));

constexpr std::array TextSizes{look::BodySize, 13, 12, 11}; ///< the largest that the box has room for

QRect placeOver(const QWidget *parent)
{
    if (parent)
        return parent->frameGeometry();
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

} // namespace

LinearFixing1::LinearFixing1(const QString &title, const QString &text, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LinearFixing1>())
{
    ui->setupUi(this);
    calibrationstyle::cover(this, placeOver(parent));
    look::setStyleOnce(this, Backdrop);
    calibrationstyle::dressBox(ui->pContentWidget, ui->pushButtonCancel, ui->pushButtonStart);
    if (!title.isEmpty())
        ui->labelTitle->setText(title);
    if (!text.isEmpty())
        ui->labelText->setText(text);
    setWindowTitle(ui->labelTitle->text());
    fitText();
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->pushButtonStart, &QPushButton::clicked, this, &LinearFixing1::calibrate);
}

LinearFixing1::~LinearFixing1() = default;

/// The box has one size in every language: long texts are written smaller.
void LinearFixing1::fitText()
{
    ui->pContentWidget->ensurePolished();
    ui->pContentWidget->layout()->activate();
    const QRect room = ui->labelText->contentsRect();
    for (const int size : TextSizes) {
        ui->labelText->setStyleSheet(QStringLiteral("font-size: %1px;").arg(size));
        ui->labelText->ensurePolished();
        if (ui->labelText->heightForWidth(room.width()) <= room.height())
            break;
    }
}

void LinearFixing1::calibrate()
{
    const QPointer<DialogDeviceConnect> connection(DialogDeviceConnect::instance());
    if (!connection)
        return reject();
    connection->DoStartCalibration();
    LinearFixing2 progress(frameGeometry(), this);
    // A start is passed over while the keyboard is read, and a keyboard that comes back knows of none.
    connect(connection, &DialogDeviceConnect::onReadDone, connection,
            &DialogDeviceConnect::DoStartCalibration);
    progress.exec();
    if (connection) {
        disconnect(connection, &DialogDeviceConnect::onReadDone, connection,
                   &DialogDeviceConnect::DoStartCalibration);
        connection->DoStopCalibration();
    }
    reject();
}

void LinearFixing1::paintEvent(QPaintEvent *)
{
    look::paintStyledBackground(this);
}

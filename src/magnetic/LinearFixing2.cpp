#include "LinearFixing2.h"

#include "CalibrationStyle.h"
#include "DialogDeviceConnect.h"
#include "KeyMatrix.h"
#include "ui_LinearFixing2.h"

#include <QKeyEvent>
#include <QtEndian>

namespace {

constexpr quint16 Calibrated = 700;
constexpr quint16 CalibratedShort = 64;
constexpr qsizetype ShortPosition = 92; ///< the one key whose range is far smaller

} // namespace

LinearFixing2::LinearFixing2(const QRect &screenRect, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LinearFixing2>())
{
    ui->setupUi(this);
    calibrationstyle::cover(this, screenRect);
    calibrationstyle::dressBox(ui->MyContentWidget, ui->pushButtonCancel, ui->pushButtonFinish);
    ui->frameKeyboard->lockKeyboard();
    for (QObject *object : std::initializer_list<QObject *>{this, ui->pushButtonCancel, ui->pushButtonFinish})
        object->installEventFilter(this);
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->pushButtonFinish, &QPushButton::clicked, this, &QDialog::accept);
    if (const DialogDeviceConnect *connection = DialogDeviceConnect::instance())
        connect(connection, &DialogDeviceConnect::onCalibration, this, &LinearFixing2::showCalibrated);
}

LinearFixing2::~LinearFixing2() = default;

bool LinearFixing2::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const bool movesFocus = press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab;
        if (!movesFocus && !press->modifiers().testFlag(Qt::ControlModifier))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

/// A little-endian reading of 16 bits for each position, as many as there are.
void LinearFixing2::showCalibrated(const QByteArray &scan)
{
    const auto readings = qMin<qsizetype>(scan.size() / 2, keys::PositionCount);
    for (qsizetype position = 0; position < readings; ++position) {
        const auto reading = qFromLittleEndian<quint16>(scan.constData() + 2 * position);
        if (reading >= (position == ShortPosition ? CalibratedShort : Calibrated))
            ui->frameKeyboard->markKeyHit(keys::CodeOfPosition(quint8(position)));
    }
}

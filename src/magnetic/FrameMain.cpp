#include "FrameMain.h"

#include "DialogDeviceConnect.h"
#include "EffectBinding.h"
#include "Look.h"
#include "MagnetTables.h"
#include "Travel.h"
#include "ui_FrameMain.h"

#include <QEvent>

namespace {

constexpr quint8 AllKeys = 0xFF;
constexpr quint8 Commit = 1;

const QString Style = look::sheet(
    QStringLiteral("#frameInfo, #frameLinear { background-color: @panel; border-radius: @panelRadius; }"
                   "#frameLinear #labelTitle1 { color: @text; font-size: @groupTitle; font-weight: 600; }"));

/// The picture in the largest size that fits into the room, at most its own.
QPixmap fitted(const QPixmap &picture, const QSize &room, qreal scale)
{
    const QSize largest = (QSizeF(room) * scale).toSize().boundedTo(picture.size());
    QPixmap result = picture.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    result.setDevicePixelRatio(scale);
    return result;
}

} // namespace

FrameMain::FrameMain(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::FrameMain>())
    , connection(DialogDeviceConnect::instance())
{
    look::setStyleOnce(this, Style);
    ui->setupUi(this);
    ui->labelPic->setPixmap(look::picture(QStringLiteral(":/images/Orbe-Kb3.png"), this));
    ui->labelPic->hide();
    connectTravels();
    new EffectBinding({ui->frameLEDMode, ui->frameLEDColor, ui->frameLEDBright, ui->frameLEDSpeed},
                      connection, this);
}

FrameMain::~FrameMain() = default;

// The two controls are titled the other way round from what the tables mean on the page of the switches. That
// is how users know this page, so it stays.
void FrameMain::connectTravels()
{
    connect(ui->frameRTSetting, &ModuleRtSet::onSetValue, this, [this](float millimetres) {
        writeToAllKeys({magnettable::Actuation, magnettable::Release}, millimetres);
    });
    connect(ui->frameLinearSet, &ModuleLinear::onSetValue, this, [this](float millimetres, int type) {
        const bool pressing = type == 0;
        writeToAllKeys({pressing ? magnettable::RapidPress : magnettable::RapidRelease}, millimetres);
    });
}

// Not a group of writes: those take turns of the pump, and the keyboard would trail seconds behind a drag.
void FrameMain::writeToAllKeys(std::initializer_list<quint8> tables, float millimetres)
{
    if (!connection)
        return;
    for (const quint8 table : tables)
        connection->DoSetMagnetism(table, AllKeys, travel::toRaw(millimetres), Commit);
}

void FrameMain::setDevicePicture(const QString &path)
{
    const QPixmap picture(path);
    if (!picture.isNull()) {
        const QMargins margins = ui->layoutInfo->contentsMargins();
        const QSize room = ui->frameInfo->size().shrunkBy(margins);
        ui->labelPic->setPixmap(fitted(picture, room, devicePixelRatioF()));
    }
    ui->labelPic->show();
}

void FrameMain::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QFrame::changeEvent(event);
}

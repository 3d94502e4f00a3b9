#include "EffectBinding.h"

#include "CommandCatalogue.h"
#include "CommandRows.h"
#include "DialogDeviceConnect.h"
#include "LightingLog.h"
#include "ModuleEfColor.h"
#include "ModuleEfLumi.h"
#include "ModuleEfMode.h"
#include "ModuleEfSpeed.h"

#include <utility>

namespace {

constexpr qsizetype LightReply = 4; ///< bytes of a light reply that are used
constexpr int SpeedByte = 2;

} // namespace

EffectBinding::EffectBinding(const Controls &shown, DialogDeviceConnect *keyboard, QObject *parent)
    : QObject(parent)
    , controls(shown)
    , connection(keyboard)
{
    if (!connection)
        return;
    connectWrites();
    connect(connection, &DialogDeviceConnect::onReadBack, this, &EffectBinding::takeReply);
}

void EffectBinding::connectWrites()
{
    connect(controls.mode, &ModuleEfMode::onModeChanged, this, [this](int mode, uchar option) {
        if (!lightReady())
            return;
        if (mode == ModuleEfMode::Darken) {
            connection->DoSetLedOnOff(option != 0);
        } else {
            connection->DoSetLedEffect(mode, option);
        }
    });
    connect(controls.brightness, &ModuleEfLumi::onBrightChanged, this, [this](int bright) {
        if (lightReady())
            connection->DoSetLedBrightness(bright);
    });
    connect(controls.speed, &ModuleEfSpeed::onSpeedChanged, this, [this](uchar speed) {
        if (lightReady())
            connection->DoSetLedSpeed(speed);
    });
    connect(controls.color, &ModuleEfColor::onSetColor, this, [this](const QColor &color, int option) {
        if (lightReady())
            connection->DoSetLedColor(color, option);
    });
    connect(controls.color, &ModuleEfColor::onSetSideLed, connection, &DialogDeviceConnect::DoSetSideLed);
}

/// False if there is no connection. The row of the light shows a speed that was read as users count it,
/// whereas a write sends the row's byte as it stands. Before the first write after a read the keyboard's own
/// byte takes its place; otherwise a change of, say, the brightness alone would turn slow into fast.
bool EffectBinding::lightReady()
{
    if (!connection)
        return false;
    if (speedRead && !connection->isReadingAll()) {
        CommandRows *rows = connection->commandRows();
        rows->setByte(rows->rowOf(command::SetLedParam), SpeedByte, *std::exchange(speedRead, std::nullopt));
    }
    return true;
}

void EffectBinding::takeReply(const QByteArray &reply)
{
    const quint8 answered = reply.isEmpty() ? 0 : quint8(reply.at(0));
    if (answered == command::GetSideLedParam) {
        controls.color->setSideLed(reply);
    } else if (answered == command::GetLedParam) {
        if (reply.size() < LightReply) {
            qCWarning(lcLighting) << "A light of" << reply.size() << "bytes is not shown";
            return;
        }
        speedRead = quint8(reply.at(2));
        controls.mode->setMode(quint8(reply.at(1)));
        controls.speed->setSpeed(FastestSpeed - quint8(reply.at(2)));
        controls.brightness->setBright(quint8(reply.at(3)));
    }
}

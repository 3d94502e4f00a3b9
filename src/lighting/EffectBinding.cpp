#include "EffectBinding.h"

#include "CommandCatalogue.h"
#include "CommandRows.h"
#include "DialogDeviceConnect.h"
#include "LightingLog.h"
#include "ModuleEfColor.h"
#include "ModuleEfLumi.h"
#include "ModuleEfMode.h"
#include "ModuleEfSpeed.h"

#include <array>
#include <utility>

namespace {

constexpr qsizetype LightReply = 4;                ///< bytes of a light reply that are used
constexpr std::array BytesNotShown{2, 4, 5, 6, 7}; ///< of the light's row: speed, option, colour

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

/// False if there is no connection. The row of the light shows a speed that was read as users count it, and
/// no colour that was read, whereas a write sends the row's bytes as they stand. Before the first write after
/// a read the keyboard's own bytes take their place; otherwise a change of, say, the brightness alone would
/// turn slow into fast and any colour into white.
bool EffectBinding::lightReady()
{
    if (!connection)
        return false;
    if (connection->isReadingAll())
        return true;
    CommandRows *rows = connection->commandRows();
    const int row = rows->rowOf(command::SetLedParam);
    const QByteArray light = std::exchange(lightRead, {});
    for (const int byte : BytesNotShown) {
        if (byte < light.size())
            rows->setByte(row, byte, quint8(light.at(byte)));
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
        lightRead = reply;
        controls.mode->setMode(quint8(reply.at(1)));
        controls.speed->setSpeed(FastestSpeed - quint8(reply.at(2)));
        controls.brightness->setBright(quint8(reply.at(3)));
    }
}

// What the connection does with the keyboard's settings and its light. Most of these are written as a row of
// the catalogue, which keeps the bytes that an operation isn't about.

#include "CommandCatalogue.h"
#include "CommandRows.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"
#include "SettingsFrames.h"

#include <QColor>

using namespace std::chrono_literals;

namespace {

constexpr auto ProfileReadDelay = 500ms;

constexpr int MusicEffect = 22;
constexpr int OptionStep = 16;
constexpr int OptionLowNibble = 7;
constexpr int LastOptionWithoutColour = 6;

constexpr quint32 SecondsPerMinute = 60;

} // namespace

void DialogDeviceConnect::DoSetProfile(quint8 layer)
{
    cache.currentProfile = layer;
    pump.enqueue(settingsframes::setProfile(layer), CommandPump::Kick::Immediate);
    QTimer::singleShot(ProfileReadDelay, Qt::PreciseTimer, this, &DialogDeviceConnect::DoReadAll);
}

void DialogDeviceConnect::writeRow(quint8 rowCommand, std::initializer_list<RowByte> bytes)
{
    const int row = rows->rowOf(rowCommand);
    for (const RowByte &byte : bytes)
        rows->setByte(row, byte.number, byte.value);
    BuildRowCommand(row, true);
}

void DialogDeviceConnect::DoSetReportRate(quint8 value)
{
    cache.reportRate = value;
    writeRow(command::SetReport, {{2, value}});
}

void DialogDeviceConnect::DoSetDebounce(quint8 value)
{
    cache.debounce = value;
    writeRow(command::SetDebounce, {{1, value}});
}

void DialogDeviceConnect::DoSetLedOnOff(bool off)
{
    writeRow(command::SetLedOnOff, {{1, !off}, {2, !off}});
}

void DialogDeviceConnect::DoSetLedEffect(int effect, quint8 option)
{
    musicOn = effect == MusicEffect;
    const int low = effect == PictureEffect ? 0 : OptionLowNibble;
    writeRow(command::SetLedParam, {{1, quint8(effect)}, {4, quint8(option * OptionStep + low)}});
}

void DialogDeviceConnect::DoSetLedSpeed(quint8 speed)
{
    writeRow(command::SetLedParam, {{2, quint8(FastestSpeed - speed)}});
}

void DialogDeviceConnect::DoSetLedBrightness(int brightness)
{
    writeRow(command::SetLedParam, {{3, quint8(brightness)}});
}

void DialogDeviceConnect::DoSetLedColor(const QColor &colour, int option)
{
    if (option <= LastOptionWithoutColour) {
        writeRow(command::SetLedParam, {{4, quint8(option)}});
        return;
    }
    writeRow(command::SetLedParam, {{4, quint8(option)},
                                    {5, quint8(colour.red())},
                                    {6, quint8(colour.green())},
                                    {7, quint8(colour.blue())}});
}

void DialogDeviceConnect::DoSetSideLed(const QByteArray &block)
{
    if (block.isEmpty()) {
        qCWarning(lcDevice) << "An empty side-light block is not sent";
        return;
    }
    pump.enqueue(settingsframes::setSideLed(block), CommandPump::Kick::Immediate);
}

void DialogDeviceConnect::DoSetKbOption(quint8 index, quint8 value)
{
    QByteArray &block = cache.kbOptions;
    if (index + 1 >= block.size()) {
        qCWarning(lcDevice) << "Option" << index << "isn't in the keyboard's" << block.size() << "bytes";
        return;
    }
    block[0] = char(command::SetKbOption);
    block[index + 1] = char(value);
    pump.enqueue(block, CommandPump::Kick::Immediate);
}

quint8 DialogDeviceConnect::GetKbOption(quint8 index) const
{
    return index + 1 < cache.kbOptions.size() ? quint8(cache.kbOptions.at(index + 1)) : 0;
}

void DialogDeviceConnect::DoSetSleepTime(int minutes, int slot)
{
    if (readingAll)
        return;
    if (slot >= 0 && slot < int(cache.sleepTimes.size()))
        cache.sleepTimes[size_t(slot)] = quint16(quint32(minutes) * SecondsPerMinute);
    pump.enqueue(settingsframes::setSleepTimes(cache.sleepTimes), CommandPump::Kick::Immediate);
}

void DialogDeviceConnect::GetSleepTimes(std::array<quint16, 4> &out) const
{
    out = cache.sleepTimes;
}

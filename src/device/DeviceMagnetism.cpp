// What the connection does with magnetic switches: their tables, the key test and the calibration.

#include "DeviceLog.h"
#include "DialogDeviceConnect.h"
#include "KeyMatrix.h"
#include "MagnetFrames.h"

using namespace std::chrono_literals;

namespace {

constexpr quint64 SensorPages = 4;
constexpr auto CalibrationPeriod = 120ms;

quint8 positionOf(quint8 keyCode)
{
    return keyCode == magnetframes::AllKeys ? magnetframes::AllKeys : keys::PositionOfCode(keyCode);
}

} // namespace

void DialogDeviceConnect::DoSetMagnetism(quint8 number, quint8 keyCode, quint32 value, quint8 commit)
{
    if (readingAll)
        return;
    const quint8 position = positionOf(keyCode);
    if (position == magnetframes::AllKeys && keyCode != magnetframes::AllKeys)
        qCWarning(lcDevice) << "No key has code" << keyCode << "so that table" << number
                            << "is written for all keys";
    pump.enqueue(magnetframes::setValue(number, position, value, commit), CommandPump::Kick::Immediate);
    SetMagnetism(number, position, value);
}

quint32 DialogDeviceConnect::GetMagnetism(quint8 number, quint8 position) const
{
    return cache.magnetism(number, position);
}

void DialogDeviceConnect::SetMagnetism(quint8 number, quint8 position, quint32 value)
{
    cache.setMagnetism(number, position, value);
}

quint8 DialogDeviceConnect::GetKeyMode(quint8 keyCode) const
{
    return quint8(GetMagnetism(magnettable::Mode, positionOf(keyCode)));
}

quint8 DialogDeviceConnect::GetKeyOption(quint8 position) const
{
    return quint8(GetMagnetism(magnettable::Partner, position));
}

void DialogDeviceConnect::DoSetKeyFlag(quint8 keyCode, bool on)
{
    const quint32 mode = GetMagnetism(magnettable::Mode, positionOf(keyCode));
    DoSetMagnetism(magnettable::Mode, keyCode, on ? mode | KeyMode::Flag : mode & KeyMode::Bits, 1);
}

void DialogDeviceConnect::DoStartKeyTest()
{
    if (readingAll)
        return;
    Q_EMIT onKeyTesting(true);
    cache.calibrationBuffer.clear();
    pump.enqueue(magnetframes::switchKeyTest(true), CommandPump::Kick::Immediate);
}

void DialogDeviceConnect::DoStopKeyTest()
{
    if (readingAll)
        return;
    Q_EMIT onKeyTesting(false);
    pump.clearQueue();
    pump.enqueue(magnetframes::switchKeyTest(false), CommandPump::Kick::Immediate);
}

void DialogDeviceConnect::DoStartCalibration()
{
    if (readingAll)
        return;
    calibrating = true;
    if (!calibrationTimer) {
        calibrationTimer = new QTimer(this);
        calibrationTimer->setTimerType(Qt::PreciseTimer);
        connect(calibrationTimer, &QTimer::timeout, this, &DialogDeviceConnect::calibrationTick);
    }
    cache.calibrationBuffer.clear();
    pump.enqueue(magnetframes::switchCalibration(true), CommandPump::Kick::Immediate);
    calibrationTimer->start(CalibrationPeriod);
}

// The count goes on from one calibration to the next, so that a scan may begin in its middle.
void DialogDeviceConnect::calibrationTick()
{
    const auto page = quint8(calibrationTicks++ % SensorPages);
    pump.enqueue(magnetframes::readPage(magnettable::Sensor, page), CommandPump::Kick::Deferred);
}

void DialogDeviceConnect::DoStopCalibration()
{
    calibrating = false;
    if (calibrationTimer)
        calibrationTimer->stop();
    pump.clearQueue();
    pump.enqueue(magnetframes::switchCalibration(false), CommandPump::Kick::Immediate);
}

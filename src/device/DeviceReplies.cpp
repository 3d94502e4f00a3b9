// What the connection does with what comes back from the keyboard.

#include "CommandCatalogue.h"
#include "CommandRows.h"
#include "ConsoleLog.h"
#include "DeviceLog.h"
#include "DialogDeviceConnect.h"
#include "KeyMatrix.h"
#include "PictureFrames.h"
#include "ui_DialogDeviceConnect.h"

#include <algorithm>
#include <array>
#include <hidapi/hidapi.h>
#include <QDebug>
#include <QtEndian>

namespace {

constexpr quint8 ReadReplyBit = 0x80;
constexpr quint8 LastCalibrationPage = 3;
constexpr qsizetype LoggedFrameLength = 8;

constexpr quint8 KeyTestReportId = 0x05;
constexpr quint8 KeyTestMark = 0x1B;
constexpr float FullTravel = 720.0f;
constexpr size_t InputReportLength = 64;
constexpr int MostReportsPerPoll = 64; ///< a flood doesn't hold up the pages

quint8 byteAt(const QByteArray &data, qsizetype index)
{
    return index < data.size() ? quint8(data.at(index)) : 0;
}

} // namespace

void DialogDeviceConnect::handleReply(const QByteArray &reply)
{
    showReplyInRow(reply);
    dispatch(reply);
    Q_EMIT onReadBack(reply);
    log->add(pump.lastFrame().first(std::min(LoggedFrameLength, pump.lastFrame().size())), false);
    log->add(reply, true);
}

void DialogDeviceConnect::showReplyInRow(const QByteArray &reply)
{
    const quint8 answered = byteAt(reply, 0);
    if (!(answered & ReadReplyBit))
        return;
    const int row = rows->rowOf(answered);
    for (int number = 1; row >= 0 && number <= 7 && number < reply.size(); ++number)
        rows->setByte(row, number, byteAt(reply, number));
}

// A reply is taken for the answer to the last frame sent, whatever it says itself, and the frame tells which
// table, page or layer it is about. Values that a short reply doesn't hold stay as they were.
void DialogDeviceConnect::dispatch(const QByteArray &reply)
{
    const QByteArray frame = pump.lastFrame();
    switch (byteAt(frame, 0)) {
    case command::GetReport:
        if (reply.size() > 2)
            cache.reportRate = byteAt(reply, 2);
        break;
    case command::GetProfile:
        if (reply.size() > 1)
            Q_EMIT onUpdataLayer(qint8(reply.at(1)));
        break;
    case command::GetDebounce:
        if (reply.size() > 1)
            cache.debounce = byteAt(reply, 1);
        break;
    case command::GetLedParam:
        cache.storeLedParams(reply);
        showLightInRow(reply, command::SetLedParam);
        break;
    case command::GetSideLedParam:
        cache.storeSideLedParams(reply);
        showLightInRow(reply, command::SetSideLedParam);
        break;
    case command::GetKbOption:
        cache.kbOptions = reply;
        qCDebug(lcDevice) << "get_:" << reply.toHex().toUpper();
        DoSendCommand(command::GetProfile, 1, false);
        break;
    case command::GetKeyMatrix:
        cache.appendKeyPage(byteAt(frame, 4), reply);
        break;
    case command::GetUserPicture:
        cache.appendPicturePage(byteAt(frame, 3), reply);
        if (byteAt(frame, 3) == pictureframes::ReadPages - 1)
            Q_EMIT onGetPictrue(cache.userPicture);
        break;
    case command::GetInfo:
        takeIdentity(reply);
        break;
    case command::GetFn:
        cache.appendFnPage(byteAt(frame, 2), reply);
        break;
    case command::GetSleepTime:
        cache.storeSleepTimes(reply);
        break;
    case command::ReadMagnetTable:
        takeMagnetPage(reply);
        break;
    default:
        break;
    }
}

void DialogDeviceConnect::showLightInRow(const QByteArray &reply, quint8 rowCommand)
{
    const int row = rows->rowOf(rowCommand);
    if (row < 0 || reply.size() < 4)
        return;
    rows->setByte(row, 1, byteAt(reply, 1));
    rows->setByte(row, 2, quint8(FastestSpeed - byteAt(reply, 2)));
    rows->setByte(row, 3, byteAt(reply, 3));
}

void DialogDeviceConnect::takeIdentity(const QByteArray &reply)
{
    cache.storeInfo(reply);
    ui->labelVersion->setText(QString::asprintf("Ver:0x%03X Id:%d[%03X]", cache.firmwareVersion,
                                                int(cache.deviceId), cache.deviceId));
    DoSendCommand(command::GetKbOption, 1, false);
}

void DialogDeviceConnect::takeMagnetPage(const QByteArray &reply)
{
    const quint8 number = byteAt(pump.lastFrame(), 1);
    if (!calibrating || number != magnettable::Sensor) {
        cache.appendMagnetPage(number, reply);
        return;
    }
    cache.appendCalibrationPage(reply);
    if (byteAt(pump.lastFrame(), 3) == LastCalibrationPage)
        Q_EMIT onCalibration(std::exchange(cache.calibrationBuffer, {}));
}

// A tick takes whatever waits: with one report for each, a keyboard that sends one every 20 ms would soon be
// far ahead of what is shown.
void DialogDeviceConnect::pollInput()
{
    inputPollTimer.stop();
    for (int i = 0; i < MostReportsPerPoll && inputHandle && !readingAll; ++i) {
        std::array<quint8, 1024> buffer{};
        const int length = hid_read(inputHandle.get(), buffer.data(), InputReportLength);
        if (length <= 0)
            break;
        const auto used = std::min<qsizetype>(length, InputReportLength);
        const QByteArray report(reinterpret_cast<const char *>(buffer.data()), used);
        log->add(report, true);
        if (buffer[0] == KeyTestReportId || buffer[1] == KeyTestMark)
            takeKeyTestSample(report);
    }
    inputPollTimer.start();
}

void DialogDeviceConnect::takeKeyTestSample(const QByteArray &report)
{
    const quint16 raw = quint16(byteAt(report, 2) | (byteAt(report, 3) << 8));
    keyTravel = float(raw) / FullTravel;
    Q_EMIT onKeyTest();
}

void DialogDeviceConnect::saveMatrix()
{
    const QByteArray &matrix = cache.keyMatrix[0];
    if (!keys::SetDefaultKeyMap(matrix)) {
        qCWarning(lcDevice) << "The key matrix isn't whole; the default one stays";
        return;
    }
    for (int position = 0; position < keys::PositionCount; ++position) {
        const KeyEntry entry = keys::entryAt(matrix, position);
        const auto &bytes = entry.bytes;
        qCDebug(lcDevice).noquote() << QString::asprintf("%3d,%3d,%3d,%3d,  // %3d  0x%08X", bytes[0],
                                                         bytes[1], bytes[2], bytes[3], position,
                                                         qFromBigEndian<quint32>(bytes.data()));
    }
}

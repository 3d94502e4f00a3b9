#include "DeviceBattery.h"

#include "DeviceEnumInfo.h"
#include "HidHandle.h"

#include <array>
#include <chrono>
#include <hidapi/hidapi.h>
#include <QThread>

using namespace std::chrono_literals;

namespace {

constexpr int Rounds = 5;
constexpr int FullCharge = 100; ///< percent

using Milliseconds = std::chrono::milliseconds;

void sleep(Milliseconds time)
{
    QThread::msleep(static_cast<unsigned long>(time.count()));
}

/// The status command of the cloud family. The receiver answers it without its keyboard; the charge is what
/// the keyboard told last, and is up to date once the answer says that the keyboard is there.
int askCloud(hid_device *device)
{
    constexpr size_t ReportSize = 65; // with the report id
    constexpr quint8 StatusCommand = 0xF7;
    constexpr size_t Checksum = 8;
    constexpr size_t Charge = 2;
    constexpr size_t Online = 6;
    constexpr auto AnswerDelay = 100ms;

    std::array<quint8, 120> request{};
    request[1] = StatusCommand;
    request[Checksum] = quint8(0xFF - request[1] - request[2]);
    std::array<quint8, 1024> reply{};
    int received = 0;
    for (int round = 0; round < Rounds; ++round) {
        hid_send_feature_report(device, request.data(), ReportSize);
        sleep(AnswerDelay);
        received = hid_get_feature_report(device, reply.data(), ReportSize);
        if (reply[Online] == 1)
            break;
    }
    return received > 0 ? reply[Charge] : 0;
}

/// The status command of the WS family. Values above 100 percent mean that the keyboard doesn't know yet.
int askWs(hid_device *device)
{
    constexpr std::array<quint8, 8> Request{0x04, 0x00, 0x00, 0x1A, 0x06, 0x00, 0x00, 0x00};
    constexpr size_t ReplySize = 16;
    constexpr size_t Charge = 8;
    constexpr auto AnswerDelay = 30ms;
    constexpr Milliseconds ReadLimit = 50ms;

    int battery = 0;
    for (int round = 0; round < Rounds; ++round) {
        hid_write(device, Request.data(), Request.size());
        sleep(AnswerDelay);
        std::array<quint8, ReplySize> reply{};
        if (hid_read_timeout(device, reply.data(), reply.size(), int(ReadLimit.count())) > 0)
            battery = reply[Charge];
        if (battery <= FullCharge)
            break;
    }
    return battery;
}

} // namespace

std::optional<int> readBattery(const DeviceEnumInfo &device)
{
    if (device.family != CloudFamily && device.family != WsFamily)
        return 0;
    const HidHandle handle = HidHandle::open(device.devicePath.toUtf8());
    if (!handle)
        return std::nullopt;
    return device.family == CloudFamily ? askCloud(handle.get()) : askWs(handle.get());
}

#include "WiredProbe.h"

#include "CommandCatalogue.h"
#include "DeviceEnumInfo.h"
#include "Framing.h"

#include <algorithm>
#include <hidapi/hidapi.h>
#include <QtEndian>

using namespace std::chrono_literals;

namespace {

constexpr quint8 SetReceiverMode = 0xF6;
constexpr quint8 GetReceiverState = 0xF7;
constexpr quint8 FetchForwarded = 0xFC;
constexpr quint8 ForwardingMode = 0x0A;

constexpr auto DeviceAnswerTime = 150ms;
constexpr auto ReceiverAnswerTime = 100ms;
constexpr auto PauseBeforeRetry = 50ms;
constexpr int MostIdentityAnswers = 6;
constexpr int MostReceiverPolls = 5;

/// Above it a receiver speaks for itself, and not a keyboard.
constexpr quint32 LargestKeyboardId = 0x1000;

// In a reply, counted with the report id.
constexpr std::size_t CommandAt = 1;
constexpr std::size_t IdAt = 2;
constexpr std::size_t OnlineAt = 6;

} // namespace

WiredProbe::WiredProbe(HidHandle openHandle, const QString &handlePath, const HidEntry &device,
                       const ScanStop &stopFlag)
    : handle(std::move(openHandle))
    , path(handlePath)
    , vendorId(device.vendorId)
    , productId(device.productId)
    , stop(stopFlag)
{
}

ProbedIdentity WiredProbe::run()
{
    quint32 id = 0;
    if (!askDevice(id))
        return {};
    if (id >= 1 && id <= LargestKeyboardId)
        return {id, UsbConnection};
    return askThroughReceiver();
}

/// False if the device was unplugged or the thread is to leave. A round without the awaited answer is not
/// counted, deliberately: a keyboard that is still busy starting is waited for.
bool WiredProbe::askDevice(quint32 &id)
{
    int answers = 0;
    while (exchange(command::GetInfo, DeviceAnswerTime)) {
        if (reply[CommandAt] == command::GetInfo) {
            id = idInReply();
            if (id != 0 || ++answers == MostIdentityAnswers)
                return true;
        } else if (isGone()) {
            return false;
        }
        if (!stop.pause(PauseBeforeRetry))
            return false;
    }
    return false;
}

ProbedIdentity WiredProbe::askThroughReceiver()
{
    const bool asked = exchange(SetReceiverMode, ReceiverAnswerTime, ForwardingMode) &&
                       pollReceiver([this] { return reply[OnlineAt] == 1; }) &&
                       exchange(command::GetInfo, ReceiverAnswerTime) &&
                       pollReceiver([this] { return reply[CommandAt] == 0; }) &&
                       exchange(FetchForwarded, ReceiverAnswerTime);
    if (!asked || received <= 0)
        return {};
    return {idInReply(), ReceiverConnection};
}

/// Asks for the receiver's state until it is \a ready or was asked often enough; false if the thread is to
/// leave.
template <typename Ready>
bool WiredProbe::pollReceiver(Ready ready)
{
    for (int poll = 0; poll < MostReceiverPolls; ++poll) {
        if (!exchange(GetReceiverState, ReceiverAnswerTime))
            return false;
        if (ready())
            return true;
        if (!stop.pause(PauseBeforeRetry))
            return false;
    }
    return true;
}

/// Sends a request, waits and reads; false if the thread is to leave. Whether the device took part is in
/// `sent` and `received`.
bool WiredProbe::exchange(quint8 command, std::chrono::milliseconds wait, quint8 argument)
{
    const char bare[] = {char(command), char(argument)};
    const QByteArray request = framing::wrapWired(framing::close(QByteArray(bare, sizeof bare)));
    sent = hid_send_feature_report(handle.get(), reinterpret_cast<const unsigned char *>(request.constData()),
                                   std::size_t(request.size())) >= 0;
    if (!stop.pause(wait))
        return false;
    reply[0] = 0; // the report id to read
    received = hid_get_feature_report(handle.get(), reply.data(), reply.size());
    return !stop.asked();
}

/// Whether the device was unplugged since it was opened. Failing calls alone don't say so; but where it was
/// pulled out and put back, only a new handle reaches it.
bool WiredProbe::isGone()
{
    if (sent || received >= 0)
        return false;
    const auto listed = listHid(vendorId, productId);
    if (std::none_of(listed.begin(), listed.end(), [this](const HidEntry &it) { return it.path == path; }))
        return true;
    if (HidHandle again = HidHandle::open(path.toUtf8()))
        handle = std::move(again);
    return false;
}

quint32 WiredProbe::idInReply() const
{
    return qFromLittleEndian<quint32>(reply.data() + IdAt);
}

#include "NativeKeyboard.h"

#include "Framing.h"

namespace sim {

Page statusPage(bool busy, Byte battery, bool online)
{
    return {Byte{busy}, battery, 0, 0, 0, Byte{online}};
}

NativeKeyboard::NativeKeyboard(const Model &model, const DeviceOptions &options)
    : Device(model)
    , program(model.deviceId, model.firmware)
{
    program.state.battery = options.battery;
}

Outcome NativeKeyboard::receive(Channel channel, ReportType type, ByteView report, TimePoint now)
{
    if (channel == Channel::BootKeyboard) // its lamps
        return type == ReportType::Output ? Outcome::silent() : Outcome::refused();
    const bool wireless = channel == Channel::Bluetooth;
    if (wireless && type == ReportType::Feature)
        return receiveStatusRequest(report);
    if (channel == Channel::KeyTest || wireless != (type == ReportType::Output)) {
        ++faults.misrouted;
        return Outcome::refused();
    }
    const auto frame = wireless ? unwrapWireless(report, faults) : unwrapWired(report, faults);
    const Answer answer = frame ? program.execute(*frame, now) : std::nullopt;
    if (!answer)
        return Outcome::silent();
    return Outcome::answered(wireless ? wrapWireless(*answer) : wrapWired(*answer));
}

Outcome NativeKeyboard::receiveStatusRequest(ByteView report)
{
    const auto frame = unwrapWired(report, faults);
    if (!frame || !frame->checksumOk() || frame->command() != StatusCommand)
        return Outcome::refused();
    return Outcome::answered(wrapWired(statusPage(false, program.state.battery, true)));
}

std::optional<Bytes> NativeKeyboard::takeInput(Channel channel, TimePoint now)
{
    return channel == Channel::KeyTest ? program.sensors.takeReport(now) : std::nullopt;
}

std::optional<TimePoint> NativeKeyboard::nextInput(Channel channel) const
{
    return channel == Channel::KeyTest ? program.sensors.nextReport() : std::nullopt;
}

} // namespace sim

#include "Receiver.h"

#include "Framing.h"

#include <utility>

namespace sim {
namespace {

constexpr Byte IdentityCommand = 0x8F;
constexpr Byte ModeCommand = 0xF6;
constexpr Byte ForwardMode = 0x0A;
constexpr Byte FetchCommand = 0xFC;

/// Counts a scripted number of polls down; true once it is used up.
bool usedUp(unsigned &polls)
{
    if (polls == 0)
        return true;
    --polls;
    return false;
}

} // namespace

Receiver::Receiver(const Model &model, const DeviceOptions &options)
    : Device(model)
{
    if (const Model *paired = findModel(model.paired)) {
        DeviceOptions keyboardOptions;
        keyboardOptions.battery = options.battery;
        keyboard = std::make_unique<NativeKeyboard>(*paired, keyboardOptions);
    }
    script.paired = keyboard != nullptr;
}

Outcome Receiver::receive(Channel channel, ReportType type, ByteView report, TimePoint now)
{
    if (channel == Channel::BootKeyboard)
        return type == ReportType::Output ? Outcome::silent() : Outcome::refused();
    if (channel != Channel::Command || type != ReportType::Feature) {
        ++faults.misrouted;
        return Outcome::refused();
    }
    const auto frame = unwrapWired(report, faults);
    if (!frame)
        return Outcome::silent();
    if (!frame->checksumOk()) {
        ++faults.badChecksums;
        return Outcome::silent();
    }
    const Answer answer = execute(*frame, now);
    return answer ? Outcome::answered(wrapWired(*answer)) : Outcome::silent();
}

Answer Receiver::execute(const Frame &frame, TimePoint now)
{
    switch (frame.command()) {
    case ModeCommand:
        forwardNext = frame[1] == ForwardMode;
        pollsToOnline = script.pollsUntilOnline;
        fetched = {};
        return frame.acknowledgement();
    case StatusCommand:
        return status();
    case FetchCommand:
        forwardNext = false;
        return std::exchange(fetched, {});
    default:
        break;
    }
    if (forwardNext)
        return forward(frame, now);
    if (frame.command() == IdentityCommand)
        return identity();
    return script.paired ? keyboard->firmware()->execute(frame, now) : std::nullopt;
}

Answer Receiver::forward(const Frame &frame, TimePoint now)
{
    forwardNext = false;
    pollsToAnswer = script.pollsUntilAnswered;
    if (script.paired)
        fetched = keyboard->firmware()->execute(frame, now).value_or(Page{});
    return frame.acknowledgement();
}

Page Receiver::status()
{
    const bool online = usedUp(pollsToOnline) && script.paired;
    return statusPage(!usedUp(pollsToAnswer), online ? keyboard->firmware()->state.battery : Byte{0}, online);
}

/// The receiver's own id, with the version of its keyboard: a host that talks through it needs that one.
Page Receiver::identity() const
{
    return identityPage(model().deviceId, script.paired ? keyboard->firmware()->version() : model().firmware);
}

std::optional<Bytes> Receiver::takeInput(Channel channel, TimePoint now)
{
    return script.paired ? keyboard->takeInput(channel, now) : std::nullopt;
}

std::optional<TimePoint> Receiver::nextInput(Channel channel) const
{
    return script.paired ? keyboard->nextInput(channel) : std::nullopt;
}

Firmware *Receiver::firmware()
{
    return keyboard ? keyboard->firmware() : nullptr;
}

void Receiver::setReceiver(const ReceiverScript &wanted)
{
    script = wanted;
    script.paired = wanted.paired && keyboard;
    pollsToOnline = script.pollsUntilOnline;
    pollsToAnswer = 0;
}

} // namespace sim

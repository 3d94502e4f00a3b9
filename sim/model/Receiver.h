#pragma once

#include "NativeKeyboard.h"

namespace sim {

/// The 2.4 GHz receiver of a native keyboard. It speaks the wired framing, tells its own id when asked for
/// one, hands any other command on to its keyboard, and for a moment also the identity command: after
/// "forward" the next command goes out by radio, and its answer is kept until it is fetched.
class Receiver : public Device
{
public:
    Receiver(const Model &model, const DeviceOptions &options);

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;
    std::optional<Bytes> takeInput(Channel channel, TimePoint now) override;
    std::optional<TimePoint> nextInput(Channel channel) const override;
    Firmware *firmware() override;
    void setReceiver(const ReceiverScript &script) override;

private:
    Answer execute(const Frame &frame, TimePoint now);
    Answer forward(const Frame &frame, TimePoint now);
    Page status();
    Page identity() const;

    std::unique_ptr<NativeKeyboard> keyboard;
    ReceiverScript script;
    unsigned pollsToOnline = 0;
    unsigned pollsToAnswer = 0;
    bool forwardNext = false;
    Page fetched{};
};

} // namespace sim

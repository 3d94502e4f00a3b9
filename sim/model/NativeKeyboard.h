#pragma once

#include "Device.h"

namespace sim {

constexpr Byte StatusCommand = 0xF7; ///< link and battery state, asked with a feature report

/// The answer to the status command: busy in byte 0, battery in byte 1, online in byte 5.
Page statusPage(bool busy, Byte battery, bool online);

/// A native keyboard at its cable or its Bluetooth link.
class NativeKeyboard : public Device
{
public:
    NativeKeyboard(const Model &model, const DeviceOptions &options);

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;
    std::optional<Bytes> takeInput(Channel channel, TimePoint now) override;
    std::optional<TimePoint> nextInput(Channel channel) const override;
    Firmware *firmware() override { return &program; }

private:
    Outcome receiveStatusRequest(ByteView report);

    Firmware program;
};

} // namespace sim

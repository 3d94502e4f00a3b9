#pragma once

#include "Device.h"

namespace sim {

/// A device whose settings another driver handles: it answers the identity command of the wired framing
/// and acknowledges everything else.
class IdentityDevice : public Device
{
public:
    explicit IdentityDevice(const Model &model)
        : Device(model)
    {
    }

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;
};

/// Keyboard of the WS family: 8-byte output reports, 16-byte answers with identity or battery.
class WsDevice : public Device
{
public:
    WsDevice(const Model &model, Byte batteryPercent)
        : Device(model)
        , battery(batteryPercent)
    {
    }

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;

private:
    Byte battery;
};

/// Keyboard of the BY family: 64-byte reports with a checksum at the end; its id is a decimal text.
class ByDevice : public Device
{
public:
    explicit ByDevice(const Model &model)
        : Device(model)
    {
    }

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;
};

/// Keyboard of the JM family: told by its interface alone, never asked.
class JmDevice : public Device
{
public:
    explicit JmDevice(const Model &model)
        : Device(model)
    {
    }

    Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) override;
};

} // namespace sim

#include "Device.h"

#include "OtherFamilies.h"
#include "Receiver.h"

#include <algorithm>

namespace sim {

Device::~Device() = default;

bool Device::has(Channel channel) const
{
    return std::ranges::find(row.channelList(), channel) != row.channelList().end();
}

std::optional<Bytes> Device::takeInput(Channel, TimePoint)
{
    return {};
}

std::optional<TimePoint> Device::nextInput(Channel) const
{
    return {};
}

Firmware *Device::firmware()
{
    return nullptr;
}

void Device::setReceiver(const ReceiverScript &) {}

FrameFaults Device::frameFaults()
{
    return firmware() ? faults + firmware()->faults : faults;
}

std::unique_ptr<Device> makeDevice(const Model &model, const DeviceOptions &options)
{
    Model row = model;
    row.vendorId = options.vendorId.value_or(row.vendorId);
    row.productId = options.productId.value_or(row.productId);
    row.deviceId = options.deviceId.value_or(row.deviceId);
    row.firmware = options.firmware.value_or(row.firmware);
    switch (row.kind) {
    case Kind::Keyboard:
        return std::make_unique<NativeKeyboard>(row, options);
    case Kind::Receiver:
        return std::make_unique<Receiver>(row, options);
    case Kind::Identity:
        return std::make_unique<IdentityDevice>(row);
    case Kind::Ws:
        return std::make_unique<WsDevice>(row, options.battery);
    case Kind::By:
        return std::make_unique<ByDevice>(row);
    case Kind::Jm:
        return std::make_unique<JmDevice>(row);
    }
    return nullptr;
}

} // namespace sim

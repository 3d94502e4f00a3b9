#include "VirtualDevice.h"

#include "BusState.h"

#include <algorithm>
#include <stdexcept>

namespace virtualhid {
namespace {

std::scoped_lock<std::mutex> lockBus()
{
    return std::scoped_lock{BusState::get().mutex};
}

} // namespace

VirtualDevice::VirtualDevice(std::unique_ptr<DeviceRecord> deviceRecord)
    : record(std::move(deviceRecord))
{
}

VirtualDevice::~VirtualDevice() = default;

const sim::Model &VirtualDevice::model() const
{
    return record->device->model();
}

bool VirtualDevice::isPlugged() const
{
    const auto lock = lockBus();
    return record->plugged;
}

std::string VirtualDevice::path(sim::Channel channel) const
{
    return record->device->has(channel) ? record->path(channel) : std::string{};
}

int VirtualDevice::openHandles() const
{
    const auto lock = lockBus();
    return static_cast<int>(std::ranges::count_if(
        BusState::get().handles, [this](const auto &entry) { return entry.second.device.get() == this; }));
}

std::vector<ReceivedFrame> VirtualDevice::frames() const
{
    const auto lock = lockBus();
    std::vector<ReceivedFrame> frames;
    for (const Transfer &transfer : record->log) {
        const bool sent = transfer.way == Way::FeatureSent || transfer.way == Way::OutputSent;
        if (!sent || transfer.result < 0)
            continue;
        const sim::ByteView report = transfer.report;
        const std::size_t prefix = std::min(prefixLength(transfer.channel, transfer.way), report.size());
        frames.push_back({transfer.when, transfer.channel, transfer.handle, transfer.report,
                          sim::Frame{report.subspan(prefix)}});
    }
    return frames;
}

std::vector<Transfer> VirtualDevice::transfers() const
{
    const auto lock = lockBus();
    return {record->log.begin(), record->log.end()};
}

std::size_t VirtualDevice::frameCount() const
{
    const auto lock = lockBus();
    return record->framesLogged;
}

void VirtualDevice::clearLog()
{
    const auto lock = lockBus();
    record->log.clear();
    record->framesLogged = 0;
}

void VirtualDevice::setLogLimit(std::size_t transfers)
{
    const auto lock = lockBus();
    record->logLimit = transfers;
    while (record->log.size() > transfers)
        record->log.pop_front();
}

sim::FrameFaults VirtualDevice::frameFaults() const
{
    const auto lock = lockBus();
    return record->device->frameFaults();
}

void VirtualDevice::addFault(FaultRule rule)
{
    const auto lock = lockBus();
    if (rule.frame)
        *rule.frame += record->framesSeen;
    record->rules.push_back(std::move(rule));
}

void VirtualDevice::faultAtFrame(std::size_t frame, Fault fault)
{
    addFault({.frame = frame, .fault = std::move(fault)});
}

void VirtualDevice::faultOnCommand(sim::Byte command, Fault fault, std::size_t times)
{
    addFault({.command = command, .times = times, .fault = std::move(fault)});
}

void VirtualDevice::clearFaults()
{
    const auto lock = lockBus();
    record->rules.clear();
}

void VirtualDevice::failOpens(unsigned times)
{
    const auto lock = lockBus();
    record->openFailures = times;
}

void VirtualDevice::denyOpens(bool deny)
{
    const auto lock = lockBus();
    record->denied = deny;
}

void VirtualDevice::press(int position, int depth, std::chrono::milliseconds travelTime,
                          std::chrono::milliseconds hold)
{
    moveFinger(position, sim::keyStroke(depth, travelTime, hold));
}

void VirtualDevice::moveFinger(int position, const sim::FingerPath &path)
{
    const auto lock = lockBus();
    firmware().sensors.fingers.move(position, path, sim::Clock::now());
    BusState::get().changed.notify_all();
}

void VirtualDevice::liftFingers()
{
    const auto lock = lockBus();
    firmware().sensors.fingers.lift();
    BusState::get().changed.notify_all();
}

void VirtualDevice::injectInput(sim::Channel channel, const sim::Bytes &report)
{
    const auto lock = lockBus();
    BusState::get().deliver(*record, channel, report, sim::Clock::now());
}

sim::KeyboardState VirtualDevice::state() const
{
    const auto lock = lockBus();
    return firmware().state;
}

void VirtualDevice::edit(const std::function<void(sim::KeyboardState &)> &change)
{
    const auto lock = lockBus();
    change(firmware().state);
}

sim::LightView VirtualDevice::light() const
{
    const auto lock = lockBus();
    return sim::lightOf(firmware().state);
}

sim::KeySet VirtualDevice::pressedKeys() const
{
    const auto lock = lockBus();
    return firmware().pressedKeys(sim::Clock::now());
}

bool VirtualDevice::keyTestRunning() const
{
    const auto lock = lockBus();
    return firmware().sensors.keyTest();
}

bool VirtualDevice::calibrating() const
{
    const auto lock = lockBus();
    return firmware().sensors.calibrating();
}

void VirtualDevice::setReceiver(const sim::ReceiverScript &script)
{
    const auto lock = lockBus();
    record->device->setReceiver(script);
}

/// The lock is held by the caller.
sim::Firmware &VirtualDevice::firmware() const
{
    if (sim::Firmware *program = record->device->firmware())
        return *program;
    throw std::logic_error{"this device has no keyboard firmware"};
}

} // namespace virtualhid

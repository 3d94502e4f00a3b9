#include "BusState.h"

#include <algorithm>

namespace virtualhid {
namespace {

constexpr auto Disconnected = L"Device is disconnected";

int toResult(std::size_t bytes)
{
    return static_cast<int>(bytes);
}

/// Copies as much of the report as the buffer takes; returns that count.
std::size_t handOut(const sim::Bytes &report, std::span<sim::Byte> buffer)
{
    const std::size_t count = std::min(report.size(), buffer.size());
    std::copy_n(report.begin(), count, buffer.begin());
    return count;
}

/// The reply as the fault leaves it.
std::optional<sim::Reply> spoil(std::optional<sim::Reply> reply, const Fault &fault, sim::Channel channel,
                                Way way)
{
    if (fault.lostReply)
        return {};
    if (!reply && fault.replacement) { // the device itself would have kept silent
        reply = sim::Reply{.asInput = way == Way::OutputSent,
                           .prefix = prefixLength(channel, way),
                           .report = sim::Bytes(prefixLength(channel, way))};
    }
    if (!reply)
        return {};
    sim::Bytes &report = reply->report;
    if (fault.replacement) {
        report.resize(reply->prefix);
        report.insert(report.end(), fault.replacement->begin(), fault.replacement->end());
    }
    if (fault.length)
        report.resize(reply->prefix + *fault.length);
    if (fault.firstByte && report.size() > reply->prefix)
        report[reply->prefix] = *fault.firstByte;
    reply->latency += fault.delay;
    return reply;
}

/// Puts the reply where the host will look for it. A feature report without one leaves nothing to read.
void place(BusState &bus, DeviceRecord &record, sim::Channel channel, Way way,
           const std::optional<sim::Reply> &reply, sim::TimePoint now)
{
    if (reply && reply->asInput) {
        bus.deliver(record, channel, reply->report, now + reply->latency);
    } else if (reply) {
        record.features[channel] = {true, reply->report, now + reply->latency};
    } else if (way == Way::FeatureSent) {
        record.features[channel] = {};
    }
}

void deliverNotice(BusState &bus, DeviceRecord &record, sim::TimePoint due)
{
    sim::Bytes notice(1 + sim::channelInfo(sim::Channel::Bluetooth).input);
    notice[0] = 0x06;
    notice[1] = 0x77;
    bus.deliver(record, sim::Channel::Bluetooth, notice, due);
}

/// What a feature read finds before any command was sent: a buffer of zeros.
DeviceRecord::FeatureSlot untouchedSlot(sim::Channel channel)
{
    const std::size_t length = sim::channelInfo(channel).feature;
    return {length > 0, sim::Bytes(length + 1), {}};
}

/// Runs one frame through fault script and device; the lock is held.
int exchange(BusState &bus, Handle &handle, Way way, sim::ByteView report)
{
    DeviceRecord &record = handle.record();
    const sim::TimePoint now = sim::Clock::now();
    const std::size_t prefix = prefixLength(handle.channel, way);
    const Fault fault = record.takeFault(report.size() > prefix ? report[prefix] : sim::Byte{0});
    if (fault.unplug) {
        bus.unplug(handle.device);
        return handle.fail(Disconnected);
    }
    const auto type = way == Way::FeatureSent ? sim::ReportType::Feature : sim::ReportType::Output;
    const sim::Outcome outcome =
        fault.refused ? sim::Outcome::refused() : record.device->receive(handle.channel, type, report, now);
    const int result = outcome.accepted ? toResult(report.size()) : -1;
    record.note({now, way, handle.channel, handle.id, result, {report.begin(), report.end()}});
    if (!outcome.accepted)
        return handle.fail(L"Broken pipe");
    const auto reply = spoil(outcome.reply, fault, handle.channel, way);
    if (fault.noticeFirst)
        deliverNotice(bus, record, now + (reply ? reply->latency : std::chrono::milliseconds{0}));
    place(bus, record, handle.channel, way, reply, now);
    return result;
}

} // namespace

int sendReport(hid_device *device, Way way, sim::ByteView report)
{
    BusState &bus = BusState::get();
    std::unique_lock lock{bus.mutex};
    Handle *handle = bus.find(device);
    if (!handle)
        return -1;
    if (handle->gone)
        return handle->fail(Disconnected);
    if (report.empty())
        return handle->fail(L"Zero buffer/length");
    const int result = exchange(bus, *handle, way, report);
    const auto observer = handle->gone ? bus.observer : nullptr;
    lock.unlock();
    if (observer)
        observer();
    return result;
}

int readFeature(hid_device *device, std::span<sim::Byte> buffer)
{
    BusState &bus = BusState::get();
    std::unique_lock lock{bus.mutex};
    for (;;) {
        Handle *handle = bus.find(device);
        if (!handle)
            return -1;
        if (handle->gone)
            return handle->fail(Disconnected);
        DeviceRecord &record = handle->record();
        const auto slot = record.features.try_emplace(handle->channel, untouchedSlot(handle->channel)).first;
        const sim::TimePoint now = sim::Clock::now();
        if (slot->second.due > now) {
            bus.changed.wait_until(lock, sim::TimePoint{slot->second.due});
            continue;
        }
        if (!slot->second.answered) {
            record.note({now, Way::FeatureRead, handle->channel, handle->id, -1, {}});
            return handle->fail(L"ioctl (GFEATURE): Broken pipe");
        }
        const std::size_t count = handOut(slot->second.report, buffer);
        record.note(
            {now, Way::FeatureRead, handle->channel, handle->id, toResult(count), slot->second.report});
        return toResult(count);
    }
}

int readInput(hid_device *device, std::span<sim::Byte> buffer, std::optional<std::chrono::milliseconds> limit)
{
    BusState &bus = BusState::get();
    std::unique_lock lock{bus.mutex};
    const sim::TimePoint start = sim::Clock::now();
    for (;;) {
        Handle *handle = bus.find(device);
        if (!handle)
            return -1;
        if (handle->gone)
            return handle->fail(Disconnected);
        DeviceRecord &record = handle->record();
        const sim::TimePoint now = sim::Clock::now();
        bus.collect(record, handle->channel, now);
        if (!handle->inputs.empty() && handle->inputs.front().due <= now) {
            const sim::Bytes report = std::move(handle->inputs.front().report);
            handle->inputs.pop_front();
            const std::size_t count = handOut(report, buffer);
            record.note({now, Way::InputRead, handle->channel, handle->id, toResult(count), report});
            return toResult(count);
        }
        if (limit && now >= start + *limit)
            return 0;
        sim::TimePoint wake = limit ? start + *limit : sim::TimePoint::max();
        if (!handle->inputs.empty())
            wake = std::min(wake, handle->inputs.front().due);
        if (const auto next = record.device->nextInput(handle->channel))
            wake = std::min(wake, *next);
        if (wake == sim::TimePoint::max()) {
            bus.changed.wait(lock);
        } else {
            bus.changed.wait_until(lock, wake);
        }
    }
}

} // namespace virtualhid

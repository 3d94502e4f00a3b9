#include "PluggedDevice.h"

#include <algorithm>

namespace uhid {

PluggedDevice::PluggedDevice(unsigned number, const sim::Model &model, std::function<void()> onReady,
                             Log onReport)
    : virtualDevice(sim::makeDevice(model))
    , ready(std::move(onReady))
    , log(std::move(onReport))
{
    const std::string place = "orbe-uhid/" + std::to_string(number) + '/';
    for (const sim::Channel channel : model.channelList()) {
        const sim::ChannelInfo &info = sim::channelInfo(channel);
        if (info.feature > 0)
            features[channel] = sim::Bytes(info.feature + 1u); // zeros until the first command
        const Description description{.channel = info,
                                      .model = virtualDevice->model(),
                                      .path = place + std::string{info.name},
                                      .serial = std::to_string(number),
                                      .bluetooth = virtualDevice->has(sim::Channel::Bluetooth)};
        kernelDevices[channel] = std::make_unique<KernelDevice>(description, requestsOf(channel));
    }
}

Requests PluggedDevice::requestsOf(sim::Channel channel)
{
    return {.started =
                [this] {
                    if (++started == kernelDevices.size())
                        ready();
                },
            .written = [this, channel](bool feature,
                                       sim::ByteView report) { return receive(channel, feature, report); },
            .featureRead = [this, channel] { return features[channel]; }};
}

bool PluggedDevice::receive(sim::Channel channel, bool feature, sim::ByteView report)
{
    const sim::TimePoint now = sim::Clock::now();
    ++received;
    log(channel, feature, report);
    const auto type = feature ? sim::ReportType::Feature : sim::ReportType::Output;
    const sim::Outcome outcome = virtualDevice->receive(channel, type, report, now);
    if (outcome.reply && outcome.reply->asInput) {
        pending.push_back({now + outcome.reply->latency, channel, outcome.reply->report});
    } else if (feature) {
        features[channel] = outcome.reply ? std::optional{outcome.reply->report} : std::nullopt;
    }
    return outcome.accepted;
}

void PluggedDevice::sendDue(sim::TimePoint now)
{
    for (const Pending &input : pending) {
        if (input.due <= now)
            kernelDevices.at(input.channel)->sendInput(input.report);
    }
    std::erase_if(pending, [now](const Pending &input) { return input.due <= now; });
    for (const auto &[channel, kernelDevice] : kernelDevices) {
        while (const auto report = virtualDevice->takeInput(channel, now))
            kernelDevice->sendInput(*report);
    }
}

std::optional<sim::TimePoint> PluggedDevice::nextDue() const
{
    std::optional<sim::TimePoint> next;
    const auto consider = [&next](sim::TimePoint due) { next = next ? std::min(*next, due) : due; };
    for (const Pending &input : pending)
        consider(input.due);
    for (const auto &[channel, kernelDevice] : kernelDevices) {
        if (const auto due = virtualDevice->nextInput(channel))
            consider(*due);
    }
    return next;
}

} // namespace uhid

#include "PluggedDevice.h"

#include "UhidDevice.h"
#include "UsbDevice.h"

#include <algorithm>

namespace uhid {

PluggedDevice::PluggedDevice(unsigned number, const sim::Model &model, Way way, std::function<void()> onReady,
                             Log onReport)
    : virtualDevice(sim::makeDevice(model))
    , ready(std::move(onReady))
    , log(std::move(onReport))
{
    for (const sim::Channel channel : model.channelList()) {
        if (const std::size_t size = sim::channelInfo(channel).feature; size > 0)
            features[channel] = sim::Bytes(size + 1); // zeros until the first command
    }
    if (way == Way::Uhid) {
        plugUhid(number);
        return;
    }
    kernelDevices.push_back(std::make_unique<UsbDevice>(model, std::to_string(number), requests()));
    for (const sim::Channel channel : model.channelList())
        linkOf[channel] = kernelDevices.back().get();
}

void PluggedDevice::plugUhid(unsigned number)
{
    const std::string place = "orbe-uhid/" + std::to_string(number) + '/';
    for (const sim::Channel channel : virtualDevice->model().channelList()) {
        const sim::ChannelInfo &info = sim::channelInfo(channel);
        const Description description{.channel = info,
                                      .model = virtualDevice->model(),
                                      .path = place + std::string{info.name},
                                      .serial = std::to_string(number),
                                      .bluetooth = virtualDevice->has(sim::Channel::Bluetooth)};
        kernelDevices.push_back(std::make_unique<UhidDevice>(description, requests()));
        linkOf[channel] = kernelDevices.back().get();
    }
}

Requests PluggedDevice::requests()
{
    return {.started =
                [this] {
                    if (++started == kernelDevices.size())
                        ready();
                },
            .written = [this](sim::Channel channel, bool feature,
                              sim::ByteView report) { return receive(channel, feature, report); },
            .featureRead = [this](sim::Channel channel) { return features[channel]; }};
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
            linkOf.at(input.channel)->sendInput(input.channel, input.report);
    }
    std::erase_if(pending, [now](const Pending &input) { return input.due <= now; });
    for (const auto &[channel, link] : linkOf) {
        while (const auto report = virtualDevice->takeInput(channel, now))
            link->sendInput(channel, *report);
    }
}

std::optional<sim::TimePoint> PluggedDevice::nextDue() const
{
    std::optional<sim::TimePoint> next;
    const auto consider = [&next](sim::TimePoint due) { next = next ? std::min(*next, due) : due; };
    for (const Pending &input : pending)
        consider(input.due);
    for (const auto &[channel, link] : linkOf) {
        if (const auto due = virtualDevice->nextInput(channel))
            consider(*due);
    }
    return next;
}

} // namespace uhid

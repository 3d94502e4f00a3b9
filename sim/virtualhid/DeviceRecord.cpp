#include "DeviceRecord.h"

#include <algorithm>

namespace virtualhid {

std::string DeviceRecord::path(sim::Channel channel) const
{
    return "virtual/" + std::to_string(number) + '/' + std::string{sim::channelInfo(channel).name};
}

void DeviceRecord::note(Transfer transfer)
{
    const bool sent = transfer.way == Way::FeatureSent || transfer.way == Way::OutputSent;
    framesLogged += sent && transfer.result >= 0;
    if (logLimit == 0)
        return;
    if (log.size() >= logLimit)
        log.pop_front();
    log.push_back(std::move(transfer));
}

Fault DeviceRecord::takeFault(sim::Byte command)
{
    const std::size_t frame = framesSeen++;
    const auto rule = std::ranges::find_if(rules, [frame, command](const FaultRule &candidate) {
        return candidate.frame.value_or(frame) == frame && candidate.command.value_or(command) == command;
    });
    if (rule == rules.end())
        return {};
    Fault fault = rule->fault;
    if (rule->times && --*rule->times == 0)
        rules.erase(rule);
    return fault;
}

std::size_t prefixLength(sim::Channel channel, Way way)
{
    if (way == Way::FeatureSent || way == Way::FeatureRead)
        return 1;
    return channel == sim::Channel::Bluetooth ? 2 : 0;
}

} // namespace virtualhid

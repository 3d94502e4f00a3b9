#include "OtherFamilies.h"

#include "Framing.h"

#include <algorithm>
#include <numeric>

namespace sim {
namespace {

constexpr Byte IdentityCommand = 0x8F;

bool startsWith(ByteView report, ByteView start)
{
    return report.size() >= start.size() && std::ranges::equal(report.first(start.size()), start);
}

/// An answer without any transport framing.
Reply inputReply(Bytes report)
{
    return {.asInput = true, .prefix = 0, .report = std::move(report)};
}

} // namespace

Outcome IdentityDevice::receive(Channel channel, ReportType type, ByteView report, TimePoint)
{
    if (channelInfo(channel).feature == 0 || type != ReportType::Feature) {
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
    if (frame->command() == IdentityCommand)
        return Outcome::answered(wrapWired(identityPage(model().deviceId, model().firmware)));
    ++faults.unknown;
    return Outcome::answered(wrapWired(frame->acknowledgement()));
}

Outcome WsDevice::receive(Channel, ReportType type, ByteView report, TimePoint)
{
    static constexpr std::array<Byte, 5> IdentityRequest{0x04, 0x00, 0x00, 0x30, 0x06};
    static constexpr std::array<Byte, 5> BatteryRequest{0x04, 0x00, 0x00, 0x1A, 0x06};
    static constexpr std::size_t ReplySize = 16;
    static constexpr std::size_t BatteryOffset = 8;
    static constexpr std::size_t IdOffset = 11;

    if (type != ReportType::Output)
        return Outcome::refused();
    Bytes reply(report.begin(), report.begin() + std::min(report.size(), ReplySize));
    reply.resize(ReplySize);
    if (startsWith(report, IdentityRequest)) {
        reply[IdOffset] = static_cast<Byte>(model().deviceId);
    } else if (startsWith(report, BatteryRequest)) {
        reply[BatteryOffset] = battery;
    } else {
        ++faults.unknown;
        return Outcome::silent();
    }
    return Outcome::answered(inputReply(std::move(reply)));
}

Outcome ByDevice::receive(Channel, ReportType type, ByteView report, TimePoint)
{
    static constexpr std::array<Byte, 7> IdentityRequest{0x09, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
    static constexpr std::size_t ReportSize = 64;
    static constexpr std::size_t IdEnd = 13; // six bytes, two decimal digits each, the last pair at 12
    static constexpr std::size_t IdPairs = 6;

    if (type != ReportType::Output)
        return Outcome::refused();
    if (report.size() != ReportSize || std::accumulate(report.begin(), report.end(), 0u) % 256 != 0xFF) {
        ++faults.badChecksums;
        return Outcome::silent();
    }
    if (!startsWith(report, IdentityRequest)) {
        ++faults.unknown;
        return Outcome::silent();
    }
    Bytes reply(report.begin(), report.end());
    std::uint32_t rest = model().deviceId;
    for (std::size_t i = 1; i <= IdPairs; ++i, rest /= 100)
        reply[IdEnd - i] = static_cast<Byte>(rest / 10 % 10 << 4 | rest % 10);
    reply.back() = static_cast<Byte>(~std::accumulate(reply.begin(), reply.end() - 1, 0u));
    return Outcome::answered(inputReply(std::move(reply)));
}

Outcome JmDevice::receive(Channel, ReportType, ByteView, TimePoint)
{
    ++faults.misrouted;
    return Outcome::silent();
}

} // namespace sim

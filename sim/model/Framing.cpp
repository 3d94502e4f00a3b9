#include "Framing.h"

#include <algorithm>

namespace sim {
namespace {

constexpr std::array<Byte, 1> WiredPrefix{0x00};
constexpr std::array<Byte, 2> WirelessPrefix{0x06, 0x55};
constexpr std::chrono::milliseconds RadioLatency{15};

std::optional<Frame> unwrap(ByteView report, ByteView prefix, FrameFaults &faults)
{
    if (report.size() <= prefix.size() || !std::ranges::equal(report.first(prefix.size()), prefix)) {
        ++faults.misrouted;
        return {};
    }
    if (report.size() != prefix.size() + Frame::Size)
        ++faults.oddLengths;
    return Frame{report.subspan(prefix.size())};
}

Bytes wrap(ByteView prefix, const Page &page)
{
    Bytes report(prefix.size() + page.size());
    std::ranges::copy(page, std::ranges::copy(prefix, report.begin()).out);
    return report;
}

} // namespace

std::optional<Frame> unwrapWired(ByteView report, FrameFaults &faults)
{
    return unwrap(report, WiredPrefix, faults);
}

Reply wrapWired(const Page &page)
{
    return {.prefix = WiredPrefix.size(), .report = wrap(WiredPrefix, page)};
}

std::optional<Frame> unwrapWireless(ByteView report, FrameFaults &faults)
{
    return unwrap(report, WirelessPrefix, faults);
}

Reply wrapWireless(const Page &page)
{
    return {.asInput = true,
            .prefix = WirelessPrefix.size(),
            .report = wrap(WirelessPrefix, page),
            .latency = RadioLatency};
}

} // namespace sim

#pragma once

#include "Device.h"

namespace sim {

/// Takes a command out of a feature report of the wired framing (report id 0, 65 bytes).
/// Nothing if the report id is wrong; what is odd is counted in \a faults.
std::optional<Frame> unwrapWired(ByteView report, FrameFaults &faults);
Reply wrapWired(const Page &page);

/// The same for the wireless framing (report id 06, mark 55, 66 bytes).
std::optional<Frame> unwrapWireless(ByteView report, FrameFaults &faults);
Reply wrapWireless(const Page &page);

} // namespace sim

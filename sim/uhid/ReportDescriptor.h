#pragma once

#include "ModelCatalog.h"

namespace uhid {

/// HID report descriptor of a channel: one application collection with the channel's reports.
sim::Bytes reportDescriptor(const sim::ChannelInfo &channel);

} // namespace uhid

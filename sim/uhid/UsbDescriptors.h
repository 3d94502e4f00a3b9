#pragma once

#include "ModelCatalog.h"

#include <optional>
#include <string_view>

namespace uhid::usb {

constexpr sim::Byte EndpointSize = 64; ///< the largest at full speed

/// Descriptors of a model as a USB device at full speed: one configuration, in which every channel is a HID
/// interface with an interrupt endpoint towards the host. What the host writes goes through the control
/// endpoint.
sim::Bytes deviceDescriptor(const sim::Model &model);
sim::Bytes configurationDescriptor(const sim::Model &model);
/// Maker, product and serial number in their order from 1 on, 0 is the list of languages; nothing for others.
std::optional<sim::Bytes> stringDescriptor(const sim::Model &model, std::string_view serial, unsigned index);

} // namespace uhid::usb

#pragma once

#include <optional>

struct DeviceEnumInfo;

/// Asks a device for its charge in percent. A device that doesn't answer, and one of a family without a
/// query, counts as 0; a strange answer is handed on, up to 255. Nothing if the device can't be opened.
/// Blocks the calling thread for 100 ms (cloud family) or up to 80 ms (WS) a round, five rounds at most.
std::optional<int> readBattery(const DeviceEnumInfo &device);

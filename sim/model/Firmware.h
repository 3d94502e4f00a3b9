#pragma once

#include "KeyboardState.h"
#include "Sensors.h"

namespace sim {

/// Frames that the firmware did not like.
struct FrameFaults
{
    unsigned badChecksums = 0; ///< not executed and not answered
    unsigned unknown = 0;      ///< no such command in this firmware; acknowledged
    unsigned malformed = 0;    ///< arguments out of range or a fixed byte that is wrong; acknowledged
    unsigned oddLengths = 0;   ///< report longer or shorter than the transport's; executed
    unsigned misrouted = 0;    ///< wrong report id, prefix or kind of report; not executed

    bool operator==(const FrameFaults &) const = default;
    FrameFaults operator+(const FrameFaults &other) const;
};

/// The reply to the identity command.
Page identityPage(std::uint32_t id, std::uint16_t version);

/// The program inside a native keyboard: executes commands, whatever transport brought them.
class Firmware
{
public:
    static constexpr std::uint16_t MagnetismVersion = 0x300; ///< older ones have no magnetism tables

    Firmware(std::uint32_t id, std::uint16_t version);

    /// Runs one command. Nothing comes back from a frame with a bad checksum.
    Answer execute(const Frame &frame, TimePoint now);

    /// The keys that are down at their actuation point or below it.
    KeySet pressedKeys(TimePoint now) const;

    KeyboardState state;
    Sensors sensors;
    FrameFaults faults;

    std::uint32_t id() const { return deviceId; }
    std::uint16_t version() const { return firmwareVersion; }

private:
    std::uint32_t deviceId;
    std::uint16_t firmwareVersion;
};

} // namespace sim

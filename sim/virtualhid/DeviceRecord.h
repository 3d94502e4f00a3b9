#pragma once

#include "Device.h"
#include "Fault.h"
#include "Traffic.h"

#include <deque>
#include <map>
#include <memory>
#include <string>

namespace virtualhid {

/// What the bus knows of one device. Every member belongs to the bus's lock.
struct DeviceRecord
{
    /// The answer that waits for a feature read.
    struct FeatureSlot
    {
        bool answered = false;
        sim::Bytes report;
        sim::TimePoint due{};
    };

    std::unique_ptr<sim::Device> device;
    unsigned number = 0; ///< part of its paths
    std::string serial;
    bool plugged = false;

    std::deque<Transfer> log;
    std::size_t logLimit = 10'000;
    std::size_t framesLogged = 0; ///< since the log was cleared, the dropped ones too

    std::size_t framesSeen = 0; ///< since the device was made
    std::vector<FaultRule> rules;
    unsigned openFailures = 0; ///< opens that are still to fail
    bool denied = false;

    std::map<sim::Channel, FeatureSlot> features;

    std::string path(sim::Channel channel) const;
    void note(Transfer transfer);
    /// Counts a frame and says what goes wrong with it.
    Fault takeFault(sim::Byte command);
};

/// Bytes of transport framing in front of the command: report id, and the wireless mark.
std::size_t prefixLength(sim::Channel channel, Way way);

} // namespace virtualhid

#pragma once

#include "KeyMatrices.h"

namespace sim {

/// The settings that hold for the whole keyboard.
struct Settings
{
    Byte reportRate = 3; ///< code; 0 is 8000 Hz, 3 is 1000 Hz
    Byte debounce = 2;
    std::array<std::uint16_t, 4> sleepTimes{300, 300, 1800, 1800}; ///< seconds
    Page options = factoryOptions();                               ///< byte 0 and 7 have no meaning
    std::array<Byte, 6> autoOs{};                                  ///< arguments as written
    std::array<Byte, 6> sku{};                                     ///< arguments as written

    Answer writeReportRate(const Frame &frame);
    Answer readReportRate(const Frame &frame) const;
    Answer writeDebounce(const Frame &frame);
    Answer readDebounce(const Frame &frame) const;
    Answer writeSleepTimes(const Frame &frame);
    Answer readSleepTimes(const Frame &frame) const;
    Answer writeOptions(const Frame &frame);
    Answer readOptions(const Frame &frame) const;

    /// Bytes from 8 on are filled, so that a host that doesn't hand them back whole shows itself.
    static Page factoryOptions();
};

} // namespace sim

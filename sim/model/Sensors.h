#pragma once

#include "Fingers.h"
#include "KeyMatrices.h"

namespace sim {

/// The keyboard's hall sensors: live readings, the calibration scan and the key-test stream.
class Sensors
{
public:
    static constexpr auto KeyTestInterval = std::chrono::milliseconds{20};
    static constexpr int KnobPosition = 92; ///< its sensor has a far smaller range
    static constexpr int KnobFullReading = 80;

    Fingers fingers;

    bool keyTest() const { return testing; }
    bool calibrating() const { return scanning; }

    Answer switchKeyTest(const Frame &frame, TimePoint now);
    Answer switchCalibration(const Frame &frame, TimePoint now);
    /// A page of readings: the depth now, or the deepest since the calibration began.
    Answer read(const Frame &frame, TimePoint now) const;

    /// The next key-test report that is due, if any. Reports come while the depth changes.
    std::optional<Bytes> takeReport(TimePoint now);
    /// When to ask takeReport() again; nothing while no finger moves.
    std::optional<TimePoint> nextReport() const;

private:
    int reading(int position, TimePoint now) const;

    bool testing = false;
    bool scanning = false;
    TimePoint scanStart{};
    TimePoint nextSample{};
    int lastDepth = 0;
};

} // namespace sim

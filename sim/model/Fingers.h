#pragma once

#include "Bytes.h"

#include <map>
#include <optional>

namespace sim {

constexpr int FullTravel = 720; ///< a key at the bottom, in steps of 0.005 mm

/// A point of a finger's way, as an offset from the moment the script is set.
struct FingerPoint
{
    std::chrono::milliseconds at;
    int depth; ///< 0 (up) to FullTravel
};

using FingerPath = std::vector<FingerPoint>;

/// A key stroke: down to \a depth within \a travelTime, held, and up again as fast.
FingerPath keyStroke(int depth, std::chrono::milliseconds travelTime, std::chrono::milliseconds hold);

/// Scripted fingers on the keys. Depth runs straight from point to point and stays at the last one.
class Fingers
{
public:
    /// Replaces what that finger did; the way starts where the key is now.
    void move(int position, const FingerPath &path, TimePoint now);
    void lift() { ways.clear(); }

    int depth(int position, TimePoint when) const;
    /// Deepest point of a key between two moments.
    int peak(int position, TimePoint from, TimePoint to) const;
    /// Depth of the key that is down the furthest.
    int deepest(TimePoint when) const;
    /// When the last finger comes to rest; nothing if no finger was ever set.
    std::optional<TimePoint> restsAt() const;

private:
    struct Point
    {
        TimePoint when;
        int depth;
    };
    using Way = std::vector<Point>;

    static int depthOn(const Way &way, TimePoint when);

    std::map<int, Way> ways;
};

} // namespace sim

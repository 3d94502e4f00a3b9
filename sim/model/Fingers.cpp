#include "Fingers.h"

#include <algorithm>

namespace sim {
namespace {

constexpr std::size_t LongestWay = 256; ///< points remembered per key

}

FingerPath keyStroke(int depth, std::chrono::milliseconds travelTime, std::chrono::milliseconds hold)
{
    return {{travelTime, depth}, {travelTime + hold, depth}, {2 * travelTime + hold, 0}};
}

void Fingers::move(int position, const FingerPath &path, TimePoint now)
{
    Way &way = ways[position];
    const int start = depthOn(way, now);
    std::erase_if(way, [now](const Point &point) { return point.when >= now; });
    if (way.size() > LongestWay)
        way.erase(way.begin(), way.end() - LongestWay / 2);
    way.push_back({now, start});
    for (const FingerPoint &point : path)
        way.push_back({std::max(way.back().when, now + point.at), std::clamp(point.depth, 0, FullTravel)});
}

int Fingers::depth(int position, TimePoint when) const
{
    const auto way = ways.find(position);
    return way == ways.end() ? 0 : depthOn(way->second, when);
}

int Fingers::peak(int position, TimePoint from, TimePoint to) const
{
    const auto way = ways.find(position);
    if (way == ways.end())
        return 0;
    int deepest = std::max(depthOn(way->second, from), depthOn(way->second, to));
    for (const Point &point : way->second) {
        if (point.when >= from && point.when <= to)
            deepest = std::max(deepest, point.depth);
    }
    return deepest;
}

int Fingers::deepest(TimePoint when) const
{
    int result = 0;
    for (const auto &[position, way] : ways)
        result = std::max(result, depthOn(way, when));
    return result;
}

std::optional<TimePoint> Fingers::restsAt() const
{
    std::optional<TimePoint> rest;
    for (const auto &[position, way] : ways)
        rest = rest ? std::max(*rest, way.back().when) : way.back().when;
    return rest;
}

int Fingers::depthOn(const Way &way, TimePoint when)
{
    const auto next = std::ranges::find_if(way, [when](const Point &point) { return point.when > when; });
    if (next == way.begin())
        return 0;
    const Point &before = *std::prev(next);
    if (next == way.end())
        return before.depth;
    const double part = std::chrono::duration<double>(when - before.when) / (next->when - before.when);
    return before.depth + static_cast<int>(part * (next->depth - before.depth));
}

} // namespace sim

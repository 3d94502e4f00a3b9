#include "LightBoard.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sim {
namespace {

double zigzagLength(double x, int row, double width)
{
    return row * width + (row % 2 == 0 ? x : width - x);
}

/// Clockwise round the edge from the upper left corner, then one ring further in, and so on.
double inwardLength(double x, int row, double width, double height)
{
    const int rows = static_cast<int>(height);
    const int ring =
        std::max(0, std::min({row, rows - 1 - row, static_cast<int>(x), static_cast<int>(width - x)}));
    double length = 0;
    for (int outer = 0; outer < ring; ++outer)
        length += 2 * (width + height) - 8 * outer - 4;
    const double side = width - 2 * ring;
    const double down = height - 2 * ring;
    if (row == ring)
        return length + x - ring;
    if (static_cast<int>(width - x) == ring)
        return length + side + row - ring;
    if (row == rows - 1 - ring)
        return length + side + down + width - ring - x;
    return length + 2 * side + down + rows - 1 - ring - row;
}

} // namespace

LightBoard::LightBoard(std::span<const KeySpot> spots)
{
    for (const KeySpot &spot : spots) {
        width = std::max(width, std::ceil(spot.x));
        height = std::max(height, std::ceil(spot.y));
    }
    for (const KeySpot &spot : spots) {
        const double dx = spot.x - width / 2;
        const double dy = spot.y - height / 2;
        const int row = static_cast<int>(spot.y);
        places.push_back({.position = spot.position,
                          .x = spot.x,
                          .y = spot.y,
                          .fromMiddleX = dx,
                          .fromMiddleY = dy,
                          .turn = std::atan2(dy, dx) / (2 * std::numbers::pi) + 0.5,
                          .zigzag = zigzagLength(spot.x, row, width),
                          .inwards = inwardLength(spot.x, row, width, height)});
    }
}

} // namespace sim

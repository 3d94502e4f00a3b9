#pragma once

#include "Bytes.h"

#include <span>

namespace sim {

/// Where a key stands. Lengths are widths of a plain key, rightward and down from the board's upper left
/// corner to the key's middle.
struct KeySpot
{
    int position; ///< in the key matrix, 0 to 127
    double x;
    double y;
};

/// A key as the light effects see it.
struct LightPlace
{
    int position;
    double x; ///< as in KeySpot
    double y;
    double fromMiddleX; ///< offset from the middle of the board
    double fromMiddleY;
    double turn;    ///< direction seen from the middle, 0 to 1 clockwise
    double zigzag;  ///< length of the way to it that runs through the rows to and fro
    double inwards; ///< length of the way to it that runs round the edge and on towards the middle
};

/// The keys that light, and how far the board reaches.
struct LightBoard
{
    explicit LightBoard(std::span<const KeySpot> spots);

    double width = 0;
    double height = 0;
    std::vector<LightPlace> places; ///< in the order of the spots
};

} // namespace sim

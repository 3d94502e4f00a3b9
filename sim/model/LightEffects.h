#pragma once

#include "LightBoard.h"
#include "Lighting.h"

namespace sim {

/// What an effect does to one key.
struct Glow
{
    double level = 0; ///< 0 (dark) to 1
    double tint = 0;  ///< place on the colour wheel in turns, any number; for lights of many colours
};

/// A key that was pressed not long ago.
struct Stroke
{
    const LightPlace *place;
    double begin; ///< phase when it went down
    double end;   ///< phase when it came up, or now while it is down
};

/// All that an effect may look at.
struct LightMoment
{
    const LightBoard &board;
    double phase = 0;         ///< seconds at middle speed
    unsigned choice = 0;      ///< how the effect plays: the high half of the option
    bool manyColours = false; ///< the tint shows
    std::span<const Stroke> strokes;
    std::span<const Byte, MusicLevels> music;
};

/// When an effect's picture changes by itself.
enum class Motion : Byte {
    None,
    Always,
    AfterStroke, ///< as long as there are strokes
};

struct LightEffect
{
    Byte number;
    Motion motion;
    bool ownColours; ///< always in many colours
    Glow (*glow)(const LightPlace &place, const LightMoment &moment);
};

constexpr double StrokeLife = 2.5; ///< phase after which a key that came up shows no more

/// What runs under an effect number; null for a number without a pattern: the user picture, and any that the
/// firmware doesn't know.
const LightEffect *findLightEffect(Byte number);

} // namespace sim

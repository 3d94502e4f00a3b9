// The patterns of the light effects. Each is a small function of a key's place and the phase.

#include "LightEffects.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sim {
namespace {

using Place = LightPlace;
using Moment = LightMoment;

constexpr double Golden = 0.618; ///< next colours that differ well

double fraction(double value)
{
    return value - std::floor(value);
}

/// Softly from 0 to 1 and back; one swing per unit.
double swing(double value)
{
    return 0.5 - 0.5 * std::cos(2 * std::numbers::pi * value);
}

/// 1 at 0, falling to 0 at that distance on both sides.
double ridge(double distance, double reach)
{
    return std::max(0.0, 1 - std::abs(distance) / reach);
}

/// A head and the tail that it draws.
double comet(double behind, double tail)
{
    return behind < 0 ? ridge(behind, 0.7) : std::exp(-behind / tail);
}

/// Looks like chance, but is the same for the same numbers: 0 to 1.
double chance(int first, int second = 0)
{
    std::uint32_t mix = static_cast<std::uint32_t>(first) * 0x9E3779B1U +
                        static_cast<std::uint32_t>(second) * 0x85EBCA77U + 0xC2B2AE3DU;
    mix = (mix ^ (mix >> 15)) * 0x2C1B3C6DU;
    mix = (mix ^ (mix >> 12)) * 0x297A2D39U;
    return (mix ^ (mix >> 15)) / 4294967296.0;
}

int whole(double value)
{
    return static_cast<int>(std::floor(value));
}

/// In many colours the wheel alone moves; one colour needs light and dark.
Glow wave(double turns, const Moment &m)
{
    return {m.manyColours ? 1 : swing(turns), turns};
}

/// The brightest of what every stroke does to a key; \a trace is given distance vector, age and the stroke.
template <typename Trace>
Glow brightest(const Place &place, const Moment &m, Trace trace)
{
    Glow result;
    for (const Stroke &stroke : m.strokes) {
        const Glow glow = trace(place.x - stroke.place->x, place.y - stroke.place->y, stroke);
        if (glow.level > result.level)
            result = glow;
    }
    return result;
}

double tintOf(const Stroke &stroke)
{
    return chance(stroke.place->position, whole(stroke.begin * 10));
}

Glow steady(const Place &place, const Moment &m)
{
    return {1, place.x / m.board.width};
}

Glow breathing(const Place &, const Moment &m)
{
    const double breath = m.phase / 3;
    return {swing(breath), std::floor(breath) * Golden};
}

Glow neon(const Place &, const Moment &m)
{
    return {1, m.phase / 8};
}

Glow lightWave(const Place &place, const Moment &m)
{
    const double run = m.phase / 2.5;
    switch (m.choice) {
    case 1: // right
        return wave(run - place.x / m.board.width, m);
    case 2: // up
        return wave(run + place.y / m.board.height, m);
    case 3: // down
        return wave(run - place.y / m.board.height, m);
    default: // left
        return wave(run + place.x / m.board.width, m);
    }
}

Glow ripple(const Place &place, const Moment &m)
{
    return brightest(place, m, [&m](double dx, double dy, const Stroke &stroke) {
        const double age = m.phase - stroke.begin;
        const double ring = std::hypot(dx, dy) - age * 8;
        return Glow{ridge(ring, 1.4) * ridge(age, 2), tintOf(stroke) + age / 4};
    });
}

Glow stars(const Place &place, const Moment &m)
{
    const double life = m.phase / 2.4 + chance(place.position);
    const int star = whole(life);
    const bool lit = chance(place.position, star) < 0.45;
    return {lit ? swing(life) : 0, chance(star, place.position)};
}

Glow flow(const Place &place, const Moment &m)
{
    constexpr double Spacing = 16; // from head to head
    const double way = m.choice == 1 ? place.inwards : place.zigzag;
    const double behind = fraction((m.phase * 9 - way) / Spacing) * Spacing;
    return {comet(behind, 4), way / 40};
}

Glow shadowing(const Place &place, const Moment &m)
{
    return brightest(place, m, [&m](double dx, double dy, const Stroke &stroke) {
        const bool own = dx == 0 && dy == 0;
        return Glow{own ? ridge(m.phase - stroke.end, 1.6) : 0, tintOf(stroke)};
    });
}

Glow converging(const Place &place, const Moment &m)
{
    const double half = m.board.width / 2;
    const double run = m.phase / 2;
    const double front = half * (1 - fraction(run) * 1.6); // the tail follows before the next one starts
    return {comet(std::abs(place.fromMiddleX) - front, 1.8),
            std::floor(run) * Golden + std::abs(place.fromMiddleX) / half * 0.3};
}

Glow sineWave(const Place &place, const Moment &m)
{
    const double angle = place.x / m.board.width * 1.5 - m.phase / 2.5;
    const double crest = m.board.height * (0.12 + 0.76 * swing(angle));
    return {ridge(place.y - crest, 1.5), place.x / m.board.width + m.phase / 10};
}

Glow fountain(const Place &place, const Moment &m)
{
    const double distance = std::hypot(place.fromMiddleX, place.fromMiddleY * 1.6) / m.board.width;
    const double run = m.phase / 2.5;
    return wave(m.choice == 1 ? run - distance * 1.8 : run + distance * 1.8, m);
}

Glow blossoms(const Place &place, const Moment &m)
{
    constexpr double Bed = 3; // wider than two keys, or else it would seem to drift backwards
    const double drift = m.phase * 2;
    const double along = place.x + (m.choice == 1 ? drift : -drift);
    const int bed = whole(along / Bed);
    const int row = whole(place.y);
    const double bloom = swing(along / Bed); // opens and closes as it passes
    return {0.15 + 0.85 * bloom, chance(bed, row)};
}

Glow twoBirds(const Place &place, const Moment &m)
{
    return brightest(place, m, [&m](double dx, double dy, const Stroke &stroke) {
        if (std::abs(dy) > 0.5)
            return Glow{};
        const double age = m.phase - stroke.begin;
        return Glow{comet(age * 9 - std::abs(dx), 1.6), tintOf(stroke)};
    });
}

Glow turning(const Place &place, const Moment &m)
{
    const double run = m.phase / 3;
    return wave(m.choice == 1 ? run + place.turn : run - place.turn, m);
}

Glow snowSteps(const Place &place, const Moment &m)
{
    const Glow hole = brightest(place, m, [&m](double dx, double dy, const Stroke &stroke) {
        const double melting = ridge(m.phase - stroke.end, StrokeLife);
        return Glow{melting * ridge(std::hypot(dx, dy), 1.9)};
    });
    return {1 - std::min(1.0, hole.level * 1.5), place.x / m.board.width + m.phase / 12};
}

Glow layers(const Place &place, const Moment &m)
{
    return brightest(place, m, [&m](double dx, double dy, const Stroke &stroke) {
        constexpr int Count = 3;
        const double age = m.phase - stroke.begin;
        const double square = std::max(std::abs(dx), std::abs(dy));
        const double nth = (age * 6 - square) / 2.2; // which layer is here now
        const int layer = static_cast<int>(std::lround(nth));
        if (layer < 0 || layer >= Count)
            return Glow{};
        return Glow{ridge(nth - layer, 0.6) * ridge(age, 2.4), tintOf(stroke) + layer / 3.0};
    });
}

Glow lightAndShadow(const Place &place, const Moment &m)
{
    const double beam = m.board.width * swing(m.phase / 5);
    const double off = (place.x + (place.y - m.board.height / 2) * 0.5 - beam) / (m.board.width * 0.3);
    return {0.06 + 0.94 * std::exp(-off * off), m.phase / 10 + place.x / m.board.width * 0.25};
}

Glow aurora(const Place &place, const Moment &m)
{
    const double x = place.x / m.board.width;
    const double y = place.y / m.board.height;
    const double fold = swing(x * 1.1 + 0.25 * swing(m.phase / 7 + y * 0.4) - m.phase / 11);
    const double veil = swing(x * 2.3 - m.phase / 9 + 0.3 * y);
    return {0.12 + 0.88 * fold * (0.45 + 0.55 * veil),
            0.36 + 0.42 * swing(x * 0.6 + y * 0.25 + m.phase / 13)};
}

/// The bars are as many as the levels; a level is a number of rows.
Glow music(const Place &place, const Moment &m)
{
    const auto bar = std::clamp<std::size_t>(static_cast<std::size_t>(place.x / m.board.width * MusicLevels),
                                             0, MusicLevels - 1);
    const double height = m.board.height - place.y; // of the key's middle above the board's lower edge
    const double level = height < m.music[bar] ? 1 : height < 1 ? 0.12 : 0;
    return {level, 0.36 - 0.36 * height / m.board.height}; // green at the bottom, red at the top
}

/// Streaks that fall in lanes side by side.
struct Shower
{
    double lane;  ///< width
    double slant; ///< how far to the right a streak goes with each row
    double speed; ///< rows in a unit of phase
    double tail;  ///< rows
    double share; ///< of the lanes' turns that bring a streak
};

constexpr Shower Raindrops{.lane = 1, .slant = 0, .speed = 6, .tail = 1.3, .share = 0.75};
constexpr Shower Drizzle{.lane = 0.8, .slant = 0.7, .speed = 9, .tail = 0.6, .share = 0.9};
constexpr Shower Meteors{.lane = 1.7, .slant = -1.8, .speed = 5, .tail = 1.9, .share = 0.65};

template <const Shower &shower>
Glow falling(const Place &place, const Moment &m)
{
    const int lane = whole((place.x - shower.slant * place.y) / shower.lane);
    const double fall = m.board.height + 3 * shower.tail;
    const double run = m.phase * shower.speed / fall + chance(lane);
    const int streak = whole(run);
    if (chance(streak, lane) > shower.share)
        return {};
    return {comet(fraction(run) * fall - place.y, shower.tail), chance(lane, streak)};
}

constexpr std::array Effects{
    LightEffect{1, Motion::None, false, steady},
    LightEffect{2, Motion::Always, false, breathing},
    LightEffect{3, Motion::Always, true, neon},
    LightEffect{4, Motion::Always, false, lightWave},
    LightEffect{5, Motion::AfterStroke, false, ripple},
    LightEffect{6, Motion::Always, false, stars},
    LightEffect{7, Motion::Always, false, flow},
    LightEffect{8, Motion::AfterStroke, false, shadowing},
    LightEffect{9, Motion::Always, false, converging},
    LightEffect{10, Motion::Always, false, sineWave},
    LightEffect{11, Motion::Always, false, fountain},
    LightEffect{12, Motion::Always, false, blossoms},
    LightEffect{14, Motion::AfterStroke, false, twoBirds},
    LightEffect{15, Motion::Always, false, turning},
    LightEffect{16, Motion::Always, false, falling<Drizzle>},
    LightEffect{17, Motion::Always, false, falling<Raindrops>},
    LightEffect{18, Motion::Always, false, falling<Meteors>},
    LightEffect{19, Motion::Always, false, snowSteps},
    LightEffect{21, Motion::Always, false, lightAndShadow},
    LightEffect{22, Motion::Always, false, music},
    LightEffect{23, Motion::Always, false, aurora},
    LightEffect{24, Motion::AfterStroke, false, layers},
};

} // namespace

const LightEffect *findLightEffect(Byte number)
{
    const auto *effect = std::ranges::find(Effects, number, &LightEffect::number);
    return effect == Effects.end() ? nullptr : effect;
}

} // namespace sim

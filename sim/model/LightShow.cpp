#include "LightShow.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sim {
namespace {

constexpr Byte FullBrightness = 4;
constexpr std::size_t MostStrokes = 48;
constexpr std::chrono::duration<double> LongestStep{0.2}; ///< more is a pause, not an animation

/// How the low half of an option picks the colour: one of these, the colour that came with it, or many.
constexpr std::array SystemColours{
    Colour{255, 0, 0},   Colour{0, 255, 0},   Colour{0, 0, 255},   Colour{255, 255, 0},
    Colour{255, 0, 255}, Colour{255, 128, 0}, Colour{0, 255, 255},
};
constexpr Byte ManyColours = 7;

/// How much faster than the middle speed; index 0 is the fastest.
constexpr std::array Rates{2.2, 1.5, 1.0, 0.65, 0.4};

/// The side strip's effects by number: which of the key effects they look like; 0 is off.
constexpr std::array<Byte, 6> StripEffects{0, 1, 2, 7, 3, 4};
constexpr Byte RightwardWave = 1;

double rateOf(Byte speed)
{
    return Rates[std::min<std::size_t>(speed, Rates.size() - 1)];
}

double brightnessOf(const LedParams &params)
{
    return std::min(params.brightness, FullBrightness) / double{FullBrightness};
}

Colour chosenColour(const LedParams &params)
{
    const Byte choice = params.option & 0x0F;
    return choice < SystemColours.size() ? SystemColours[choice]
                                         : Colour{params.red, params.green, params.blue};
}

Colour scaled(const Colour &colour, double level)
{
    Colour result;
    std::ranges::transform(colour, result.begin(), [level](Byte channel) {
        return static_cast<Byte>(std::lround(channel * std::clamp(level, 0.0, 1.0)));
    });
    return result;
}

/// A full colour by its place on the wheel: red at 0, green at 1/3, blue at 2/3.
Colour wheel(double turns)
{
    const auto channel = [turns](double shift) {
        const double place = turns + shift - std::floor(turns + shift);
        return static_cast<Byte>(std::lround(255 * std::clamp(std::abs(place * 6 - 3) - 1, 0.0, 1.0)));
    };
    return {channel(0), channel(2.0 / 3), channel(1.0 / 3)};
}

std::vector<KeySpot> lampsInRow(int count)
{
    std::vector<KeySpot> lamps;
    lamps.reserve(static_cast<std::size_t>(count));
    for (int lamp = 0; lamp < count; ++lamp)
        lamps.push_back({lamp, lamp + 0.5, 0.5});
    return lamps;
}

void paint(std::vector<Colour> &colours, const LightEffect &effect, LightMoment moment,
           const LedParams &params)
{
    moment.choice = params.option >> 4;
    moment.manyColours = effect.ownColours || (params.option & 0x0F) == ManyColours;
    const Colour chosen = chosenColour(params);
    const double brightness = brightnessOf(params);
    std::ranges::transform(moment.board.places, colours.begin(), [&](const LightPlace &place) {
        const Glow glow = effect.glow(place, moment);
        return scaled(moment.manyColours ? wheel(glow.tint) : chosen, glow.level * brightness);
    });
}

bool plays(const LightEffect *effect, bool stroked)
{
    return effect && (effect->motion == Motion::Always || (effect->motion == Motion::AfterStroke && stroked));
}

} // namespace

LightShow::LightShow(std::span<const KeySpot> keys)
    : board(keys)
    , stripBoard(lampsInRow(StripLamps))
    , keyColours(keys.size())
    , stripColours(StripLamps)
{
}

void LightShow::advance(const LightView &view, const KeySet &pressed, TimePoint now)
{
    const std::chrono::duration<double> step = now - std::exchange(last, now);
    const double seconds = step <= LongestStep && step.count() > 0 ? step.count() : 0;
    keyPhase += seconds * rateOf(view.keys.speed);
    // The strip's speed is set the other way round: 0 is its slowest.
    const Byte stripSpeed = std::min<Byte>(view.side.speed, Rates.size() - 1);
    stripPhase += seconds * rateOf(Rates.size() - 1 - stripSpeed);
    noteStrokes(pressed);
    moving = false;
    paintKeys(view);
    paintStrip(view);
}

void LightShow::restart()
{
    strokes.clear();
    held.reset();
}

void LightShow::noteStrokes(const KeySet &pressed)
{
    for (const LightPlace &place : board.places) {
        const auto position = static_cast<std::size_t>(place.position);
        if (pressed[position] && !held[position])
            strokes.push_back({&place, keyPhase, keyPhase});
    }
    held = pressed;
    KeySet down = pressed;
    for (auto stroke = strokes.rbegin(); stroke != strokes.rend();
         ++stroke) { // of several of a key the last is held
        const auto position = static_cast<std::size_t>(stroke->place->position);
        if (down[position])
            stroke->end = keyPhase;
        down.reset(position);
    }
    std::erase_if(strokes, [this](const Stroke &stroke) { return keyPhase - stroke.end > StrokeLife; });
    if (strokes.size() > MostStrokes)
        strokes.erase(strokes.begin(), strokes.end() - MostStrokes);
}

void LightShow::paintKeys(const LightView &view)
{
    const LightEffect *effect = findLightEffect(view.keys.effect);
    if (view.on && view.keys.effect == PictureEffect) {
        const double brightness = brightnessOf(view.keys);
        std::ranges::transform(board.places, keyColours.begin(), [&](const LightPlace &place) {
            return scaled(view.picture[static_cast<std::size_t>(place.position)], brightness);
        });
    } else if (view.on && effect) {
        paint(keyColours, *effect,
              {.board = board, .phase = keyPhase, .strokes = strokes, .music = view.music}, view.keys);
        moving = plays(effect, !strokes.empty());
    } else {
        std::ranges::fill(keyColours, Colour{});
    }
}

void LightShow::paintStrip(const LightView &view)
{
    const std::size_t number = view.side.effect;
    const LightEffect *effect =
        number < StripEffects.size() ? findLightEffect(StripEffects[number]) : nullptr;
    if (!view.on || !effect) {
        std::ranges::fill(stripColours, Colour{});
        return;
    }
    LedParams params = view.side;
    params.option = static_cast<Byte>((params.option & 0x0F) | RightwardWave << 4);
    paint(stripColours, *effect,
          {.board = stripBoard, .phase = stripPhase, .strokes = {}, .music = view.music}, params);
    moving |= plays(effect, false);
}

} // namespace sim

#pragma once

#include "KeyMatrices.h"

namespace sim {

/// Parameters of one effect, as on the wire: speed 0 is the fastest.
struct LedParams
{
    Byte effect = 0;
    Byte speed = 0;
    Byte brightness = 0;
    Byte option = 0;
    Byte red = 0;
    Byte green = 0;
    Byte blue = 0;

    bool operator==(const LedParams &) const = default;
};

/// A light that has one effect at a time and remembers the parameters of each: the keys or the side strip.
class LightZone
{
public:
    explicit LightZone(const LedParams &factory);

    LedParams current() const { return of(effect); }
    /// Parameters last set for an effect, factory ones if it never was.
    LedParams of(Byte number) const;
    /// Stores the parameters and shows that effect.
    void show(const LedParams &params);

    Answer write(const Frame &frame);
    Answer read(const Frame &frame) const;

private:
    std::array<LedParams, 256> params;
    Byte effect;
};

/// Light settings of one profile.
struct Lighting
{
    LightZone keys{
        {.effect = 1, .speed = 2, .brightness = 4, .option = 7, .red = 255, .green = 255, .blue = 255}};
    LightZone side{
        {.effect = 1, .speed = 2, .brightness = 4, .option = 7, .red = 255, .green = 255, .blue = 255}};
    bool on = true;
    Byte onSecond = 1; ///< the second byte of the on-off command

    Answer writeOnOff(const Frame &frame);
    Answer readOnOff(const Frame &frame) const;
};

constexpr std::size_t MusicLevels = 22;

/// The levels that the host sends while the music effect runs.
struct Music
{
    std::array<Byte, MusicLevels> levels{};
    unsigned reports = 0; ///< how many came
    TimePoint last{};

    Answer write(const Frame &frame, TimePoint now);
};

} // namespace sim

#pragma once

#include "Lighting.h"
#include "Macros.h"
#include "Magnetism.h"
#include "Pictures.h"
#include "Settings.h"

namespace sim {

/// What a keyboard keeps for each profile besides its key matrices.
struct ProfileState
{
    Magnetism magnetism;
    Lighting lighting;
};

/// Everything that a keyboard remembers; a plain value.
/// Commands for magnetism and light carry no profile and mean the active one.
struct KeyboardState
{
    Byte profile = 0; ///< the active one
    std::array<ProfileState, KeyMatrices::Profiles> profiles;
    KeyMatrices keys;
    Settings settings;
    Pictures pictures;
    Macros macros;
    Music music;
    Byte battery = 80; ///< percent; survives a factory reset
    unsigned factoryResets = 0;

    ProfileState &active() { return profiles[profile]; }
    const ProfileState &active() const { return profiles[profile]; }
};

constexpr Byte PictureEffect = 13;
constexpr Byte MusicEffect = 22;

/// What a keyboard's light looks like at a moment.
struct LightView
{
    bool on = false;
    LedParams keys;
    LedParams side;
    std::array<Colour, KeyMatrices::Positions> picture{}; ///< of the slot shown; black unless effect 13 runs
    std::array<Byte, MusicLevels> music{};                ///< last levels; 0 unless effect 22 runs
};

LightView lightOf(const KeyboardState &state);

} // namespace sim

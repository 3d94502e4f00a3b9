#pragma once

#include "KeyboardState.h"
#include "LightEffects.h"

namespace sim {

/// Plays a keyboard's light: turns what is set into a colour for each key and each lamp of the side strip,
/// moment by moment. Not thread-safe.
class LightShow
{
public:
    static constexpr int StripLamps = 24; ///< from left to right

    explicit LightShow(std::span<const KeySpot> keys);

    /// Goes on to \a now. A speed that changes bends the run and doesn't make it jump; after a pause it goes
    /// on where it was.
    void advance(const LightView &view, const KeySet &pressed, TimePoint now);
    /// Forgets what was pressed: another keyboard is looked at.
    void restart();

    std::span<const Colour> keys() const { return keyColours; } ///< in the order of the spots
    std::span<const Colour> strip() const { return stripColours; }
    /// True if the picture changes without anything being set.
    bool moves() const { return moving; }

private:
    void noteStrokes(const KeySet &pressed);
    void paintKeys(const LightView &view);
    void paintStrip(const LightView &view);

    LightBoard board;
    LightBoard stripBoard;
    std::vector<Colour> keyColours;
    std::vector<Colour> stripColours;
    std::vector<Stroke> strokes; ///< oldest first
    KeySet held;
    TimePoint last{};
    double keyPhase = 0;
    double stripPhase = 0;
    bool moving = false;
};

} // namespace sim

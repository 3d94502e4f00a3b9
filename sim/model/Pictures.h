#pragma once

#include "KeyMatrices.h"

namespace sim {

using Colour = std::array<Byte, 3>; ///< red, green, blue

/// User pictures: slots with one colour per key.
class Pictures
{
public:
    static constexpr int Slots = 5;
    static constexpr std::size_t WritePages = 7;
    static constexpr std::size_t ReadPages = 6;
    static constexpr std::size_t SlotSize = WritePages * Frame::PayloadSize; ///< 392: past the 128 keys

    Colour colour(int slot, int position) const;
    void setColour(int slot, int position, Colour colour);
    ByteView bytes(int slot) const { return slots[slot]; }
    /// Slots whose last write went through to its last page.
    unsigned completeWrites() const { return complete; }

    Answer write(const Frame &frame);
    Answer read(const Frame &frame) const;

private:
    std::array<std::array<Byte, SlotSize>, Slots> slots{};
    unsigned complete = 0;
};

} // namespace sim

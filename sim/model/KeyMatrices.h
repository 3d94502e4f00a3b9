#pragma once

#include "Frame.h"

#include <bitset>
#include <optional>

namespace sim {

/// What a command brings back; nothing if its arguments make no sense to the firmware.
using Answer = std::optional<Page>;

using KeyEntry = std::array<Byte, 4>;

/// The key functions: four layers in each of four profiles, and one Fn layer for all of them.
class KeyMatrices
{
public:
    static constexpr int Profiles = 4;
    static constexpr int Layers = 4;
    static constexpr int Positions = 128;
    static constexpr int FnPositions = 160; ///< ten pages; the positions past the keys hold nothing

    /// Factory state.
    KeyMatrices();

    /// Arguments must lie within the counts above.
    KeyEntry key(int profile, int layer, int position) const { return keys[profile][layer][position]; }
    void setKey(int profile, int layer, int position, KeyEntry entry)
    {
        keys[profile][layer][position] = entry;
    }
    KeyEntry fn(int position) const { return fnKeys[position]; }
    void setFn(int position, KeyEntry entry) { fnKeys[position] = entry; }
    /// True while a group of key writes has not seen its last frame.
    bool groupOpen() const { return group; }

    Answer writeKey(const Frame &frame);
    Answer readKeys(const Frame &frame) const;
    Answer writeFn(const Frame &frame);
    Answer readFn(const Frame &frame) const;

    /// What the factory puts on a position: layer 0, and the Fn layer.
    static KeyEntry factoryKey(int position);
    static KeyEntry factoryFn(int position);

private:
    using Layer = std::array<KeyEntry, Positions>;

    std::array<std::array<Layer, Layers>, Profiles> keys{};
    std::array<KeyEntry, FnPositions> fnKeys{};
    bool group = false;
};

using KeySet = std::bitset<KeyMatrices::Positions>;

} // namespace sim

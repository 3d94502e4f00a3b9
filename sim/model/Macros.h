#pragma once

#include "KeyMatrices.h"

#include <map>

namespace sim {

/// One macro as it was sent: repeat count, then the packed events with their padding.
struct Macro
{
    Bytes blob;
    bool complete = false; ///< the last page has come

    std::uint16_t repeat() const { return static_cast<std::uint16_t>(littleEndian(blob, 0, 2)); }
    ByteView events() const { return ByteView{blob}.subspan(blob.size() < 2 ? blob.size() : 2); }
};

/// The macro slots.
class Macros
{
public:
    static constexpr Byte Slots = 50;

    /// The macro in a slot, or null if there is none.
    const Macro *find(Byte slot) const;
    std::size_t count() const { return macros.size(); }

    Answer write(const Frame &frame);
    Answer read(const Frame &frame) const;

private:
    std::map<Byte, Macro> macros;
};

} // namespace sim

#pragma once

#include "Bytes.h"

namespace sim {

/// A command as the firmware sees it: transport framing taken off, 64 bytes, missing ones 0.
class Frame
{
public:
    static constexpr std::size_t Size = 64;
    static constexpr std::size_t PayloadOffset = 8;
    static constexpr std::size_t PayloadSize = Size - PayloadOffset;

    Frame() = default;
    /// Takes the command out of \a body; what lies past 64 bytes is ignored.
    explicit Frame(ByteView body);

    Byte command() const { return bytes[0]; }
    Byte operator[](std::size_t offset) const { return bytes[offset]; }
    ByteView payload() const { return ByteView{bytes}.subspan(PayloadOffset); }
    const std::array<Byte, Size> &data() const { return bytes; }

    /// True if the bytes up to and with the checksum add up to FF.
    bool checksumOk() const;

    /// The header alone (command, arguments, checksum), rest 0: how a write is acknowledged.
    Page acknowledgement() const;

private:
    std::array<Byte, Size> bytes{};
};

} // namespace sim

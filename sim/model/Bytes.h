#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

namespace sim {

using Byte = std::uint8_t;
using Bytes = std::vector<Byte>;
using ByteView = std::span<const Byte>;
using Clock = std::chrono::steady_clock;
using TimePoint = Clock::time_point;

/// One page of table data as the keyboard sends it: no header, just data.
constexpr std::size_t PageSize = 64;
using Page = std::array<Byte, PageSize>;

/// Little-endian value of \a width bytes (1 to 4) at \a offset; bytes past the end read as 0.
constexpr std::uint32_t littleEndian(ByteView data, std::size_t offset, std::size_t width)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width && offset + i < data.size(); ++i)
        value |= std::uint32_t{data[offset + i]} << (8 * i);
    return value;
}

/// Stores the low \a width bytes of \a value at \a offset; what would lie past the end is dropped.
constexpr void putLittleEndian(std::span<Byte> data, std::size_t offset, std::size_t width,
                               std::uint32_t value)
{
    for (std::size_t i = 0; i < width && offset + i < data.size(); ++i)
        data[offset + i] = static_cast<Byte>(value >> (8 * i));
}

} // namespace sim

#pragma once

#include "Bytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <QByteArray>

/// Takes an input apart from its front. Past the end there are zeros and empty texts.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t *data, std::size_t size)
        : at(data)
        , end(data + size)
    {
    }

    bool isEmpty() const { return at == end; }
    std::uint8_t byte() { return at == end ? std::uint8_t{0} : *at++; }
    std::uint16_t word() { return std::uint16_t(byte() | (byte() << 8)); }
    /// A text whose length the input tells in front of it.
    QByteArray text() { return take(byte()); }
    QByteArray rest() { return take(end - at); }
    sim::Bytes simText()
    {
        const QByteArray bytes = text();
        return {bytes.cbegin(), bytes.cend()};
    }

private:
    QByteArray take(std::ptrdiff_t length)
    {
        const auto *from = reinterpret_cast<const char *>(at);
        const auto taken = std::min(length, end - at);
        at += taken;
        return {from, taken};
    }

    const std::uint8_t *at;
    const std::uint8_t *end;
};

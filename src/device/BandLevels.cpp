#include "BandLevels.h"

#include "CommandCatalogue.h"
#include "Framing.h"
#include "SampleBlock.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Scale = 6.0;
constexpr double ByteValues = 256;
constexpr int Modulus = 255;

} // namespace

quint8 bandlevels::level(float sample)
{
    if (!std::isfinite(sample))
        return 0;
    const double scaled = std::trunc(std::abs(double(sample)) * Scale);
    const int lowByte = int(std::fmod(scaled, ByteValues));
    return quint8(std::min<int>(lowByte % Modulus, Highest));
}

QByteArray bandlevels::report(const SampleBlock &block)
{
    QByteArray frame = framing::bareCommand(framing::PayloadOffset + Count, {command::SetMusic});
    for (int i = 0; i < Count; ++i)
        frame[framing::PayloadOffset + i] = char(level(block.at(size_t(i))));
    return framing::wrapWired(framing::close(frame));
}

#pragma once

#include <QByteArray>

class SampleBlock;

/// What the keyboard's music effect is fed with. The "bands" are by design no spectrum: they are the first
/// samples of a block, rectified and scaled. Pure functions.
namespace bandlevels {

constexpr int Count = 22;
constexpr quint8 Highest = 6;

/// The level of a sample of full scale -1 to 1, whose sign doesn't count: 0 to Highest. Beyond full scale the
/// level is one byte of six times the sample before it is limited; what isn't a number gives 0.
quint8 level(float sample);

/// The levels of a block as the feature report that goes to a keyboard on the cable.
QByteArray report(const SampleBlock &block);

} // namespace bandlevels

#include "Sensors.h"

#include "Magnetism.h"

namespace sim {
namespace {

constexpr Byte KeyTestReportId = 0x05;
constexpr Byte KeyTestMark = 0x1B;
constexpr std::size_t KeyTestReportSize = 64;
constexpr std::size_t ReadingsPerPage = PageSize / 2;

} // namespace

Answer Sensors::switchKeyTest(const Frame &frame, TimePoint now)
{
    if (frame[1] > 1)
        return {};
    testing = frame[1] == 1;
    nextSample = now;
    return frame.acknowledgement();
}

Answer Sensors::switchCalibration(const Frame &frame, TimePoint now)
{
    if (frame[1] > 1)
        return {};
    scanning = frame[1] == 1;
    scanStart = now;
    return frame.acknowledgement();
}

Answer Sensors::read(const Frame &frame, TimePoint now) const
{
    const Byte page = frame[3];
    if (frame[2] != 1 || page >= findMagnetTable(SensorTable)->pages())
        return {};
    Page data{};
    for (std::size_t i = 0; i < ReadingsPerPage; ++i) {
        const int position = static_cast<int>(page * ReadingsPerPage + i);
        putLittleEndian(data, i * 2, 2, static_cast<std::uint32_t>(reading(position, now)));
    }
    return data;
}

int Sensors::reading(int position, TimePoint now) const
{
    const int depth = scanning ? fingers.peak(position, scanStart, now) : fingers.depth(position, now);
    return position == KnobPosition ? depth * KnobFullReading / FullTravel : depth;
}

std::optional<Bytes> Sensors::takeReport(TimePoint now)
{
    if (!testing)
        return {};
    while (nextReport() && nextSample <= now) {
        const int depth = fingers.deepest(nextSample);
        nextSample += KeyTestInterval;
        if (depth == lastDepth)
            continue;
        lastDepth = depth;
        Bytes report(KeyTestReportSize);
        report[0] = KeyTestReportId;
        report[1] = KeyTestMark;
        putLittleEndian(report, 2, 2, static_cast<std::uint32_t>(depth));
        return report;
    }
    nextSample = std::max(nextSample, now); // nothing moved up to now: no sample of the past is missing
    return {};
}

std::optional<TimePoint> Sensors::nextReport() const
{
    if (!testing)
        return {};
    const TimePoint rest = fingers.restsAt().value_or(nextSample);
    const bool moving = nextSample < rest || fingers.deepest(std::max(rest, nextSample)) != lastDepth;
    return moving ? std::optional{nextSample} : std::nullopt;
}

} // namespace sim

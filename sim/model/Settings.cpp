#include "Settings.h"

#include <algorithm>
#include <numeric>

namespace sim {
namespace {

constexpr Byte SlowestRate = 6; ///< code of 125 Hz
constexpr std::size_t ChecksumOffset = 7;

} // namespace

Answer Settings::writeReportRate(const Frame &frame)
{
    if (frame[2] > SlowestRate)
        return {};
    reportRate = frame[2];
    return frame.acknowledgement();
}

Answer Settings::readReportRate(const Frame &frame) const
{
    return Page{frame.command(), 0, reportRate};
}

Answer Settings::writeDebounce(const Frame &frame)
{
    debounce = frame[1];
    return frame.acknowledgement();
}

Answer Settings::readDebounce(const Frame &frame) const
{
    return Page{frame.command(), debounce};
}

Answer Settings::writeSleepTimes(const Frame &frame)
{
    for (std::size_t i = 0; i < sleepTimes.size(); ++i)
        sleepTimes[i] = static_cast<std::uint16_t>(littleEndian(frame.payload(), i * 2, 2));
    return frame.acknowledgement();
}

Answer Settings::readSleepTimes(const Frame &frame) const
{
    Page page{frame.command()};
    for (std::size_t i = 0; i < sleepTimes.size(); ++i)
        putLittleEndian(page, Frame::PayloadOffset + i * 2, 2, sleepTimes[i]);
    return page;
}

Answer Settings::writeOptions(const Frame &frame)
{
    options = frame.data();
    options[ChecksumOffset] = 0;
    return frame.acknowledgement();
}

Answer Settings::readOptions(const Frame &frame) const
{
    Page page = options;
    page[0] = frame.command();
    return page;
}

Page Settings::factoryOptions()
{
    Page page{0, 1, 0, 0, 0, 0, 0, 0};
    std::iota(page.begin() + Frame::PayloadOffset, page.end(), Byte{Frame::PayloadOffset});
    return page;
}

} // namespace sim

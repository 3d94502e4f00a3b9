#include "KernelDevice.h"

#include <cerrno>
#include <system_error>

namespace uhid {

sim::Bytes withReportId(const sim::ChannelInfo &channel, bool feature, sim::ByteView data)
{
    const std::size_t payload = feature ? channel.feature : channel.output;
    sim::Bytes report{data.begin(), data.end()};
    if (channel.reportId == 0 && report.size() == payload)
        report.insert(report.begin(), 0);
    return report;
}

void failSystemCall(const char *what)
{
    throw std::system_error{errno, std::generic_category(), what};
}

} // namespace uhid

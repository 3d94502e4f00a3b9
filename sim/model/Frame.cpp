#include "Frame.h"

#include <algorithm>
#include <numeric>

namespace sim {

Frame::Frame(ByteView body)
{
    std::copy_n(body.begin(), std::min(body.size(), Size), bytes.begin());
}

bool Frame::checksumOk() const
{
    // The two light commands carry blue at offset 7 and their checksum one place further on.
    const std::size_t covered = command() == 0x07 || command() == 0x08 ? 9 : 8;
    return std::accumulate(bytes.begin(), bytes.begin() + covered, 0u) % 256 == 0xFF;
}

Page Frame::acknowledgement() const
{
    Page page{};
    std::copy_n(bytes.begin(), PayloadOffset, page.begin());
    return page;
}

} // namespace sim

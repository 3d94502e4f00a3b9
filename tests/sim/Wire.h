#pragma once

#include "Bytes.h"
#include "ModelCatalog.h"
#include "VirtualBus.h"

#include <algorithm>
#include <hidapi/hidapi.h>
#include <initializer_list>
#include <memory>
#include <numeric>

/// A host written for these tests alone: it frames, sends and reads by hand.
namespace wire {

using sim::Byte;
using sim::Bytes;

struct Closer
{
    void operator()(hid_device *device) const { hid_close(device); }
};
using Handle = std::unique_ptr<hid_device, Closer>;

inline Handle open(const virtualhid::DevicePtr &device, sim::Channel channel)
{
    return Handle{hid_open_path(device->path(channel).c_str())};
}

/// 64 bytes with \a header from 0, its checksum, and \a payload behind it.
inline Bytes close(Bytes header, const Bytes &payload = {})
{
    const std::size_t place = header[0] == 0x07 || header[0] == 0x08 ? 8 : 7;
    header.resize(64);
    header[place] = static_cast<Byte>(~std::accumulate(header.begin(), header.begin() + place, 0u));
    std::copy(payload.begin(), payload.end(), header.begin() + 8);
    return header;
}

inline Bytes prefixed(Bytes prefix, const Bytes &body)
{
    prefix.insert(prefix.end(), body.begin(), body.end());
    return prefix;
}

/// \a count bytes from \a offset on, or as many of them as there are.
inline Bytes part(const Bytes &bytes, std::size_t offset, std::size_t count)
{
    const sim::ByteView rest = sim::ByteView{bytes}.subspan(std::min(offset, bytes.size()));
    const sim::ByteView found = rest.first(std::min(count, rest.size()));
    return {found.begin(), found.end()};
}

/// Sends a closed frame over the cable and reads the answer; empty if there is none.
inline Bytes askWired(hid_device *device, const Bytes &frame)
{
    const Bytes report = prefixed({0x00}, frame);
    Bytes reply(65);
    if (hid_send_feature_report(device, report.data(), report.size()) < 0)
        return {};
    const int count = hid_get_feature_report(device, reply.data(), reply.size());
    return count < 1 ? Bytes{} : Bytes(reply.begin() + 1, reply.begin() + count);
}

/// The next report of a wireless keyboard as it comes; empty after \a limit milliseconds.
inline Bytes readWireless(hid_device *device, int limit = 400)
{
    Bytes reply(66);
    const int count = hid_read_timeout(device, reply.data(), reply.size(), limit);
    return Bytes(reply.begin(), reply.begin() + std::max(count, 0));
}

inline void sendWireless(hid_device *device, const Bytes &frame)
{
    const Bytes report = prefixed({0x06, 0x55}, frame);
    hid_write(device, report.data(), report.size());
}

} // namespace wire

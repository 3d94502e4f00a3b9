#pragma once

#include "Bytes.h"
#include "Frame.h"
#include "ModelCatalog.h"

namespace virtualhid {

/// How a report went between host and device.
enum class Way : sim::Byte {
    FeatureSent, ///< hid_send_feature_report
    OutputSent,  ///< hid_write
    FeatureRead, ///< hid_get_feature_report
    InputRead,   ///< hid_read, hid_read_timeout
};

/// One call that reached a device, as the host made it.
struct Transfer
{
    sim::TimePoint when; ///< when the call came (reads: when it returned)
    Way way;
    sim::Channel channel;
    unsigned handle;   ///< which hid_open_path it came through; counts up from 1 over the process
    int result;        ///< what hidapi returned
    sim::Bytes report; ///< the report, its id first; for reads what was handed out
};

/// One command that a device received, taken out of its transport framing.
struct ReceivedFrame
{
    sim::TimePoint when;
    sim::Channel channel;
    unsigned handle;
    sim::Bytes report; ///< as it came, its id first
    sim::Frame frame;  ///< 64 bytes from the command byte on; meaningful for the native framing only

    sim::Byte command() const { return frame.command(); }
};

} // namespace virtualhid

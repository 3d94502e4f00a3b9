#pragma once

#include "Bytes.h"

#include <optional>

namespace virtualhid {

/// What goes wrong with one frame. Without any member set the frame runs as usual.
/// Members may be combined; lengths and bytes mean the reply behind its transport prefix.
struct Fault
{
    bool lostReply = false;                ///< executed, but no answer: -1 wired, a time-out wireless
    bool refused = false;                  ///< not received: the write returns -1
    bool unplug = false;                   ///< the device goes before it receives the frame
    bool noticeFirst = false;              ///< wireless: a report 06 77 comes before the reply
    std::optional<std::size_t> length;     ///< reply cut or zero-padded to this many bytes
    std::optional<sim::Byte> firstByte;    ///< reply starts with this
    std::optional<sim::Bytes> replacement; ///< reply as a whole; applied before length and firstByte
    std::chrono::milliseconds delay{0};    ///< reply comes this much later; a feature read waits for it

    static Fault lost() { return with(&Fault::lostReply, true); }
    static Fault writeRefused() { return with(&Fault::refused, true); }
    static Fault unplugged() { return with(&Fault::unplug, true); }
    static Fault notice() { return with(&Fault::noticeFirst, true); }
    static Fault shortReply(std::size_t bytes) { return with(&Fault::length, bytes); }
    static Fault wrongFirstByte(sim::Byte byte) { return with(&Fault::firstByte, byte); }
    static Fault reply(sim::Bytes bytes) { return with(&Fault::replacement, std::move(bytes)); }
    static Fault late(std::chrono::milliseconds by) { return with(&Fault::delay, by); }

private:
    template <typename Member, typename Value>
    static Fault with(Member Fault::*member, Value value);
};

/// Says which frames of a device a fault hits. Rules are tried in the order they were added, and the
/// first that applies is used up by one; a frame meets at most one rule.
struct FaultRule
{
    std::optional<std::size_t> frame{};  ///< number of the frame, 0 being the next one received
    std::optional<sim::Byte> command{};  ///< only frames with this command byte
    std::optional<std::size_t> times{1}; ///< how often it applies; empty means always
    Fault fault{};
};

template <typename Member, typename Value>
Fault Fault::with(Member Fault::*member, Value value)
{
    Fault fault;
    fault.*member = std::move(value);
    return fault;
}

} // namespace virtualhid

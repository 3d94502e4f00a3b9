#pragma once

#include "Firmware.h"
#include "ModelCatalog.h"

#include <memory>
#include <string>

namespace sim {

/// What a plugged device may have different from its model's row.
struct DeviceOptions
{
    std::optional<std::uint16_t> vendorId{};
    std::optional<std::uint16_t> productId{};
    std::optional<std::uint32_t> deviceId{};
    std::optional<std::uint16_t> firmware{};
    std::string serial{};
    Byte battery = 80; ///< percent
};

/// How a receiver behaves towards its keyboard.
struct ReceiverScript
{
    bool paired = true;
    unsigned pollsUntilOnline = 0;   ///< status polls that still say offline
    unsigned pollsUntilAnswered = 0; ///< status polls after a forwarded command that still say busy
};

enum class ReportType : Byte { Feature, Output };

/// What a device sends back for a report of the host.
struct Reply
{
    bool asInput = false;   ///< an input report; otherwise it waits for a feature read
    std::size_t prefix = 1; ///< bytes of transport framing in front
    Bytes report;           ///< report id first
    std::chrono::milliseconds latency{0};
};

struct Outcome
{
    bool accepted = true; ///< false: the write fails
    std::optional<Reply> reply;

    static Outcome refused() { return {false, {}}; }
    static Outcome silent() { return {}; }
    static Outcome answered(Reply reply) { return {true, std::move(reply)}; }
};

/// A device at its HID interfaces. Not thread-safe: its front end holds a lock.
class Device
{
public:
    virtual ~Device();
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    const Model &model() const { return row; }
    bool has(Channel channel) const;

    /// Takes one report of the host, its id first.
    virtual Outcome receive(Channel channel, ReportType type, ByteView report, TimePoint now) = 0;
    /// An input report that the device sends of its own accord and that is due, id first.
    virtual std::optional<Bytes> takeInput(Channel channel, TimePoint now);
    /// When to ask takeInput() again; nothing if nothing is going on.
    virtual std::optional<TimePoint> nextInput(Channel channel) const;
    /// The keyboard inside or behind the device, or null.
    virtual Firmware *firmware();
    /// Does nothing for a device that is no receiver.
    virtual void setReceiver(const ReceiverScript &script);
    /// What was wrong with the reports so far.
    FrameFaults frameFaults();

protected:
    explicit Device(const Model &model)
        : row(model)
    {
    }

    FrameFaults faults; ///< found before a frame reached the keyboard's firmware

private:
    Model row;
};

/// Makes the device that a row describes.
std::unique_ptr<Device> makeDevice(const Model &model, const DeviceOptions &options = {});

} // namespace sim

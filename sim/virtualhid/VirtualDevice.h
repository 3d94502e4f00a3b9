#pragma once

#include "Device.h"
#include "Fault.h"
#include "Traffic.h"

#include <functional>
#include <memory>
#include <string>

namespace virtualhid {

struct DeviceRecord;
class VirtualDevice;
using DevicePtr = std::shared_ptr<VirtualDevice>;

/// One device on the virtual bus: the script and the notebook around a sim::Device.
/// Every call takes the bus's lock and may come from any thread.
class VirtualDevice
{
public:
    ~VirtualDevice();
    VirtualDevice(const VirtualDevice &) = delete;
    VirtualDevice &operator=(const VirtualDevice &) = delete;

    const sim::Model &model() const;
    bool isPlugged() const;
    /// hidapi path of one of its interfaces; empty if the model has no such channel.
    std::string path(sim::Channel channel) const;
    int openHandles() const;

    // What came in

    std::vector<ReceivedFrame> frames() const; ///< since the plug or the last clearLog()
    std::vector<Transfer> transfers() const;   ///< the same with reads and their results
    std::size_t frameCount() const;
    void clearLog();
    /// Keeps only that many of the latest transfers (at first 10,000); 0 for runs that measure memory.
    void setLogLimit(std::size_t transfers);
    /// How many reports were wrong, and in what way. All zero for a host that keeps to the protocol.
    sim::FrameFaults frameFaults() const;

    // What goes wrong

    void addFault(FaultRule rule);
    /// Shorthand: \a fault hits the frame with that number, 0 being the next one received.
    void faultAtFrame(std::size_t frame, Fault fault);
    /// Shorthand: \a fault hits the next \a times frames with that command byte.
    void faultOnCommand(sim::Byte command, Fault fault, std::size_t times = 1);
    void clearFaults();
    /// The next \a times opens fail as if the device node were broken.
    void failOpens(unsigned times);
    /// Opens fail for want of permission until taken back.
    void denyOpens(bool deny);

    // What happens at the keyboard

    /// Lets a finger go down on a key now: to \a depth (0.005 mm; 720 is the bottom) within \a travelTime,
    /// staying for \a hold, and up again as fast.
    void press(int position, int depth = sim::FullTravel,
               std::chrono::milliseconds travelTime = std::chrono::milliseconds{60},
               std::chrono::milliseconds hold = std::chrono::milliseconds{100});
    /// Lets a finger follow \a path; times are offsets from now.
    void moveFinger(int position, const sim::FingerPath &path);
    /// Takes all fingers off at once.
    void liftFingers();
    /// Puts any input report (its id first) into the queues of that channel's open handles.
    void injectInput(sim::Channel channel, const sim::Bytes &report);

    // What the firmware holds (keyboards, or the one behind a receiver; other devices throw std::logic_error)

    sim::KeyboardState state() const;                                   ///< a copy
    void edit(const std::function<void(sim::KeyboardState &)> &change); ///< under the lock; keep it short
    sim::LightView light() const;                                       ///< what shines now
    sim::KeySet pressedKeys() const;                                    ///< the keys that are down now
    bool keyTestRunning() const;
    bool calibrating() const;
    /// Receiver: whether the keyboard is paired, and after how many status polls it wakes and answers.
    void setReceiver(const sim::ReceiverScript &script);

private:
    friend struct BusState;

    explicit VirtualDevice(std::unique_ptr<DeviceRecord> record);
    sim::Firmware &firmware() const;

    std::unique_ptr<DeviceRecord> record;
};

} // namespace virtualhid

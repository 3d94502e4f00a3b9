// Any answers, faults and unplugs against two passes of the search for keyboards, with the shipped
// catalogues, and what the list of devices makes of them. The input first names the devices, two bits of a
// byte for each.

#include "DeviceList.h"
#include "FuzzClock.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "ScanPass.h"
#include "VirtualBus.h"

using namespace std::chrono_literals;
using virtualhid::DevicePtr;
using virtualhid::Fault;
using virtualhid::VirtualBus;

namespace {

constexpr std::size_t MostFaults = 24;
constexpr auto LongestPass = 8s; ///< a device that keeps the answer to itself is asked without an end
constexpr auto DelayUnit = 5ms;

std::vector<DevicePtr> plugDevices(FuzzInput &input)
{
    std::vector<DevicePtr> devices;
    const unsigned chosen = input.word();
    for (std::size_t i = 0; i < sim::Models.size(); ++i) {
        if (chosen >> i & 1)
            devices.push_back(VirtualBus::instance().plug(sim::Models[i].name));
    }
    return devices;
}

void addTrouble(FuzzInput &input, VirtualBus &bus, const DevicePtr &device)
{
    switch (input.byte() % 9) {
    case 0:
        return device->addFault({.fault = Fault::lost()});
    case 1:
        return device->addFault({.fault = Fault::writeRefused()});
    case 2:
        return device->addFault({.fault = Fault::unplugged()});
    case 3:
        return device->addFault({.fault = Fault::late(input.byte() * DelayUnit)});
    case 4:
        return device->failOpens(input.byte() % 4);
    case 5:
        return device->injectInput(sim::Channel(input.byte() % sim::ChannelTable.size()), input.simText());
    case 6:
        return device->setReceiver({input.byte() % 2 == 0, input.byte() % 8u, input.byte() % 8u});
    case 7:
        return bus.unplug(device);
    default:
        return device->addFault({.times = 1 + input.byte() % 16, .fault = Fault::reply(input.simText())});
    }
}

void scan(KeptHandles &kept, DeviceList &list, bool tarnwickBuild)
{
    ScanStop stop;
    fuzzclock::setAlarm(LongestPass, [&stop] { stop.request(); });
    ScanPass pass(stop, kept, tarnwickBuild);
    pass.run();
    fuzzclock::setAlarm(0s, {});
    list.applyPass(pass.takeResult());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    VirtualBus &bus = VirtualBus::instance();
    const bool tarnwickBuild = input.byte() & 1;
    const std::vector<DevicePtr> devices = plugDevices(input);
    {
        KeptHandles kept;
        DeviceList list;
        for (std::size_t pass = 0; pass < 2; ++pass) {
            const std::size_t troubles = std::min<std::size_t>(input.byte(), MostFaults);
            for (std::size_t i = 0; i < troubles && !devices.empty() && !input.isEmpty(); ++i)
                addTrouble(input, bus, devices[input.byte() % devices.size()]);
            scan(kept, list, tarnwickBuild);
        }
    }
    fuzzprogram::require(bus.counters().misuses == 0 && bus.openHandles() == 0);
    bus.reset();
    return 0;
}

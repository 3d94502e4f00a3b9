// Any answers, faults and unplugs against the connection with its pump, cache and console, while the
// operations of the pages are called. The input is a script: a byte for what happens, then what that takes.

#include "FuzzClock.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "KeptConnection.h"
#include "KeyboardOperations.h"

using namespace std::chrono_literals;
using virtualhid::Fault;

namespace {

constexpr std::array Models{"wired-500", "wired-2ff", "bluetooth"};
constexpr int MostEvents = 24;
constexpr int Layers = 4;
constexpr auto ShortestTime = 2ms;
constexpr auto EndTime = 100ms;

Fault faultFrom(FuzzInput &input)
{
    switch (input.byte() % 7) {
    case 0:
        return Fault::lost();
    case 1:
        return Fault::writeRefused();
    case 2:
        return Fault::unplugged();
    case 3:
        return Fault::notice();
    case 4:
        return Fault::late(input.byte() * ShortestTime);
    case 5:
        return Fault::shortReply(input.byte());
    default:
        return Fault::wrongFirstByte(input.byte());
    }
}

void happen(FuzzInput &input, KeptConnection &link)
{
    auto &bus = virtualhid::VirtualBus::instance();
    switch (input.byte() % 9) {
    case 0:
        return link.keyboard->addFault({.fault = faultFrom(input)});
    case 1:
        return link.keyboard->injectInput(sim::Channel(input.byte() % sim::ChannelTable.size()),
                                          input.simText());
    case 2:
        return callOperation(input, link.connection);
    case 3:
        bus.unplug(link.keyboard);
        return link.connection.deviceChanged();
    case 4:
        bus.replug(link.keyboard);
        return link.connection.deviceChanged();
    case 5:
        return link.keyboard->failOpens(input.byte() % 4);
    case 6:
        return fuzzclock::letTimePass(input.byte() * ShortestTime);
    case 7:
        return link.keyboard->addFault({.fault = Fault::reply(input.simText())});
    default:
        return link.reconnect();
    }
}

// As the page shell does.
void followLayer(DialogDeviceConnect &connection)
{
    QObject::connect(&connection, &DialogDeviceConnect::onUpdataLayer, &connection, [&connection](int layer) {
        if (layer >= 0 && layer < Layers)
            connection.DoSetProfile(quint8(layer));
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::uint8_t kind = input.byte();
    KeptConnection link(Models[kind % Models.size()]);
    if (kind & 0x80)
        followLayer(link.connection);
    for (int i = 0; i < MostEvents && !input.isEmpty(); ++i)
        happen(input, link);
    fuzzclock::letTimePass(EndTime);
    return 0;
}

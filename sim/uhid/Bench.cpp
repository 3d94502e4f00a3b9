#include "Bench.h"

#include <cerrno>
#include <iomanip>
#include <limits>
#include <ostream>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace uhid {
namespace {

constexpr std::chrono::milliseconds TravelTime{60}; ///< of a pressed key, each way
constexpr std::string_view UsbPrefix = "usb:";

/// A number out of the arguments, or \a fallback if it isn't there. Throws std::invalid_argument.
int numberAt(const std::vector<std::string> &arguments, std::size_t index, int fallback)
{
    return index < arguments.size() ? std::stoi(arguments[index], nullptr, 0) : fallback;
}

int numberBelow(int limit, const std::vector<std::string> &arguments, std::size_t index)
{
    const int number = numberAt(arguments, index, 0);
    if (number < 0 || number >= limit)
        throw std::invalid_argument{"out of range: " + arguments[index]};
    return number;
}

} // namespace

struct Bench::Command
{
    std::string_view name;
    std::string_view help;
    std::size_t arguments; ///< the least number of them
    void (*run)(Bench &bench, const Arguments &arguments);
};

std::span<const Bench::Command> Bench::commands()
{
    static constexpr Command Commands[] = {
        {"plug", "plug [usb:]MODEL                      make a device of that model", 1,
         [](Bench &bench, const Arguments &arguments) { bench.plug(arguments[0]); }},
        {"unplug", "unplug NUMBER                         take a device away", 1,
         [](Bench &bench, const Arguments &arguments) { bench.unplug(arguments); }},
        {"press", "press NUMBER POSITION [DEPTH [HOLD]]  press a key, in 0.005 mm and milliseconds", 2,
         [](Bench &bench, const Arguments &arguments) { bench.press(arguments); }},
        {"battery", "battery NUMBER PERCENT                set what the keyboard reports", 2,
         [](Bench &bench, const Arguments &arguments) { bench.battery(arguments); }},
        {"status", "status                                list the devices and what they received", 0,
         [](Bench &bench, const Arguments &) { bench.status(); }},
        {"state", "state NUMBER                          what a keyboard is doing", 1,
         [](Bench &bench, const Arguments &arguments) { bench.state(arguments); }},
        {"key", "key NUMBER LAYER POSITION             what a key does in the active profile, as hex", 3,
         [](Bench &bench, const Arguments &arguments) { bench.key(arguments); }},
        {"value", "value NUMBER TABLE POSITION           a key's value in a magnetism table", 3,
         [](Bench &bench, const Arguments &arguments) { bench.value(arguments); }},
    };
    return Commands;
}

Bench::Bench(std::ostream &output, bool verbose)
    : out(output)
    , logReports(verbose)
{
}

bool Bench::run(const std::string &line)
{
    std::istringstream words{line};
    std::string name;
    if (!(words >> name))
        return true;
    if (name == "quit")
        return false;
    Arguments arguments;
    for (std::string word; words >> word;)
        arguments.push_back(word);
    try {
        for (const Command &command : commands()) {
            if (command.name == name && arguments.size() >= command.arguments) {
                command.run(*this, arguments);
                return true;
            }
        }
        throw std::invalid_argument{"not understood: " + line};
    } catch (const std::exception &error) { // also what std::stoi throws
        out << "error " << error.what() << std::endl;
    }
    return true;
}

void Bench::plug(const std::string &model)
{
    const bool usb = model.starts_with(UsbPrefix);
    const sim::Model *row = sim::findModel(usb ? model.substr(UsbPrefix.size()) : model);
    if (!row)
        throw std::invalid_argument{"no such model: " + model};
    if (usb && row->channelList().back() == sim::Channel::Bluetooth)
        throw std::invalid_argument{"a device without a cable: " + model};
    const unsigned number = ++lastNumber;
    const auto ready = [this, number, row] { out << "ready " << number << ' ' << row->name << std::endl; };
    const auto log = [this, number](sim::Channel channel, bool feature, sim::ByteView report) {
        if (!logReports)
            return;
        out << "report " << number << ' ' << sim::channelInfo(channel).name
            << (feature ? " feature" : " output") << std::hex << std::setfill('0');
        for (const sim::Byte byte : report)
            out << ' ' << std::setw(2) << int{byte};
        out << std::dec << std::endl;
    };
    devices[number] = std::make_unique<PluggedDevice>(number, *row, usb ? Way::Usb : Way::Uhid, ready, log);
}

void Bench::unplug(const Arguments &arguments)
{
    deviceOf(arguments);
    const int number = numberAt(arguments, 0, 0);
    devices.erase(static_cast<unsigned>(number));
    out << "gone " << number << std::endl;
}

void Bench::press(const Arguments &arguments)
{
    const int depth = numberAt(arguments, 2, sim::FullTravel);
    const std::chrono::milliseconds hold{numberAt(arguments, 3, 100)};
    firmwareOf(arguments).sensors.fingers.move(numberAt(arguments, 1, 0),
                                               sim::keyStroke(depth, TravelTime, hold), sim::Clock::now());
}

void Bench::battery(const Arguments &arguments)
{
    firmwareOf(arguments).state.battery = static_cast<sim::Byte>(numberAt(arguments, 1, 0));
}

void Bench::status()
{
    for (const auto &[number, plugged] : devices) {
        const sim::FrameFaults faults = plugged->device().frameFaults();
        out << "device " << number << ' ' << plugged->device().model().name << " reports "
            << plugged->reports() << " badchecksum " << faults.badChecksums << " unknown " << faults.unknown
            << " malformed " << faults.malformed << " oddlength " << faults.oddLengths << " misrouted "
            << faults.misrouted << std::endl;
    }
    out << "end" << std::endl;
}

void Bench::state(const Arguments &arguments)
{
    const sim::Firmware &firmware = firmwareOf(arguments);
    out << "state " << arguments[0] << " profile " << int{firmware.state.profile} << " keytest "
        << firmware.sensors.keyTest() << " calibrating " << firmware.sensors.calibrating() << " battery "
        << int{firmware.state.battery} << std::endl;
}

void Bench::key(const Arguments &arguments)
{
    const sim::KeyboardState &state = firmwareOf(arguments).state;
    const int layer = numberBelow(sim::KeyMatrices::Layers, arguments, 1);
    const int position = numberBelow(sim::KeyMatrices::Positions, arguments, 2);
    out << "key " << arguments[0] << ' ' << layer << ' ' << position << std::hex << std::setfill('0');
    for (const sim::Byte byte : state.keys.key(state.profile, layer, position))
        out << ' ' << std::setw(2) << int{byte};
    out << std::dec << std::endl;
}

void Bench::value(const Arguments &arguments)
{
    const int table = numberBelow(256, arguments, 1);
    const int position = numberBelow(sim::KeyMatrices::Positions, arguments, 2);
    out << "value " << arguments[0] << ' ' << table << ' ' << position << ' '
        << firmwareOf(arguments).state.active().magnetism.value(static_cast<sim::Byte>(table), position)
        << std::endl;
}

PluggedDevice &Bench::deviceOf(const Arguments &arguments)
{
    const auto device = devices.find(static_cast<unsigned>(numberAt(arguments, 0, 0)));
    if (device == devices.end())
        throw std::invalid_argument{"no such device"};
    return *device->second;
}

sim::Firmware &Bench::firmwareOf(const Arguments &arguments)
{
    if (sim::Firmware *firmware = deviceOf(arguments).device().firmware())
        return *firmware;
    throw std::invalid_argument{"this device is no keyboard"};
}

bool Bench::wait(int commandFile)
{
    std::vector<pollfd> files{{commandFile, POLLIN, 0}};
    std::vector<KernelDevice *> kernelDevices;
    for (const auto &[number, plugged] : devices) {
        for (const auto &kernelDevice : plugged->links()) {
            files.push_back({kernelDevice->descriptor(), POLLIN, 0});
            kernelDevices.push_back(kernelDevice.get());
        }
    }
    if (::poll(files.data(), files.size(), pollTimeout()) < 0 && errno != EINTR)
        throw std::system_error{errno, std::generic_category(), "poll"};
    for (std::size_t i = 0; i < kernelDevices.size(); ++i) {
        if (files[i + 1].revents & POLLIN)
            kernelDevices[i]->handleEvent();
    }
    for (const auto &[number, plugged] : devices)
        plugged->sendDue(sim::Clock::now());
    return files[0].revents != 0;
}

/// Milliseconds until the next input report is due, rounded up; -1 while nothing is.
int Bench::pollTimeout() const
{
    std::optional<sim::TimePoint> next;
    for (const auto &[number, plugged] : devices) {
        if (const auto due = plugged->nextDue(); due && (!next || *due < *next))
            next = due;
    }
    if (!next)
        return -1;
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(*next - sim::Clock::now());
    return static_cast<int>(std::max<std::int64_t>(rest.count(), 0));
}

void Bench::printHelp(std::ostream &output)
{
    output << "Commands on standard input:\n";
    for (const Command &command : commands())
        output << "  " << command.help << '\n';
    output << "  quit\n\nModels:\n";
    for (const sim::Model &model : sim::Models)
        output << "  " << model.name << '\n';
}

} // namespace uhid

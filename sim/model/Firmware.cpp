#include "Firmware.h"

#include <algorithm>

namespace sim {
namespace {

constexpr Byte ActuationTable = 0x00;

using Run = Answer (*)(Firmware &, const Frame &, TimePoint);

/// A command that a part of the keyboard's state carries out.
template <auto Part, auto Method>
Answer inState(Firmware &firmware, const Frame &frame, TimePoint)
{
    return ((firmware.state.*Part).*Method)(frame);
}

/// A command for the magnetism of the active profile.
Answer writeMagnetism(Firmware &firmware, const Frame &frame, TimePoint)
{
    return firmware.state.active().magnetism.write(frame);
}

Answer readMagnetism(Firmware &firmware, const Frame &frame, TimePoint now)
{
    return frame[1] == SensorTable ? firmware.sensors.read(frame, now)
                                   : firmware.state.active().magnetism.read(frame);
}

/// A command for one of the two light zones of the active profile.
template <LightZone Lighting::*Zone>
Answer writeLight(Firmware &firmware, const Frame &frame, TimePoint)
{
    return (firmware.state.active().lighting.*Zone).write(frame);
}

template <LightZone Lighting::*Zone>
Answer readLight(Firmware &firmware, const Frame &frame, TimePoint)
{
    return (firmware.state.active().lighting.*Zone).read(frame);
}

/// Arguments without a meaning known here: kept, and handed back by the read command.
template <std::array<Byte, 6> Settings::*Field>
Answer writeRaw(Firmware &firmware, const Frame &frame, TimePoint)
{
    std::copy_n(frame.data().begin() + 1, 6, (firmware.state.settings.*Field).begin());
    return frame.acknowledgement();
}

template <std::array<Byte, 6> Settings::*Field>
Answer readRaw(Firmware &firmware, const Frame &frame, TimePoint)
{
    Page page{frame.command()};
    std::ranges::copy(firmware.state.settings.*Field, page.begin() + 1);
    return page;
}

Answer acknowledge(Firmware &, const Frame &frame, TimePoint)
{
    return frame.acknowledgement();
}

Answer identity(Firmware &firmware, const Frame &, TimePoint)
{
    return identityPage(firmware.id(), firmware.version());
}

Answer factoryReset(Firmware &firmware, const Frame &frame, TimePoint)
{
    KeyboardState fresh;
    fresh.battery = firmware.state.battery;
    fresh.factoryResets = firmware.state.factoryResets + 1;
    firmware.state = fresh;
    return frame.acknowledgement();
}

Answer setProfile(Firmware &firmware, const Frame &frame, TimePoint)
{
    if (frame[1] >= KeyMatrices::Profiles)
        return {};
    firmware.state.profile = frame[1];
    return frame.acknowledgement();
}

// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): a row reads best with its number in front
struct Command
{
    Byte number;
    Run run;
    bool magnetic = false; ///< only in firmware with magnetism tables
};

using State = KeyboardState;

constexpr Command Commands[] = {
    {0x00, acknowledge},
    {0x8F, identity},
    {0x01, factoryReset},
    {0x81, acknowledge},
    {0x02, acknowledge},
    {0x82,
     [](Firmware &f, const Frame &frame, TimePoint) -> Answer {
         return Page{frame.command(), f.state.battery};
     }},
    {0x03, inState<&State::settings, &Settings::writeReportRate>},
    {0x83, inState<&State::settings, &Settings::readReportRate>},
    {0x04, setProfile},
    {0x84,
     [](Firmware &f, const Frame &frame, TimePoint) -> Answer {
         return Page{frame.command(), f.state.profile};
     }},
    {0x05,
     [](Firmware &f, const Frame &frame, TimePoint) { return f.state.active().lighting.writeOnOff(frame); }},
    {0x85,
     [](Firmware &f, const Frame &frame, TimePoint) { return f.state.active().lighting.readOnOff(frame); }},
    {0x06, inState<&State::settings, &Settings::writeDebounce>},
    {0x86, inState<&State::settings, &Settings::readDebounce>},
    {0x07, writeLight<&Lighting::keys>},
    {0x87, readLight<&Lighting::keys>},
    {0x08, writeLight<&Lighting::side>},
    {0x88, readLight<&Lighting::side>},
    {0x09, inState<&State::settings, &Settings::writeOptions>},
    {0x89, inState<&State::settings, &Settings::readOptions>},
    {0x0A, inState<&State::keys, &KeyMatrices::writeKey>},
    {0x8A, inState<&State::keys, &KeyMatrices::readKeys>},
    {0x0B, inState<&State::macros, &Macros::write>},
    {0x8B, inState<&State::macros, &Macros::read>},
    {0x0C, inState<&State::pictures, &Pictures::write>},
    {0x8C, inState<&State::pictures, &Pictures::read>},
    {0x0D, [](Firmware &f, const Frame &frame, TimePoint now) { return f.state.music.write(frame, now); }},
    {0x0E, acknowledge},
    {0x10, inState<&State::keys, &KeyMatrices::writeFn>},
    {0x90, inState<&State::keys, &KeyMatrices::readFn>},
    {0x11, inState<&State::settings, &Settings::writeSleepTimes>},
    {0x91, inState<&State::settings, &Settings::readSleepTimes>},
    {0x12, acknowledge},
    {0x17, writeRaw<&Settings::autoOs>},
    {0x97, readRaw<&Settings::autoOs>},
    {0x50, writeRaw<&Settings::sku>},
    {0xD0, readRaw<&Settings::sku>},
    {0x1D, acknowledge, true},
    {0x9D, acknowledge, true},
    {0x1B,
     [](Firmware &f, const Frame &frame, TimePoint now) { return f.sensors.switchKeyTest(frame, now); }},
    {0x1E,
     [](Firmware &f, const Frame &frame, TimePoint now) { return f.sensors.switchCalibration(frame, now); }},
    {0x65, writeMagnetism, true},
    {0xE5, readMagnetism, true},
};

const Command *findCommand(Byte number)
{
    const auto *command = std::ranges::find(Commands, number, &Command::number);
    return command == std::end(Commands) ? nullptr : command;
}

} // namespace

Firmware::Firmware(std::uint32_t id, std::uint16_t version)
    : deviceId(id)
    , firmwareVersion(version)
{
}

Answer Firmware::execute(const Frame &frame, TimePoint now)
{
    if (!frame.checksumOk()) {
        ++faults.badChecksums;
        return {};
    }
    const Command *command = findCommand(frame.command());
    if (!command || (command->magnetic && firmwareVersion < MagnetismVersion)) {
        ++faults.unknown;
        return frame.acknowledgement();
    }
    if (const Answer answer = command->run(*this, frame, now))
        return answer;
    ++faults.malformed;
    return frame.acknowledgement();
}

KeySet Firmware::pressedKeys(TimePoint now) const
{
    KeySet pressed;
    for (int position = 0; position < KeyMatrices::Positions; ++position) {
        const int depth = sensors.fingers.depth(position, now);
        const auto actuation = state.active().magnetism.value(ActuationTable, position);
        pressed[static_cast<std::size_t>(position)] =
            depth > 0 && depth >= static_cast<int>(std::min<std::uint32_t>(actuation, FullTravel));
    }
    return pressed;
}

Page identityPage(std::uint32_t id, std::uint16_t version)
{
    Page page{0x8F};
    putLittleEndian(page, 1, 4, id);
    putLittleEndian(page, 7, 2, version);
    return page;
}

FrameFaults FrameFaults::operator+(const FrameFaults &other) const
{
    return {badChecksums + other.badChecksums, unknown + other.unknown, malformed + other.malformed,
            oddLengths + other.oddLengths, misrouted + other.misrouted};
}

} // namespace sim

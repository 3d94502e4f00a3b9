#pragma once

#include "PluggedDevice.h"

#include <iosfwd>

namespace uhid {

/// The plugged devices, and the commands that change them. One thread.
class Bench
{
public:
    /// Says what happens on \a output, one line each; with \a verbose also each report that comes in.
    Bench(std::ostream &output, bool verbose);

    /// Runs one command line; false after "quit". What is wrong with it is said on the output.
    bool run(const std::string &line);
    /// Plugs a model as HID devices, or as a USB device if its name has "usb:" before it. Throws
    /// std::invalid_argument for a name that isn't known, std::system_error if the kernel refuses.
    void plug(const std::string &model);

    /// Waits for the kernel, \a commands becoming readable, or the next input report, and does what is due.
    /// True if \a commands is readable; -1 stands for none. Throws std::system_error.
    bool wait(int commands);

    static void printHelp(std::ostream &output);

private:
    using Arguments = std::vector<std::string>;
    struct Command;

    static std::span<const Command> commands();

    void unplug(const Arguments &arguments);
    void press(const Arguments &arguments);
    void battery(const Arguments &arguments);
    void status();
    void state(const Arguments &arguments);
    void key(const Arguments &arguments);
    void value(const Arguments &arguments);
    PluggedDevice &deviceOf(const Arguments &arguments);
    sim::Firmware &firmwareOf(const Arguments &arguments);
    int pollTimeout() const;

    std::ostream &out;
    bool logReports;
    unsigned lastNumber = 0;
    std::map<unsigned, std::unique_ptr<PluggedDevice>> devices;
};

} // namespace uhid

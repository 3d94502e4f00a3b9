// Virtual keyboards as HID or USB devices of the kernel.

#include "Bench.h"

#include <csignal>
#include <iostream>
#include <system_error>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t stopped = 0;

void stop(int)
{
    stopped = 1;
}

void catchSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = stop;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaction(signal, &action, nullptr);
}

/// Reads what is there and runs the whole lines of it; false at the end of input or after "quit".
bool runCommands(uhid::Bench &bench, std::string &rest)
{
    char buffer[4096];
    const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (count <= 0)
        return false;
    rest.append(buffer, static_cast<std::size_t>(count));
    for (std::size_t end; (end = rest.find('\n')) != std::string::npos; rest.erase(0, end + 1)) {
        if (!bench.run(rest.substr(0, end)))
            return false;
    }
    return true;
}

void printUsage()
{
    std::cout
        << "Usage: orbe-uhid [--stay] [--verbose] [MODEL...]\n\n"
           "Makes virtual keyboards real devices of the kernel, until standard input ends: HID devices\n"
           "through /dev/uhid, or with usb: before the model a USB device at the module vhci-hcd.\n\n"
           "  --stay     take no commands and run until a signal\n"
           "  --verbose  print each report that comes in\n\n";
    uhid::Bench::printHelp(std::cout);
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    bool stay = false;
    bool verbose = false;
    std::vector<std::string> models;
    for (const std::string &argument : arguments) {
        if (argument == "--stay") {
            stay = true;
        } else if (argument == "--verbose") {
            verbose = true;
        } else if (argument.starts_with('-')) {
            printUsage();
            return argument == "--help" ? 0 : 2;
        } else
            models.push_back(argument);
    }
    try {
        uhid::Bench bench{std::cout, verbose};
        for (const std::string &model : models)
            bench.plug(model);
        catchSignals();
        std::string rest;
        while (!stopped) {
            if (bench.wait(stay ? -1 : STDIN_FILENO) && !runCommands(bench, rest))
                break;
        }
    } catch (const std::exception &error) {
        std::cerr << "orbe-uhid: " << error.what() << std::endl;
        return 1;
    }
    return 0;
}

// Any text as the steps of a macro: what was understood must come back from what is written of it, and is
// packed for the keyboard.

#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "MacroFrames.h"
#include "MacroJson.h"

namespace {

void fill(Macro &macro, macrojson::Events &read)
{
    for (auto &event : read.events)
        macro.events.append(event.release());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    macrojson::Events read = macrojson::readEvents(FuzzInput(data, size).rest());
    Macro macro;
    fill(macro, read);
    const QByteArray written = macrojson::writeEvents(macro);
    macrojson::Events readAgain = macrojson::readEvents(written);
    Macro again;
    fill(again, readAgain);
    fuzzprogram::require(readAgain.isComplete && macrojson::writeEvents(again) == written);
    const QByteArray stream = PackMacro(&macro);
    fuzzprogram::require(stream == PackMacro(&again) && stream.size() <= 3 * macro.events.size());
    fuzzprogram::require(!macroframes::setMacro(0, 1, stream).isEmpty());
    return 0;
}

// Any text as the list of macros; what was understood must come back from what is written of it.

#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "MacroJson.h"
#include "ModuleMacroManager.h"

namespace {

QList<Macro *> listOf(const macrojson::Header &header)
{
    QList<Macro *> list;
    for (const auto &macro : header.macros)
        list.append(macro.get());
    return list;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const macrojson::Header read = macrojson::readHeader(FuzzInput(data, size).rest());
    fuzzprogram::require(read.macros.size() <= ModuleMacroManager::MostMacros);
    const QByteArray written = macrojson::writeHeader(listOf(read));
    const macrojson::Header again = macrojson::readHeader(written);
    fuzzprogram::require(again.isComplete && macrojson::writeHeader(listOf(again)) == written);
    return 0;
}

// Any text as the catalogue of a brand.

#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "OrbeDeviceBase.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString path = fuzzprogram::configPath("OrbeHubDevices.json");
    constexpr std::array<quint32, 5> Ids{0, 1, 0x0AF7, 0x10000, 0xFFFFFFFF};
    fuzzprogram::write(path, FuzzInput(data, size).rest());
    for (const quint32 id : Ids) {
        quint16 type = 7;
        const QString name = OrbeDeviceBase::lookupName(id, type, OrbeDeviceBase::FirstBrand);
        fuzzprogram::require(name == name.trimmed());
    }
    return 0;
}

// Any text as the custom list of devices.

#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "OrbeDeviceBase.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString path = fuzzprogram::configPath("CustomDeviceList.json");
    fuzzprogram::write(path, FuzzInput(data, size).rest());
    QString name = QStringLiteral("unchanged");
    quint16 type = 7;
    quint16 connection = 7;
    const quint64 id = OrbeDeviceBase::lookupCustom(0x38EE, 0x0031, 81, name, type, connection);
    fuzzprogram::require(id <= 0xFFFF && name == name.trimmed());
    OrbeDeviceBase::lookupCustom(0, 0, 0, name, type, connection);
    OrbeDeviceBase::lookupName(1, type, OrbeDeviceBase::CustomList);
    return 0;
}

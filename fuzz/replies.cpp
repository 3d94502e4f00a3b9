// Any bytes as reports from the cable and the air, as pages of the cache in any order, and what the pages
// then read out of it. Without time and transport, so that far more is tried than in the program
// "connection".

#include "ConsoleLog.h"
#include "DeviceCache.h"
#include "Framing.h"
#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "KeyMatrix.h"
#include "ModuleGenKeymapping.h"

#include <span>

namespace {

constexpr int MostPages = 32;
constexpr int MostCodes = 32;

QByteArray replyFrom(FuzzInput &input, bool wireless)
{
    const QByteArray report = input.text();
    const std::span bytes(reinterpret_cast<const quint8 *>(report.constData()), size_t(report.size()));
    const int result = qint8(input.byte());
    return wireless && !framing::isWirelessNotice(bytes) ? framing::unwrapWireless(bytes, result)
                                                         : framing::unwrapWired(bytes, result);
}

void store(DeviceCache &cache, FuzzInput &input)
{
    const quint8 kind = input.byte();
    const quint8 place = input.byte();
    const QByteArray reply = replyFrom(input, kind & 0x80);
    switch (kind % 0x80 % 11) {
    case 0:
        cache.storeInfo(reply);
        break;
    case 1:
        cache.storeLedParams(reply);
        break;
    case 2:
        cache.storeSideLedParams(reply);
        break;
    case 3:
        cache.storeSleepTimes(reply);
        break;
    case 4:
        cache.appendKeyPage(place, reply);
        break;
    case 5:
        cache.appendFnPage(place, reply);
        break;
    case 6:
        cache.appendMagnetPage(place, reply);
        break;
    case 7:
        cache.appendPicturePage(place, reply);
        break;
    case 8:
        cache.appendCalibrationPage(reply);
        break;
    case 9:
        cache.beginRead();
        break;
    default:
        cache.endRead();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QByteArray factoryMatrix = keys::defaultKeyMatrix();
    FuzzInput input(data, size);
    DeviceCache cache;
    for (int i = 0; i < MostPages && !input.isEmpty(); ++i) {
        store(cache, input);
        const quint8 position = input.byte();
        const quint8 place = input.byte();
        cache.setMagnetism(place, position, cache.magnetism(place, position) + position);
        const KeyEntry entry = cache.keyEntry(position, place);
        cache.setKeyEntry(position, place, entry);
        ModuleGenKeymapping::KeyEntryText(entry, position & 1);
    }
    const QByteArray matrix = cache.keyMatrix[0];
    fuzzprogram::require(keys::SetDefaultKeyMap(matrix) == (matrix.size() >= keys::MatrixSize));
    for (const char code : matrix.left(MostCodes))
        keys::IsModifiedEntry(keys::PositionOfCode(quint8(code)), keys::DefaultEntryAt(quint8(code)));
    fuzzprogram::require(keys::SetDefaultKeyMap(factoryMatrix));
    fuzzprogram::require(ConsoleLog::format(cache.deviceInfo).size() >= cache.deviceInfo.size());
    return 0;
}

#include "KeyScanCode.h"

namespace platform {

namespace {

constexpr quint32 ExtendedFlag = 0x100;
constexpr quint16 RightShift = 0x36; // comes with and without the flag

} // namespace

quint16 keyScanCode(quint32 nativeScanCode)
{
    const auto code = quint16(nativeScanCode & 0xFF);
    return nativeScanCode & ExtendedFlag && code != RightShift ? quint16(0xE000 | code) : code;
}

} // namespace platform

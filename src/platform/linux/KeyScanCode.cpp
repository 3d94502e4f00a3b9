#include "KeyScanCode.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr quint32 FirstKeyCode = 8;    // the X server and Wayland count the kernel's codes from here
constexpr quint32 LastSameCode = 0x58; // F12; up to here the kernel numbers keys as set 1 does

struct KernelKey
{
    quint32 kernel;
    quint16 scan;
};

constexpr auto OtherKeys = std::to_array<KernelKey>({
    {69, 0xE045},  // Num-Lock
    {96, 0xE01C},  // Num-Enter
    {97, 0xE01D},  // R-Ctrl
    {98, 0xE035},  // Num-/
    {99, 0xE037},  // Print-Screen
    {100, 0xE038}, // R-Alt
    {102, 0xE047}, // Home
    {103, 0xE048}, // up
    {104, 0xE049}, // Pgup
    {105, 0xE04B}, // left
    {106, 0xE04D}, // right
    {107, 0xE04F}, // End
    {108, 0xE050}, // down
    {109, 0xE051}, // Pgdn
    {110, 0xE052}, // Insert
    {111, 0xE053}, // Delete
    {119, 0x45},   // Pause
    {125, 0xE05B}, // L-Win
    {126, 0xE05C}, // R-Win
    {127, 0xE05D}, // Menu
});

} // namespace

quint16 keyScanCode(quint32 nativeScanCode)
{
    const quint32 kernel = nativeScanCode < FirstKeyCode ? 0 : nativeScanCode - FirstKeyCode;
    const auto other = std::ranges::find(OtherKeys, kernel, &KernelKey::kernel);
    if (other != OtherKeys.end())
        return other->scan;
    return kernel <= LastSameCode ? quint16(kernel) : 0;
}

} // namespace platform

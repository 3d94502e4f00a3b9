#include "KeyState.h"

#include <windows.h>

namespace platform {

// The sign bit is the promised one. Bit 11 equals it in every Windows, which fills the upper byte of the
// state with the key's bit; the pair of keys behind a hidden feature is read by it.
bool isKeyDown(Key key)
{
    constexpr int FilledBit = 1 << 11;
    switch (key) {
    case Key::Escape:
        return GetKeyState(VK_ESCAPE) < 0;
    case Key::Control:
        return GetKeyState(VK_CONTROL) & FilledBit;
    case Key::D:
        return GetKeyState('D') & FilledBit;
    }
    return false;
}

} // namespace platform

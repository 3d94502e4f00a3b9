#pragma once

namespace platform {

enum class Key { Escape, Control, D };

/// Whether a key is held down, as far as this program's windows are told. GUI thread only. False where the
/// desktop doesn't say.
bool isKeyDown(Key key);

} // namespace platform

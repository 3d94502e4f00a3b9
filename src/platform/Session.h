#pragma once

#include <chrono>

namespace platform {

/// Whether the user's session is locked; false where the desktop doesn't say. Returns at once: where the
/// answer takes a service, it is the one that the service gave last. GUI thread only.
bool isSessionLocked();

/// How long nobody has touched keyboard or mouse; zero where the desktop doesn't say. GUI thread only.
std::chrono::milliseconds idleTime();

} // namespace platform

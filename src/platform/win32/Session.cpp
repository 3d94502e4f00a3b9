#include "Session.h"

#include <memory>
#include <windows.h>
#include <wtsapi32.h>

namespace platform {

namespace {

// Not in all toolchains' headers, so under names of our own.
constexpr auto SessionInfoEx = WTS_INFO_CLASS(25);
constexpr LONG SessionLocked = 0;

/// The beginning of the system's WTSINFOEXW, of level 1.
struct SessionInfo
{
    DWORD level;
    alignas(8) ULONG sessionId;
    int connectState;
    LONG sessionFlags;
};

struct FreeSessionInfo
{
    void operator()(wchar_t *info) const { WTSFreeMemory(info); }
};

} // namespace

bool isSessionLocked()
{
    wchar_t *buffer = nullptr;
    DWORD size = 0;
    if (!WTSQuerySessionInformationW(WTS_CURRENT_SERVER_HANDLE, WTS_CURRENT_SESSION, SessionInfoEx, &buffer,
                                     &size)) {
        return false;
    }
    const std::unique_ptr<wchar_t, FreeSessionInfo> owned(buffer);
    if (!buffer || size < sizeof(SessionInfo))
        return false;
    const auto *info = reinterpret_cast<const SessionInfo *>(buffer);
    return info->level == 1 && info->sessionFlags == SessionLocked;
}

std::chrono::milliseconds idleTime()
{
    LASTINPUTINFO last{sizeof(LASTINPUTINFO), 0};
    if (!GetLastInputInfo(&last))
        return {};
    return std::chrono::milliseconds(GetTickCount() - last.dwTime); // right across the counter's wrap, too
}

} // namespace platform

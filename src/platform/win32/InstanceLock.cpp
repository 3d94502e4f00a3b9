#include "InstanceLock.h"

#include "PlatformLog.h"

#include <windows.h>

namespace platform {

namespace {

constexpr DWORD DoorPatience = 3000; // ms

/// A mutex of the user's session. A thread that ends with it leaves it to the next.
class SessionMutex
{
public:
    explicit SessionMutex(const QString &name)
        : handle(CreateMutexW(nullptr, FALSE, reinterpret_cast<const wchar_t *>(name.utf16())))
        , denied(!handle && GetLastError() == ERROR_ACCESS_DENIED)
    {
        if (!handle)
            qCWarning(lcPlatform) << "No access to" << name << qt_error_string();
    }

    ~SessionMutex()
    {
        release();
        if (handle)
            CloseHandle(handle);
    }

    SessionMutex(const SessionMutex &) = delete;
    SessionMutex &operator=(const SessionMutex &) = delete;

    void acquire(DWORD patience)
    {
        const DWORD result = handle ? WaitForSingleObject(handle, patience) : WAIT_FAILED;
        held = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
        elsewhere = result == WAIT_TIMEOUT || denied;
    }

    void release()
    {
        if (held)
            ReleaseMutex(handle);
        held = false;
    }

    /// Whether somebody else has it, as the last acquire() showed. One that a program with more rights made
    /// may not even be opened.
    bool isElsewhere() const { return elsewhere; }

private:
    HANDLE handle;
    bool denied;
    bool held = false;
    bool elsewhere = false;
};

} // namespace

struct InstanceLock::Private
{
    SessionMutex door;
    SessionMutex instance;
};

InstanceLock::InstanceLock(const QString &key)
    : d(new Private{SessionMutex(QStringLiteral("Local\\%1-door").arg(key)),
                    SessionMutex(QStringLiteral("Local\\%1-instance").arg(key))})
{
}

InstanceLock::~InstanceLock() = default;

void InstanceLock::enter()
{
    d->door.acquire(DoorPatience);
    if (d->door.isElsewhere())
        qCWarning(lcPlatform) << "Another start of the program hangs; going on beside it";
}

void InstanceLock::leave()
{
    d->door.release();
}

bool InstanceLock::claim()
{
    d->instance.acquire(0);
    return !d->instance.isElsewhere();
}

QStringList InstanceLock::segmentKeys(const QString &key)
{
    return {key};
}

} // namespace platform

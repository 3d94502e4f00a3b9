#include "FuzzClock.h"

#include <cerrno>
#include <ctime>
#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <QCoreApplication>
#include <QTimer>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

using Nanoseconds = std::chrono::nanoseconds;

/// What a look at the clock takes: whoever turns in a loop until some moment gets there.
constexpr Nanoseconds LookTime = 20us;

thread_local bool isVirtual = false;
thread_local Nanoseconds now = 1h;

Nanoseconds alarmAt = Nanoseconds::max();

std::function<void()> &alarmAction()
{
    static std::function<void()> action;
    return action;
}

Nanoseconds toDuration(const timespec &time)
{
    return std::chrono::seconds(time.tv_sec) + Nanoseconds(time.tv_nsec);
}

timespec toTimespec(Nanoseconds time)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    return {time_t(seconds.count()), long((time - seconds).count())};
}

void advance(Nanoseconds time)
{
    now += std::max(time, 0ns);
    if (now < alarmAt)
        return;
    alarmAt = Nanoseconds::max();
    if (const auto action = std::exchange(alarmAction(), {}))
        action();
}

} // namespace

namespace fuzzclock {

void start()
{
    isVirtual = true;
}

void letTimePass(Milliseconds time)
{
    QTimer end;
    end.setSingleShot(true);
    end.setTimerType(Qt::PreciseTimer);
    end.start(time);
    while (end.isActive())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void skip(Milliseconds time)
{
    advance(time);
}

void setAlarm(Milliseconds time, std::function<void()> action)
{
    alarmAt = action ? now + time : Nanoseconds::max();
    alarmAction() = std::move(action);
}

} // namespace fuzzclock

// The C library's own names: what is linked into the program comes before the shared library.
extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (!isVirtual || (clock != CLOCK_MONOTONIC && clock != CLOCK_MONOTONIC_COARSE))
        return int(syscall(SYS_clock_gettime, clock, time));
    advance(LookTime);
    *time = toTimespec(now);
    return 0;
}

// Nothing comes from outside: whatever the event loop waits for, only the time can bring it.
int ppoll(pollfd *files, nfds_t count, const timespec *limit, const sigset_t *signals)
{
    constexpr long SignalSetBytes = 8;
    timespec rest = limit ? *limit : timespec{};
    if (!isVirtual)
        return int(syscall(SYS_ppoll, files, count, limit ? &rest : nullptr, signals, SignalSetBytes));
    advance(toDuration(rest));
    return 0;
}

int clock_nanosleep(clockid_t clock, int flags, const timespec *time, timespec *rest)
{
    if (!isVirtual)
        return syscall(SYS_clock_nanosleep, clock, flags, time, rest) == 0 ? 0 : errno;
    advance(flags & TIMER_ABSTIME ? toDuration(*time) - now : toDuration(*time));
    return 0;
}

int nanosleep(const timespec *time, timespec *rest)
{
    if (!isVirtual)
        return int(syscall(SYS_nanosleep, time, rest));
    advance(toDuration(*time));
    return 0;
}

/// The virtual keyboards wait by it. Nobody else will wake this thread, so the wait always ends by its limit.
int pthread_cond_clockwait(pthread_cond_t *condition, pthread_mutex_t *mutex, clockid_t clock,
                           const timespec *until)
{
    if (isVirtual) {
        advance(toDuration(*until) - now);
        return ETIMEDOUT;
    }
    static const auto real =
        reinterpret_cast<decltype(&pthread_cond_clockwait)>(dlsym(RTLD_NEXT, "pthread_cond_clockwait"));
    return real(condition, mutex, clock, until);
}

} // extern "C"

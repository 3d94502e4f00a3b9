#include "CompressedTime.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <dlfcn.h>
#include <limits>
#include <poll.h>
#include <pthread.h>
#include <sched.h>
#include <sys/time.h>
#include <vector>

namespace {

using Nanoseconds = std::int64_t;

constexpr Nanoseconds Second = 1'000'000'000;
constexpr Nanoseconds Millisecond = 1'000'000;
constexpr Nanoseconds Never = std::numeric_limits<Nanoseconds>::max();

/// A shorter sleep is one of a loop that polls: it may take until the next time that something happens.
constexpr Nanoseconds ShortestSleepKept = 5 * Millisecond;
constexpr Nanoseconds PatienceWithOthers = 2 * Millisecond;
constexpr Nanoseconds MomentForOthers = 50'000;
/// A wake-up that was lost between two threads is made up for after this time.
constexpr Nanoseconds LongestRealSleep = 20 * Millisecond;
/// No uptime is that long, and it is long ago as a date: tells which of the clocks a moment belongs to.
constexpr std::time_t FirstDate = 1'000'000'000;

template <typename Function>
Function *original(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}
// Looked up once, by the first call.
#define ORIGINAL(function)                                                                                   \
    ([] {                                                                                                    \
        static auto *const found = original(&function, #function);                                           \
        return found;                                                                                        \
    }())

Nanoseconds fromTimespec(const timespec &time)
{
    return time.tv_sec * Second + time.tv_nsec;
}

timespec toTimespec(Nanoseconds time)
{
    return {time / Second, time % Second};
}

Nanoseconds realTime(clockid_t clock = CLOCK_MONOTONIC)
{
    timespec time{};
    ORIGINAL(clock_gettime)(clock, &time);
    return fromTimespec(time);
}

std::atomic<Nanoseconds> skipped = 0;
std::atomic_bool compressing = false;
thread_local bool leads = false; ///< the thread whose waits let the time jump

Nanoseconds now()
{
    return realTime() + skipped;
}

struct Sleeper
{
    Nanoseconds due;
    bool isKept; ///< no jump goes past its end
    pthread_cond_t *condition;
};

pthread_mutex_t table = PTHREAD_MUTEX_INITIALIZER;
std::vector<Sleeper *> sleepers; ///< under the table's lock
std::atomic<int> awake = 0;      ///< threads that have slept and now do something
std::atomic<unsigned> changes = 0;

struct TableLock
{
    TableLock() { pthread_mutex_lock(&table); }
    ~TableLock() { pthread_mutex_unlock(&table); }
    TableLock(const TableLock &) = delete;
    TableLock &operator=(const TableLock &) = delete;
};

/// A thread other than the leading one, from its first sleep on.
struct Follower
{
    ~Follower() { setAwake(false); }
    void setAwake(bool on)
    {
        if (on != isAwake)
            awake += on ? 1 : -1;
        isAwake = on;
        ++changes;
    }
    bool isAwake = false;
};
thread_local Follower follower;

void letOthersRun()
{
    static unsigned stuckSince = 0;
    if (awake == 0 || (stuckSince != 0 && stuckSince == changes))
        return;
    const Nanoseconds start = realTime();
    while (awake > 0) {
        const Nanoseconds waited = realTime() - start;
        if (waited > PatienceWithOthers) {
            stuckSince = changes; // it waits for something else; not again before that changes
            return;
        }
        const timespec moment = toTimespec(MomentForOthers);
        if (waited < MomentForOthers)
            sched_yield();
        else
            ORIGINAL(nanosleep)(&moment, nullptr);
    }
    stuckSince = 0;
}

/// Moves the clocks on to a time, or to the end of another thread's sleep if that is earlier.
void skipTo(Nanoseconds due)
{
    letOthersRun();
    const TableLock lock;
    for (const Sleeper *sleeper : sleepers)
        due = sleeper->isKept ? std::min(due, sleeper->due) : due;
    if (due != Never)
        skipped += std::max<Nanoseconds>(0, due - now());
    for (const Sleeper *sleeper : sleepers) {
        if (sleeper->due <= now())
            pthread_cond_broadcast(sleeper->condition);
    }
}

bool isAnySleepKept()
{
    const TableLock lock;
    return std::any_of(sleepers.begin(), sleepers.end(),
                       [](const Sleeper *sleeper) { return sleeper->isKept; });
}

int waitForReal(pthread_cond_t *condition, pthread_mutex_t *mutex, Nanoseconds time)
{
    const timespec until = toTimespec(realTime() + time);
    return ORIGINAL(pthread_cond_clockwait)(condition, mutex, CLOCK_MONOTONIC, &until);
}

/// A wait on a condition, to a moment of the moved clock.
int waitUntil(pthread_cond_t *condition, pthread_mutex_t *mutex, Nanoseconds due)
{
    if (leads) {
        while (now() < due) {
            const int result = waitForReal(condition, mutex, MomentForOthers);
            if (result != ETIMEDOUT)
                return result;
            skipTo(due);
        }
        return ETIMEDOUT;
    }
    Sleeper sleeper{due, due - now() >= ShortestSleepKept, condition};
    {
        const TableLock lock;
        sleepers.push_back(&sleeper);
    }
    follower.setAwake(false);
    int result = ETIMEDOUT;
    while (now() < due && result == ETIMEDOUT)
        result = waitForReal(condition, mutex, std::min(due - now(), LongestRealSleep));
    follower.setAwake(true);
    const TableLock lock;
    std::erase(sleepers, &sleeper);
    return result;
}

void sleepUntil(Nanoseconds due)
{
    if (leads) {
        while (now() < due)
            skipTo(due);
        return;
    }
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    pthread_cond_t condition = PTHREAD_COND_INITIALIZER;
    pthread_mutex_lock(&mutex);
    while (now() < due)
        waitUntil(&condition, &mutex, due);
    pthread_mutex_unlock(&mutex);
}

Nanoseconds momentOf(clockid_t clock, const timespec &time)
{
    const Nanoseconds moment = fromTimespec(time);
    return clock == CLOCK_REALTIME ? moment - realTime(CLOCK_REALTIME) + realTime() : moment;
}

} // namespace

void compressedtime::begin()
{
    leads = true;
    compressing = true;
}

extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const int result = ORIGINAL(clock_gettime)(clock, time);
    if (result == 0 && clock != CLOCK_PROCESS_CPUTIME_ID && clock != CLOCK_THREAD_CPUTIME_ID)
        *time = toTimespec(fromTimespec(*time) + skipped);
    return result;
}

int gettimeofday(timeval *time, void *) noexcept
{
    const Nanoseconds date = realTime(CLOCK_REALTIME) + skipped;
    *time = {date / Second, date % Second / 1000};
    return 0;
}

std::time_t time(std::time_t *result) noexcept
{
    const std::time_t date = (realTime(CLOCK_REALTIME) + skipped) / Second;
    if (result)
        *result = date;
    return date;
}

int ppoll(pollfd *files, nfds_t count, const timespec *timeout, const sigset_t *signals)
{
    if (!leads || (timeout && fromTimespec(*timeout) == 0))
        return ORIGINAL(ppoll)(files, count, timeout, signals);
    const Nanoseconds due = timeout ? now() + fromTimespec(*timeout) : Never;
    for (;;) {
        const timespec none{};
        const int ready = ORIGINAL(ppoll)(files, count, &none, signals);
        if (ready != 0 || now() >= due)
            return ready;
        if (!timeout && !isAnySleepKept())
            return ORIGINAL(ppoll)(files, count, nullptr, signals);
        skipTo(due);
    }
}

int poll(pollfd *files, nfds_t count, int timeout)
{
    if (!leads)
        return ORIGINAL(poll)(files, count, timeout);
    const timespec limit = toTimespec(timeout * Millisecond);
    return ppoll(files, count, timeout < 0 ? nullptr : &limit, nullptr);
}

int clock_nanosleep(clockid_t clock, int flags, const timespec *time, timespec *rest)
{
    if (!compressing)
        return ORIGINAL(clock_nanosleep)(clock, flags, time, rest);
    sleepUntil(flags & TIMER_ABSTIME ? momentOf(clock, *time) : now() + fromTimespec(*time));
    return 0;
}

int nanosleep(const timespec *time, timespec *rest)
{
    return clock_nanosleep(CLOCK_MONOTONIC, 0, time, rest);
}

int pthread_cond_clockwait(pthread_cond_t *condition, pthread_mutex_t *mutex, clockid_t clock,
                           const timespec *until)
{
    if (!compressing)
        return ORIGINAL(pthread_cond_clockwait)(condition, mutex, clock, until);
    return waitUntil(condition, mutex, momentOf(clock, *until));
}

int pthread_cond_timedwait(pthread_cond_t *condition, pthread_mutex_t *mutex, const timespec *until)
{
    const clockid_t clock = until->tv_sec < FirstDate ? CLOCK_MONOTONIC : CLOCK_REALTIME;
    return pthread_cond_clockwait(condition, mutex, clock, until);
}

} // extern "C"

#include "Clock.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr qint64 nanosecondsPerSecond = 1000000000;
constexpr qint64 nanosecondsPerMillisecond = 1000000;

// Of the main thread, 0 while it is real. Others keep the real one.
qint64 virtualNow = 0;
int looks = 0; // at the clock, since it moved
constexpr int manyLooks = 10000;
int polls = 0; // without a wait
constexpr int manyPolls = 100;

bool isVirtual()
{
    return virtualNow != 0 && syscall(SYS_gettid) == getpid();
}

qint64 realTime(clockid_t clock)
{
    timespec time = {};
    syscall(SYS_clock_gettime, clock, &time);
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

} // namespace

void Clock::makeVirtual()
{
    // The same in each run: Qt rounds the times of its timers.
    virtualNow = 1000 * nanosecondsPerSecond;
}

void Clock::advance(int milliseconds)
{
    if (virtualNow != 0) {
        virtualNow += milliseconds * nanosecondsPerMillisecond;
    }
}

void Clock::align()
{
    if (virtualNow != 0) {
        virtualNow = (virtualNow / nanosecondsPerSecond + 1) * nanosecondsPerSecond;
        looks = 0;
        polls = 0;
    }
}

qint64 Clock::waitedMilliseconds()
{
    if (virtualNow == 0) {
        return 0;
    }
    // "ran waited turns", in ns: for a processor, not for something else.
    static const int file = open("/proc/self/schedstat", O_RDONLY | O_CLOEXEC);
    std::array<char, 80> text = {};
    long long ran = 0;
    long long queued = 0;
    if (pread(file, text.data(), text.size() - 1, 0) <= 0 ||
        std::sscanf(text.data(), "%lld %lld", &ran, &queued) != 2) {
        return 0;
    }
    return (realTime(CLOCK_MONOTONIC) - realTime(CLOCK_THREAD_CPUTIME_ID) - queued) /
           nanosecondsPerMillisecond;
}

qint64 Clock::cpuMilliseconds()
{
    return realTime(CLOCK_THREAD_CPUTIME_ID) / nanosecondsPerMillisecond;
}

// The program's own, which libraries find before the C library's.

extern "C" Q_DECL_EXPORT int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock != CLOCK_MONOTONIC || !isVirtual()) {
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    }
    // Code that waits in a loop of its own comes to an end.
    virtualNow += ++looks % manyLooks == 0 ? nanosecondsPerMillisecond : 0;
    time->tv_sec = virtualNow / nanosecondsPerSecond;
    time->tv_nsec = virtualNow % nanosecondsPerSecond;
    return 0;
}

extern "C" Q_DECL_EXPORT int ppoll(pollfd* files, nfds_t count, const timespec* timeout,
                                   const sigset_t* signals)
{
    timespec wait = timeout ? *timeout : timespec{};
    if (timeout && isVirtual()) {
        const bool isWaiting = timeout->tv_sec != 0 || timeout->tv_nsec != 0;
        // Events that lead to events for ever keep nobody's timers from going off, as in real time.
        virtualNow += !isWaiting && ++polls % manyPolls == 0 ? nanosecondsPerMillisecond : 0;
        looks = 0;
        virtualNow += timeout->tv_sec * nanosecondsPerSecond + timeout->tv_nsec;
        wait = {};
    }
    return static_cast<int>(syscall(SYS_ppoll, files, count, timeout ? &wait : nullptr, signals, 8));
}

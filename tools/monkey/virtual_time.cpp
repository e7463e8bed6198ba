#include "virtual_time.h"

#include <cstdint>
#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::int64_t Second = 1'000'000'000;
constexpr std::int64_t Millisecond = 1'000'000;
/// What waits for a moment to come, without an event, must see it come.
constexpr std::int64_t TimeALook = 1'000;

thread_local bool gStandsStill = false;
/// Time is the same in every run.
constexpr std::int64_t Start = 1'773'484'200 * Second;
std::int64_t gPassed = 0;

} // namespace

// Stands in for the system's own in all of the program's libraries.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (!gStandsStill || clock == CLOCK_PROCESS_CPUTIME_ID || clock == CLOCK_THREAD_CPUTIME_ID)
        return int(syscall(SYS_clock_gettime, clock, time));
    gPassed += TimeALook;
    time->tv_sec = time_t((Start + gPassed) / Second);
    time->tv_nsec = long((Start + gPassed) % Second);
    return 0;
}

void StopTime()
{
    gStandsStill = true;
}

void PassTime(int milliseconds)
{
    gPassed += milliseconds * Millisecond;
}

#include "process_usage.h"

#include <windows.h>

#include <psapi.h>

namespace morvane {

namespace {

double secondsOf(const FILETIME& time) {
    return (time.dwHighDateTime * 4294967296.0 + time.dwLowDateTime) / 1e7; // steps of 100 nanoseconds
}

} // namespace

double processorSeconds() {
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    return secondsOf(kernel) + secondsOf(user);
}

double peakMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PeakWorkingSetSize) / (1 << 20);
}

} // namespace morvane

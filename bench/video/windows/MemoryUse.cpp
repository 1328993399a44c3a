#include "bench/video/MemoryUse.h"

#include <qt_windows.h>

#include <psapi.h>

namespace
{

PROCESS_MEMORY_COUNTERS counters()
{
    PROCESS_MEMORY_COUNTERS found{};
    GetProcessMemoryInfo(GetCurrentProcess(), &found, sizeof found);
    return found;
}

} // namespace

qint64 pageFaults()
{
    return counters().PageFaultCount;
}

qint64 residentBytes()
{
    return qint64(counters().WorkingSetSize);
}

#include "bench/video/MemoryUse.h"

#include <qt_windows.h>

#include <psapi.h>

#include <fstream>
#include <sstream>
#include <string>

namespace
{

PROCESS_MEMORY_COUNTERS counters()
{
    PROCESS_MEMORY_COUNTERS found{};
    GetProcessMemoryInfo(GetCurrentProcess(), &found, sizeof found);
    return found;
}

/// Wine leaves the count at zero. The system below it counts for each thread, and is reached by a
/// path that Windows itself does not have.
qint64 faultsBelowWine()
{
    std::ifstream file("Z:\\proc\\thread-self\\stat");
    std::string line;
    std::getline(file, line);
    std::istringstream fields(line.substr(line.rfind(')') + 1)); // the name may hold blanks
    std::string skipped;
    for (int i = 0; i < 7; ++i) // state to flags
        fields >> skipped;
    qint64 faults = 0;
    fields >> faults;
    return faults;
}

} // namespace

qint64 pageFaults()
{
    const qint64 faults = counters().PageFaultCount;
    return faults > 0 ? faults : faultsBelowWine();
}

qint64 residentBytes()
{
    return qint64(counters().WorkingSetSize);
}

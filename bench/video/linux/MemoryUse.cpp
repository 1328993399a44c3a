#include "bench/video/MemoryUse.h"

#include <fstream>

#include <sys/resource.h>
#include <unistd.h>

qint64 pageFaults()
{
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt + usage.ru_majflt;
}

qint64 residentBytes()
{
    std::ifstream file("/proc/self/statm");
    qint64 total = 0;
    qint64 resident = 0;
    file >> total >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

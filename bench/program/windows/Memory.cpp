#include "bench/program/ProgramRun.h"

#include <qt_windows.h>

#include <psapi.h>

double ProgramRun::residentMegabytes() const
{
    PROCESS_MEMORY_COUNTERS found{};
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, DWORD(pid()));
    GetProcessMemoryInfo(process, &found, sizeof found);
    CloseHandle(process);
    return double(found.WorkingSetSize) / 1e6;
}

/* crash-program <image name>: lets the main thread of a running program call the address 16. */
#include <windows.h>

#include <stdio.h>
#include <string.h>
#include <tlhelp32.h>

static DWORD processOf(const char* name)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry = {.dwSize = sizeof(entry)};
    DWORD found = 0;
    for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
        if (_stricmp(entry.szExeFile, name) == 0)
            found = entry.th32ProcessID;
    }
    CloseHandle(snapshot);
    return found;
}

/* The thread that was made first. */
static DWORD mainThreadOf(DWORD process)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {.dwSize = sizeof(entry)};
    DWORD found = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == process && found == 0)
            found = entry.th32ThreadID;
    }
    CloseHandle(snapshot);
    return found;
}

int main(int argc, char** argv)
{
    const DWORD process = argc == 2 ? processOf(argv[1]) : 0;
    const HANDLE thread = process ? OpenThread(THREAD_SET_CONTEXT, FALSE, mainThreadOf(process)) : NULL;
    /* Called when the thread waits for messages, where it holds no lock of the system. */
    if (!thread || !QueueUserAPC((PAPCFUNC)16, thread, 0)) {
        fprintf(stderr, "The program cannot be crashed: %lu\n", GetLastError());
        return 1;
    }
    return 0;
}

#include "portalhub/LastThread.h"

#include <qt_windows.h>

namespace
{

bool g_isLastThread = false;

} // namespace

// Called before the static objects of the library are destroyed. `reserved` is null when a program
// unloads the library.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, void* reserved)
{
    if (reason == DLL_PROCESS_DETACH && reserved)
        g_isLastThread = true;
    return TRUE;
}

bool channel::isLastThread()
{
    return g_isLastThread;
}

#include "platform/ThreadName.h"

#include "platform/windows/StackReserve.h"

#include <QString>

#include <qt_windows.h>

namespace platform
{

void reserveStackForCrash()
{
    ULONG bytes = 64 * 1024; // writing a dump uses most of it
    SetThreadStackGuarantee(&bytes);
}

void nameCurrentThread(const char* name)
{
    // Resolved at run time because import libraries of older tool chains lack it.
    using SetDescription = HRESULT(WINAPI*)(HANDLE, PCWSTR);
    const auto setDescription = reinterpret_cast<SetDescription>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetThreadDescription")));
    if (setDescription)
        setDescription(GetCurrentThread(), QString::fromUtf8(name).toStdWString().c_str());
    reserveStackForCrash();
}

} // namespace platform

#include "platform/MemoryGuard.h"

#include <qt_windows.h>

#include <mutex>

namespace
{

#ifndef _MSC_VER

/// State of one guarded access, in the stack frame of runGuarded().
struct Guard {
    CONTEXT place;                     ///< where runGuarded() continues after an interruption
    volatile bool interrupted = false; ///< read again after the registers were set back
};

// A slot of the system: thread_local takes memory from the heap at its first use in a thread, and
// the exception can be raised inside the heap.
const DWORD g_slot = TlsAlloc();

/// Lets the thread continue at the place that its guarded access has stored. Nothing is unwound.
LONG CALLBACK onException(EXCEPTION_POINTERS* pointers)
{
    if (pointers->ExceptionRecord->ExceptionCode != EXCEPTION_IN_PAGE_ERROR)
        return EXCEPTION_CONTINUE_SEARCH;
    auto* const guard = static_cast<Guard*>(TlsGetValue(g_slot));
    if (!guard)
        return EXCEPTION_CONTINUE_SEARCH;
    guard->interrupted = true;
    *pointers->ContextRecord = guard->place;
    return EXCEPTION_CONTINUE_EXECUTION;
}

#endif

} // namespace

namespace platform
{

#ifdef _MSC_VER

bool runGuarded(GuardedAccess access, void* context)
{
    __try {
        access(context);
        return true;
    } __except (GetExceptionCode() == EXCEPTION_IN_PAGE_ERROR ? EXCEPTION_EXECUTE_HANDLER
                                                              : EXCEPTION_CONTINUE_SEARCH) {
        return false;
    }
}

void installMemoryGuard()
{
    // The handler belongs to runGuarded() itself.
}

#else

// RtlCaptureContext() returns a second time after an interruption, with the registers of its first
// return. From there on only `guard` is read, which lies in memory because its address was passed
// on. Not inlined, so that this holds for the caller as well.
[[gnu::noinline]] bool runGuarded(GuardedAccess access, void* context)
{
    Guard guard;
    RtlCaptureContext(&guard.place);
    if (!guard.interrupted) {
        TlsSetValue(g_slot, &guard);
        access(context);
    }
    TlsSetValue(g_slot, nullptr);
    return !guard.interrupted;
}

void installMemoryGuard()
{
    static std::once_flag s_once;
    std::call_once(s_once, [] { AddVectoredExceptionHandler(1, onException); });
}

#endif

} // namespace platform

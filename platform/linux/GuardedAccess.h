#pragma once

namespace platform
{

/// Other handlers of SIGBUS call this first. It does not return if the calling thread is in an
/// access that platform/MemoryGuard.h guards. Async-signal-safe.
/// @param context  third argument of the handler
void leaveGuardedAccess(const void* context);

} // namespace platform

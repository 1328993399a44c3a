#pragma once

#include <memory>
#include <type_traits>

/// Access to mapped memory that another process may truncate at any time.
///
/// Touching a page beyond the end of a truncated object raises SIGBUS. Copying through the kernel
/// (pread) would report an error instead, but is slower than copying from the mapping. So the
/// access runs unchecked, and the signal handler jumps out of it. The cost is one sigsetjmp, which
/// saves a few registers and makes no system call.
namespace platform
{

using GuardedAccess = void (*)(void* context);

/// Runs `access`. False if it was interrupted because its memory is gone. `access` must not own
/// objects with destructors, and calls must not be nested. Any thread.
[[nodiscard]] bool runGuarded(GuardedAccess access, void* context);

template <typename Access>
[[nodiscard]] bool guarded(Access&& access)
{
    using Callable = std::remove_reference_t<Access>;
    return runGuarded([](void* context) { (*static_cast<Callable*>(context))(); },
                      std::addressof(access));
}

/// Installs the SIGBUS handler; only the first call has an effect. Signals that are raised outside
/// a guarded access go to the handler that was installed before. Any thread.
void installMemoryGuard();

/// Other handlers of SIGBUS call this first. It does not return if the calling thread is in a
/// guarded access. Async-signal-safe.
/// @param context  third argument of the handler
void leaveGuardedAccess(const void* context);

} // namespace platform

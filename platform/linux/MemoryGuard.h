#pragma once

#include <memory>
#include <type_traits>

/// Access to memory that another process may take away meanwhile.
///
/// Touching a page beyond the end of a shared object that was cut short raises SIGBUS. Copying
/// through the kernel (pread) would report it as an error, but is slower than copying from the
/// mapping; so the access runs as it is, and the signal's handler jumps out of it. The price is one
/// sigsetjmp, which saves a few registers and makes no system call.
namespace platform
{

using GuardedAccess = void (*)(void* context);

/// Runs `access`; false when it was cut off because its memory is gone. It must own nothing that
/// needs a destructor and must not be nested.
[[nodiscard]] bool runGuarded(GuardedAccess access, void* context);

template <typename Access>
[[nodiscard]] bool guarded(Access&& access)
{
    using Callable = std::remove_reference_t<Access>;
    return runGuarded([](void* context) { (*static_cast<Callable*>(context))(); },
                      std::addressof(access));
}

/// Takes over SIGBUS, once a process. Signals raised outside a guarded access go to the handler
/// that was installed before.
void installMemoryGuard();

/// For other handlers of SIGBUS, to be called first: does not return when the calling thread is in
/// a guarded access.
/// @param context  the handler's third argument
void leaveGuardedAccess(const void* context);

} // namespace platform

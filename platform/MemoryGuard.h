#pragma once

#include <memory>
#include <type_traits>

/// Access to mapped memory whose pages can be lost at any time, since another process truncates the
/// object on Linux, or since the file behind it can no longer be read on Windows.
///
/// Touching such a page raises SIGBUS on Linux and an in-page error on Windows. Copying through the
/// kernel would report an error instead, but is slower than copying from the mapping. So the access
/// runs unchecked, and a handler leaves it. The cost is that of storing some registers; there is no
/// system call.
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

/// Installs the handler; only the first call has an effect. Failures outside a guarded access go to
/// the handler that was installed before. Any thread.
void installMemoryGuard();

} // namespace platform

#pragma once

#include <csignal>

namespace platform
{

/// Passes a signal from a handler to the one that was installed before it. The earlier handler runs
/// on the same stack, because no other may be left. If there was none, the system's default action
/// takes effect as soon as the calling handler returns. Async-signal-safe.
void passOn(int signal, siginfo_t* info, void* context, const struct sigaction& previous);

} // namespace platform

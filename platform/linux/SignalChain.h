#pragma once

#include <csignal>

namespace platform
{

/// Hands a signal that this handler is done with to the one installed before it, on the same stack:
/// it may be the only one left. Without an earlier handler the system's own action follows as soon
/// as this handler returns. Safe in a signal handler.
void passOn(int signal, siginfo_t* info, void* context, const struct sigaction& previous);

} // namespace platform

#pragma once

#include <csignal>

namespace platform
{

/// Hands a signal that this handler is done with to the one installed before it, which runs as soon
/// as this one returns. Safe in a signal handler.
void passOn(int signal, const siginfo_t& info, const struct sigaction& previous);

} // namespace platform

#pragma once

namespace channel
{

/// Whether the system has already ended all other threads, which Windows does before the static
/// objects of a library are destroyed at the end of a process. Locks that they held stay held.
bool isLastThread();

} // namespace channel

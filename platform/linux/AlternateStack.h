#pragma once

namespace platform
{

/// Gives the calling thread an alternate stack for signal handlers unless it already has one,
/// because a handler cannot run on a stack that has overflowed. Freed when the thread ends.
void ensureAlternateStack();

} // namespace platform

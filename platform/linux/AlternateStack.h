#pragma once

namespace platform
{

/// Gives the calling thread a stack of its own for signal handlers, until it ends, unless it has
/// one: a handler cannot run on a stack that has overflowed.
void ensureAlternateStack();

} // namespace platform

#pragma once

namespace platform
{

/// Reserves a part of the calling thread's stack so that the crash handler can run after a stack
/// overflow.
void reserveStackForCrash();

} // namespace platform

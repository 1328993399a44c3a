#pragma once

namespace platform
{

/// Keeps some of the calling thread's stack back, so that the crash handler can still run on it
/// after an overflow.
void reserveStackForCrash();

} // namespace platform

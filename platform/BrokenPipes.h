#pragma once

namespace platform
{

/// Ignores broken pipes: writing to a closed pipe fails instead of ending the process. Call it on
/// the main thread before the first write. Child processes keep the system's default.
void ignoreBrokenPipes();

} // namespace platform

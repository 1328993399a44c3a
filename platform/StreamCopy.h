#pragma once

#include <cstddef>

namespace platform
{

/// Copies like memcpy, but writes large blocks past the processor's caches where possible. A block
/// that does not fit into the caches would only evict other data, and a cached write first reads
/// its target from memory. Frames are copied about a quarter faster this way.
///
/// Owns nothing, so a signal handler may jump out of it.
void streamCopy(void* target, const void* source, std::size_t length);

} // namespace platform

#pragma once

#include <cstddef>

namespace platform
{

/// Copies like memcpy. A large block is written past the processor's caches where it can be: one
/// that does not fit them would only push out what else is in use, and written through them its
/// target is read from memory first. Frames take about a quarter less time that way.
///
/// Owns nothing, so that it may be left by a jump.
void streamCopy(void* target, const void* source, std::size_t length);

} // namespace platform

#pragma once

#include <cstddef>

namespace platform
{

/// Lets the heap keep up to `count` freed blocks of up to `blockSize` bytes instead of returning
/// them to the system, because every page of a block that comes from the system causes a page
/// fault when it is first touched. So that not every thread keeps that many, threads share few
/// heaps from then on. Affects the whole process and cannot be undone. Call it before other threads
/// allocate. Does nothing on systems whose heap has no such setting.
void keepLargeBlocks(std::size_t blockSize, int count);

/// Returns freed blocks of all sizes to the system, as far as its heap can. Takes milliseconds. Any
/// thread.
void returnFreedBlocks();

} // namespace platform

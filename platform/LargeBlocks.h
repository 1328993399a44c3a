#pragma once

#include <cstddef>

namespace platform
{

/// Lets the heap keep freed blocks of up to that size, `count` of them, instead of giving them back
/// to the system, which would hand out their successors page by page as they are first touched.
/// For the whole process and for good. Does nothing where the heap cannot be told.
void keepLargeBlocks(std::size_t blockSize, int count);

} // namespace platform

#include "platform/LargeBlocks.h"

#include <bit>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void platform::keepLargeBlocks([[maybe_unused]] std::size_t blockSize, [[maybe_unused]] int count)
{
#ifdef __GLIBC__
    // Growing containers round their blocks up to a power of two, and add a header.
    const std::size_t largest = std::bit_ceil(blockSize) + blockSize / 4;
    // More than the 64 MB that the heap of a thread is made of, or such a piece of it would be
    // given back whenever it falls empty.
    const auto kept = static_cast<int>(2 * largest * static_cast<std::size_t>(count));
    // Setting any of the three switches off the heap's own adjustment of the others, so all three
    // are needed.
    // NOLINTBEGIN(concurrency-mt-unsafe): before there is a video worker
    mallopt(M_MMAP_THRESHOLD, static_cast<int>(largest));
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_TOP_PAD, kept);
    // NOLINTEND(concurrency-mt-unsafe)
#endif
}

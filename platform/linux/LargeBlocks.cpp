#include "platform/LargeBlocks.h"

#include <bit>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace
{

[[maybe_unused]] constexpr int LargestHeapCount = 2;

} // namespace

void platform::keepLargeBlocks([[maybe_unused]] std::size_t blockSize, [[maybe_unused]] int count)
{
#ifdef __GLIBC__
    // Containers that grow round their blocks up to a power of two and add a header.
    const std::size_t largest = std::bit_ceil(blockSize) + blockSize / 4;
    // More than 64 MB, the size of one piece of a thread's heap; otherwise a piece would be
    // returned to the system whenever it becomes empty.
    const auto kept = static_cast<int>(2 * largest * static_cast<std::size_t>(count));
    // Setting one of the three parameters stops the heap from adjusting the others, so all three
    // are set.
    // NOLINTBEGIN(concurrency-mt-unsafe): called before the video worker starts
    mallopt(M_MMAP_THRESHOLD, static_cast<int>(largest));
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_TOP_PAD, kept);
    // Each heap keeps that much, and by default there are eight for each processor: memory would
    // grow with the number of threads that there have been.
    mallopt(M_ARENA_MAX, LargestHeapCount);
    // NOLINTEND(concurrency-mt-unsafe)
#endif
}

void platform::returnFreedBlocks()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

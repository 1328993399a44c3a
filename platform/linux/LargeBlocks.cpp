#include "platform/LargeBlocks.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void platform::keepLargeBlocks([[maybe_unused]] std::size_t blockSize, [[maybe_unused]] int count)
{
#ifdef __GLIBC__
    // Setting any of the three switches off the heap's own adjustment of the others, so all three
    // are needed: blocks come from the heap rather than the system; its end is not cut off; and
    // the separate heap of a thread is not dropped whenever it falls empty.
    const auto kept = static_cast<int>(blockSize * static_cast<std::size_t>(count));
    // NOLINTBEGIN(concurrency-mt-unsafe): before there is a video worker
    mallopt(M_MMAP_THRESHOLD, static_cast<int>(blockSize + blockSize / 4));
    mallopt(M_TRIM_THRESHOLD, kept);
    mallopt(M_TOP_PAD, kept);
    // NOLINTEND(concurrency-mt-unsafe)
#endif
}

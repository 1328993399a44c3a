#include "platform/LargeBlocks.h"

void platform::keepLargeBlocks(std::size_t, int)
{
    // The heap always takes blocks of this size from the system; there is no setting for it.
}

void platform::returnFreedBlocks()
{
}

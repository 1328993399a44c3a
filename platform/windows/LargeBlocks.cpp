#include "platform/LargeBlocks.h"

void platform::keepLargeBlocks(std::size_t, int)
{
    // The heap takes blocks of this size from the system each time, whatever it is told.
}

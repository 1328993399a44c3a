#include "platform/BrokenPipes.h"

namespace platform
{

void ignoreBrokenPipes()
{
    // On Windows such a write only fails.
}

} // namespace platform

#include "platform/BrokenPipes.h"

namespace platform
{

void surviveBrokenPipes()
{
    // Writing fails there, and nothing else happens.
}

} // namespace platform

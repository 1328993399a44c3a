#include "platform/TrayKeys.h"

namespace platform
{

void watchTrayKeys()
{
    // Trays of Linux have no such report.
}

bool isTrayKeyPress()
{
    return false;
}

} // namespace platform

#include "portalhub/LastThread.h"

bool channel::isLastThread()
{
    return false;
}

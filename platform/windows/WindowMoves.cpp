#include "platform/WindowMoves.h"

namespace platform
{

bool systemMovesWindows()
{
    return false;
}

} // namespace platform

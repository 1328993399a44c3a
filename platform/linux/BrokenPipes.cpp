#include "platform/BrokenPipes.h"

#include <csignal>

namespace platform
{

void ignoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN); // QProcess restores the default in children
}

} // namespace platform

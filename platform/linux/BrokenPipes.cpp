#include "platform/BrokenPipes.h"

#include <csignal>

namespace platform
{

void surviveBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN); // QProcess gives children the default back
}

} // namespace platform

#include "platform/linux/SignalChain.h"

#include <unistd.h>

namespace platform
{

void passOn(int signal, const siginfo_t& info, const struct sigaction& previous)
{
    sigaction(signal, &previous, nullptr);
    // A fault happens again, with its true address and registers, when its instruction is repeated;
    // a signal that somebody sent has to be sent anew.
    const bool repeatsItself = info.si_code > 0;
    if (!repeatsItself)
        ::tgkill(::getpid(), ::gettid(), signal);
}

} // namespace platform

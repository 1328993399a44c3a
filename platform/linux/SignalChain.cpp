#include "platform/linux/SignalChain.h"

#include <unistd.h>

namespace platform
{

void passOn(int signal, siginfo_t* info, void* context, const struct sigaction& previous)
{
    if (previous.sa_flags & SA_SIGINFO) {
        previous.sa_sigaction(signal, info, context);
        return;
    }
    if (previous.sa_handler != SIG_DFL && previous.sa_handler != SIG_IGN) {
        previous.sa_handler(signal);
        return;
    }
    sigaction(signal, &previous, nullptr);
    // A fault recurs when its instruction is executed again; a signal that was sent does not.
    const bool isFault = info->si_code > 0;
    if (!isFault)
        ::tgkill(::getpid(), ::gettid(), signal);
}

} // namespace platform

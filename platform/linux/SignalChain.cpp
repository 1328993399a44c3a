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
    // A fault happens again when its instruction is repeated; a signal that was sent has to be sent
    // anew.
    const bool repeatsItself = info->si_code > 0;
    if (!repeatsItself)
        ::tgkill(::getpid(), ::gettid(), signal);
}

} // namespace platform

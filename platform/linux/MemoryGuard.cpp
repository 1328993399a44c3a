#include "platform/linux/MemoryGuard.h"

#include "platform/linux/SignalChain.h"

#include <atomic>
#include <csetjmp>
#include <csignal>
#include <mutex>

namespace
{

constinit thread_local sigjmp_buf* t_escape = nullptr;

struct sigaction g_previous;

void onBusError(int signal, siginfo_t* info, void* context)
{
    platform::leaveGuardedAccess();
    platform::passOn(signal, info, context, g_previous);
}

} // namespace

namespace platform
{

bool runGuarded(GuardedAccess access, void* context)
{
    sigjmp_buf escape;
    // The handler runs with the signal unblocked, hence no signal mask has to be restored.
    if (sigsetjmp(escape, 0) != 0) {
        t_escape = nullptr;
        return false;
    }
    t_escape = &escape;
    std::atomic_signal_fence(std::memory_order_seq_cst);
    access(context);
    std::atomic_signal_fence(std::memory_order_seq_cst);
    t_escape = nullptr;
    return true;
}

void installMemoryGuard()
{
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction action = {};
        action.sa_sigaction = onBusError;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
        sigemptyset(&action.sa_mask);
        sigaction(SIGBUS, &action, &g_previous);
    });
}

void leaveGuardedAccess()
{
    if (t_escape)
        siglongjmp(*t_escape, 1);
}

} // namespace platform
